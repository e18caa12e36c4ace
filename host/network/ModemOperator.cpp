// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ModemOperator.h"

#include <QDBusConnection>
#include <QDBusVariant>

namespace
{
constexpr char service[] = "org.freedesktop.ModemManager1";
constexpr char modems[] = "/org/freedesktop/ModemManager1/Modem/";
constexpr char mobileNetwork[] = "org.freedesktop.ModemManager1.Modem.Modem3gpp";
constexpr char operatorName[] = "OperatorName";
constexpr char properties[] = "org.freedesktop.DBus.Properties";
} // namespace

void ModemOperator::setModem(const QString& path)
{
    const QString modem = path.startsWith(QLatin1String(modems)) ? path : QString();
    if (modem == m_modem)
        return;
    QDBusConnection bus = QDBusConnection::systemBus();
    const QLatin1String signal("PropertiesChanged");
    if (!m_modem.isEmpty())
        bus.disconnect(QLatin1String(service), m_modem, QLatin1String(properties), signal, this,
                       SLOT(readChange(QString, QVariantMap)));
    m_modem = modem;
    setName(QString());
    if (m_modem.isEmpty())
        return;
    bus.connect(QLatin1String(service), m_modem, QLatin1String(properties), signal, this,
                SLOT(readChange(QString, QVariantMap)));
    QDBusMessage question = QDBusMessage::createMethodCall(QLatin1String(service), m_modem, QLatin1String(properties),
                                                           QStringLiteral("Get"));
    question << QLatin1String(mobileNetwork) << QLatin1String(operatorName);
    bus.callWithCallback(question, this, SLOT(readAnswer(QDBusMessage)));
}

QString ModemOperator::name() const
{
    return m_name;
}

void ModemOperator::readAnswer(const QDBusMessage& answer)
{
    // A late answer for the modem before this one only shows for the moment until the next comes.
    setName(answer.arguments().value(0).value<QDBusVariant>().variant().toString());
}

void ModemOperator::readChange(const QString& interface, const QVariantMap& changes)
{
    if (interface == QLatin1String(mobileNetwork) && changes.contains(QLatin1String(operatorName)))
        setName(changes.value(QLatin1String(operatorName)).toString());
}

void ModemOperator::setName(const QString& name)
{
    if (m_name == name)
        return;
    m_name = name;
    Q_EMIT changed();
}
