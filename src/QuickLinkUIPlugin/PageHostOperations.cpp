// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the host does with the settings page. Changes are saved when they are made, so OK and Cancel change nothing.

#include <QRect>
#include <QWidget>

#include "QuickLinkSettingPluginDlg.h"
#include "Trace.h"

int QuickLinkSettingPluginDlg::ShowSettingDialog(QWidget* parent, QRect& area)
{
    return ShowWindow(parent, area);
}

int QuickLinkSettingPluginDlg::ShowWindow(QWidget* parent, QRect& area)
{
    TRACE_START();
    m_parentWidget = parent;
    m_watch.watch(m_parentWidget);
    createWidgetMemory(parent);
    initializeUI();
    m_pageWidget->resize(area.width(), area.height());
    m_pageWidget->move(area.left(), area.top());
    fillTable();
    m_pageWidget->setVisible(true);
    TRACE_END();
    return 1;
}

int QuickLinkSettingPluginDlg::HideSetting()
{
    TRACE_START();
    if (m_pageWidget)
        m_pageWidget->close();
    TRACE_END();
    return 1;
}

int QuickLinkSettingPluginDlg::IsActiveSetting()
{
    return 1;
}

int QuickLinkSettingPluginDlg::OnClickSettingOkButton()
{
    return 1;
}

int QuickLinkSettingPluginDlg::OnClickSettingCancelButton()
{
    TRACE_START();
    if (m_pageWidget)
        m_pageWidget->setParent(nullptr);
    TRACE_END();
    return 1;
}

void QuickLinkSettingPluginDlg::Hide()
{
    TRACE_START();
    TRACE_END();
}

void QuickLinkSettingPluginDlg::FitSize(QRect& area)
{
    TRACE_START();
    Q_UNUSED(area);
    TRACE_END();
}
