// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Telling the host's menu manager that the links changed.

#include "INotifyService.h"
#include "IPluginContainer.h"
#include "QuickLinkSettingPluginDlg.h"
#include "Startup.h"
#include "Trace.h"

namespace
{
const int notifyServiceKind = 0x2011;
const unsigned int quickLinksChanged = 0x905;
} // namespace

/** To the debug channel, and to the warnings as well, so that a menu that is not rebuilt can be explained. */
#define TRACE_AND_WARN(format)                                                                                         \
    do {                                                                                                               \
        TRACE(format, __FILE__, __func__);                                                                             \
        qWarning(format, __FILE__, __func__);                                                                          \
    } while (false)

void QuickLinkSettingPluginDlg::sendNotifyToMenu()
{
    TRACE_START();
    IPluginContainer* const container = Startup::GetPluginContainer();
    if (!container) {
        TRACE_AND_WARN("%s: %s: Plugin container is null ");
        return;
    }
    QObject* const owner =
        container->GetPlugin(QLatin1String("8B42D0E5-1C7F-4A93-9E26-5D8F03B7C412"), notifyServiceKind);
    INotifyService* const service = qobject_cast<INotifyService*>(owner);
    if (!service) {
        TRACE_AND_WARN("%s: %s: plugin is not loaded ");
        return;
    }
    service->Notify(QLatin1String("MenuMgrPlugin"), quickLinksChanged, 0, 0);
    TRACE_END();
}
