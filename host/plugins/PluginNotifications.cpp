// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "PluginNotifications.h"

#include "ConnectionMonitor.h"
#include "INotify.h"
#include "IUIPlugin.h"
#include "PluginContainer.h"

namespace
{
const unsigned int started = 258;
const unsigned int languageChanged = 1024;
const unsigned int connectionChanged = 1536;

void tell(const PluginContainer& container, unsigned int code, const QString& reason)
{
    QStringList answers;
    const QList<PluginWith<INotify>> listeners = container.all<INotify>();
    for (const PluginWith<INotify>& listener : listeners)
        answers.append(QStringLiteral("%1 %2").arg(listener.name).arg(listener.interface->Notify(code, 0, 0)));
    qCInfo(connectionLog, "notification %u sent (%s); answers: %s", code, qUtf8Printable(reason),
           answers.isEmpty() ? "none" : qUtf8Printable(answers.join(QStringLiteral(", "))));
}
} // namespace

void PluginNotifications::tellStarted(const PluginContainer& container)
{
    tell(container, started, QStringLiteral("the program has started"));
}

void PluginNotifications::tellConnectionChanged(const PluginContainer& container, bool isUp, const QString& reason)
{
    tell(container, connectionChanged,
         (isUp ? QStringLiteral("connection up: ") : QStringLiteral("connection down: ")) + reason);
}

void PluginNotifications::tellLanguageChanged(const PluginContainer& container, const QString& language)
{
    const QList<PluginWith<IUIPlugin>> plugins = container.all<IUIPlugin>();
    for (const PluginWith<IUIPlugin>& plugin : plugins)
        plugin.interface->ChangeLang(language);
    tell(container, languageChanged, QStringLiteral("language ") + language);
}
