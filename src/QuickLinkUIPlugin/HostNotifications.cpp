// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the host tells every plug-in: a new language, a new connection state, its own start.

#include "IDialupUIService.h"
#include "IPluginContainer.h"
#include "QuickLinkSettingPluginDlg.h"
#include "Startup.h"
#include "Trace.h"

namespace
{
enum NotificationCode {
    HostStarted = 0x102,           ///< the host's start is complete
    LanguageChanged = 0x400,       ///< texts must be set again
    ConnectionStateChanged = 0x600 ///< the data connection came up or went down
};

const int dialupServiceKind = 0x4011;
} // namespace

int QuickLinkSettingPluginDlg::Notify(unsigned int code, unsigned int param1, unsigned int param2)
{
    Q_UNUSED(param1);
    Q_UNUSED(param2);
    switch (code) {
    case LanguageChanged:
        return retranslate();
    case ConnectionStateChanged:
        return connectionStateChanged();
    case HostStarted:
        launchOnSoftwareLaunch();
        return 0;
    default:
        return 0;
    }
}

int QuickLinkSettingPluginDlg::connectionStateChanged()
{
    IPluginContainer* const container = Startup::GetPluginContainer();
    if (!container)
        return -1;
    TRACE("%s: %s: %s:Get plugin container success", Trace::now(), __FILE__, "Notify");
    QObject* const owner =
        container->GetPlugin(QLatin1String("61D9E3B8-7A04-4C5F-B1E7-2C6A9F08D35E"), dialupServiceKind);
    IDialupUIService* const service = qobject_cast<IDialupUIService*>(owner);
    if (!service)
        return -1;
    if (service->IsConnected())
        launchOnConnection();
    return 0;
}
