// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ModemOperator.h"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <algorithm>

#include "BusValue.h"

namespace
{
constexpr char modemManager[] = "org.freedesktop.ModemManager1";
constexpr char modems[] = "/org/freedesktop/ModemManager1/Modem/";
constexpr char mobileNetwork[] = "org.freedesktop.ModemManager1.Modem.Modem3gpp";
constexpr char operatorName[] = "OperatorName";

bool isInNumber(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

/** Object paths hold no other signs, and ModemManager's modems have numbers. */
bool isModem(const QString& path)
{
    const QString number = path.mid(int(QLatin1String(modems).size()));
    return path.startsWith(QLatin1String(modems)) && !number.isEmpty() &&
           std::all_of(number.begin(), number.end(), isInNumber);
}
} // namespace

ModemOperator::ModemOperator() = default;

ModemOperator::~ModemOperator() = default;

void ModemOperator::setModem(const QString& path)
{
    const QString modem = isModem(path) ? path : QString();
    if (modem == m_modem)
        return;
    QDBusConnection bus = QDBusConnection::systemBus();
    const QLatin1String signal("PropertiesChanged");
    if (!m_modem.isEmpty())
        bus.disconnect(QLatin1String(modemManager), m_modem, QLatin1String(BusValue::properties), signal, this,
                       SLOT(readChange(QString, QVariantMap)));
    m_modem = modem;
    m_answer.reset();
    setName(QString());
    if (m_modem.isEmpty())
        return;
    bus.connect(QLatin1String(modemManager), m_modem, QLatin1String(BusValue::properties), signal, this,
                SLOT(readChange(QString, QVariantMap)));
    ask();
}

void ModemOperator::ask()
{
    QDBusMessage question = QDBusMessage::createMethodCall(QLatin1String(modemManager), m_modem,
                                                           QLatin1String(BusValue::properties), QStringLiteral("Get"));
    question << QLatin1String(mobileNetwork) << QLatin1String(operatorName);
    m_answer = std::make_unique<QDBusPendingCallWatcher>(QDBusConnection::systemBus().asyncCall(question));
    connect(m_answer.get(), &QDBusPendingCallWatcher::finished, this, [this] {
        const QVariant answer = m_answer->reply().arguments().value(0).value<QDBusVariant>().variant();
        setName(BusValue::text(answer));
    });
}

QString ModemOperator::name() const
{
    return m_name;
}

void ModemOperator::readChange(const QString& interface, const QVariantMap& changes)
{
    if (interface == QLatin1String(mobileNetwork) && changes.contains(QLatin1String(operatorName)))
        setName(BusValue::text(changes.value(QLatin1String(operatorName))));
}

void ModemOperator::setName(const QString& name)
{
    if (m_name == name)
        return;
    m_name = name;
    Q_EMIT changed();
}
