// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "PluginNotifications.h"

#include <QLoggingCategory>

#include "ConnectionMonitor.h"
#include "HostContract.h"
#include "INotify.h"
#include "IUIPlugin.h"
#include "PluginContainer.h"

namespace
{
Q_LOGGING_CATEGORY(pluginLog, "vellum.plugins")

void tell(const PluginContainer& container, unsigned int code, const QString& reason, const QLoggingCategory& log)
{
    QStringList answers;
    const QList<PluginWith<INotify>> listeners = container.all<INotify>();
    for (const PluginWith<INotify>& listener : listeners)
        answers.append(QStringLiteral("%1 %2").arg(listener.name).arg(listener.interface->Notify(code, 0, 0)));
    qCInfo(log, "notification %u sent (%s); answers: %s", code, qUtf8Printable(reason),
           answers.isEmpty() ? "none" : qUtf8Printable(answers.join(QStringLiteral(", "))));
}
} // namespace

void PluginNotifications::tellStarted(const PluginContainer& container)
{
    tell(container, HostContract::programStarted, QStringLiteral("the program has started"), pluginLog());
}

void PluginNotifications::tellConnectionChanged(const PluginContainer& container, bool isUp, const QString& reason)
{
    tell(container, HostContract::connectionChanged,
         (isUp ? QStringLiteral("connection up: ") : QStringLiteral("connection down: ")) + reason, connectionLog());
}

void PluginNotifications::tellLanguageChanged(const PluginContainer& container, const QString& language)
{
    const QList<PluginWith<IUIPlugin>> plugins = container.all<IUIPlugin>();
    for (const PluginWith<IUIPlugin>& plugin : plugins)
        plugin.interface->ChangeLang(language);
    tell(container, HostContract::languageChanged, QStringLiteral("language ") + language, pluginLog());
}
