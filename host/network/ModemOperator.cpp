// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ModemOperator.h"

#include <QDBusConnection>
#include <QDBusVariant>

namespace
{
constexpr QLatin1String service("org.freedesktop.ModemManager1");
constexpr QLatin1String modems("/org/freedesktop/ModemManager1/Modem/");
constexpr QLatin1String mobileNetwork("org.freedesktop.ModemManager1.Modem.Modem3gpp");
constexpr QLatin1String operatorName("OperatorName");
constexpr QLatin1String properties("org.freedesktop.DBus.Properties");
} // namespace

void ModemOperator::setModem(const QString& path)
{
    const QString modem = path.startsWith(modems) ? path : QString();
    if (modem == m_modem)
        return;
    QDBusConnection bus = QDBusConnection::systemBus();
    constexpr QLatin1String signal("PropertiesChanged");
    if (!m_modem.isEmpty())
        bus.disconnect(service, m_modem, properties, signal, this, SLOT(readChange(QString, QVariantMap)));
    m_modem = modem;
    setName(QString());
    if (m_modem.isEmpty())
        return;
    bus.connect(service, m_modem, properties, signal, this, SLOT(readChange(QString, QVariantMap)));
    QDBusMessage question = QDBusMessage::createMethodCall(service, m_modem, properties, QStringLiteral("Get"));
    question << mobileNetwork << operatorName;
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
    if (interface == mobileNetwork && changes.contains(operatorName))
        setName(changes.value(operatorName).toString());
}

void ModemOperator::setName(const QString& name)
{
    if (m_name == name)
        return;
    m_name = name;
    Q_EMIT changed();
}
