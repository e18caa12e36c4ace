// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ModemOperator.h"

#include <QDBusConnection>
#include <QDBusPendingReply>
#include <QRegularExpression>

#include "BusValue.h"

namespace
{
constexpr char modemManager[] = "org.freedesktop.ModemManager1";
constexpr char mobileNetwork[] = "org.freedesktop.ModemManager1.Modem.Modem3gpp";
constexpr char operatorName[] = "OperatorName";
constexpr char registration[] = "RegistrationState";

/** Object paths hold no other signs, and ModemManager's modems have numbers. */
bool isModem(const QString& path)
{
    static const QRegularExpression modem(QStringLiteral("\\A/org/freedesktop/ModemManager1/Modem/[0-9]+\\z"));
    return modem.match(path).hasMatch();
}

/** The numbers are ModemManager's: roaming, for text messages only, and for calls by an older network as well. */
bool isRoaming(uint registrationState)
{
    return registrationState == 5 || registrationState == 7 || registrationState == 10;
}
} // namespace

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
    set(QString(), m_modem.isEmpty() ? Roaming::No : Roaming::Unknown);
    if (m_modem.isEmpty())
        return;
    bus.connect(QLatin1String(modemManager), m_modem, QLatin1String(BusValue::properties), signal, this,
                SLOT(readChange(QString, QVariantMap)));
    ask();
}

void ModemOperator::ask()
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        QLatin1String(modemManager), m_modem, QLatin1String(BusValue::properties), QStringLiteral("GetAll"));
    question << QLatin1String(mobileNetwork);
    m_answer = std::make_unique<QDBusPendingCallWatcher>(QDBusConnection::systemBus().asyncCall(question, patience));
    connect(m_answer.get(), &QDBusPendingCallWatcher::finished, this, [this] {
        const QDBusMessage answer = m_answer->reply();
        m_answer.release()->deleteLater();
        // Who may be roaming is not taken for at home because nobody answers.
        if (QDBusError(answer).type() == QDBusError::NoReply)
            return ask();
        // A modem without such a network has no values.
        const QVariantMap values = BusValue::map(answer.arguments().value(0));
        take({{QLatin1String(operatorName), values.value(QLatin1String(operatorName))},
              {QLatin1String(registration), values.value(QLatin1String(registration))}});
    });
}

QString ModemOperator::name() const
{
    return m_name;
}

ModemOperator::Roaming ModemOperator::roaming() const
{
    return m_roaming;
}

void ModemOperator::readChange(const QString& interface, const QVariantMap& changes)
{
    if (interface == QLatin1String(mobileNetwork))
        take(changes);
}

/** What is not among the values stays as it was. */
void ModemOperator::take(const QVariantMap& values)
{
    QString name = m_name;
    if (values.contains(QLatin1String(operatorName)))
        name = BusValue::text(values.value(QLatin1String(operatorName)));
    Roaming roaming = m_roaming;
    if (values.contains(QLatin1String(registration)))
        roaming = isRoaming(BusValue::number(values.value(QLatin1String(registration)))) ? Roaming::Yes : Roaming::No;
    set(name, roaming);
}

void ModemOperator::set(const QString& name, Roaming roaming)
{
    if (m_name == name && m_roaming == roaming)
        return;
    m_name = name;
    m_roaming = roaming;
    Q_EMIT changed();
}
