// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Who the plug-in is: the answers to the host that never change.

#include "QuickLinkSettingPluginDlg.h"
#include "Trace.h"

QString QuickLinkSettingPluginDlg::GetPluginName()
{
    return QLatin1String("QuickLinkUIPlugin");
}

QString QuickLinkSettingPluginDlg::GetCLSID()
{
    return QLatin1String("3F1C7A20-5B9E-4D61-A8C4-7E2B90D4F1A6");
}

int QuickLinkSettingPluginDlg::GetVersion()
{
    return 0x101;
}

int QuickLinkSettingPluginDlg::GetPluginType()
{
    return 0;
}

int QuickLinkSettingPluginDlg::IsReady()
{
    return 0;
}

int QuickLinkSettingPluginDlg::IsAllowRelease()
{
    return 0;
}

int QuickLinkSettingPluginDlg::DoModal()
{
    return 0;
}

int QuickLinkSettingPluginDlg::GetLastError()
{
    return 0;
}

int QuickLinkSettingPluginDlg::QueryInterface(int number, QObject** object)
{
    Q_UNUSED(number);
    Q_UNUSED(object);
    return 0;
}

void QuickLinkSettingPluginDlg::Release()
{
    // The loader owns the object, so letting go of it frees nothing.
    TRACE_START();
    TRACE_END();
}
