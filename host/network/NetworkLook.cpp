// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "NetworkLook.h"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include "BusValue.h"

namespace
{

QDBusMessage newQuestion(const QString& path, const char* interface, const char* method)
{
    return QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.NetworkManager"), path,
                                          QLatin1String(interface), QLatin1String(method));
}

/** No answer, which is not the same as the answer that there is no such thing. */
bool isSilence(const QDBusMessage& answer)
{
    switch (QDBusError(answer).type()) {
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
    case QDBusError::Disconnected:
    case QDBusError::NoMemory:
    case QDBusError::LimitsExceeded:
        return true;
    default:
        return false;
    }
}
} // namespace

NetworkLook::NetworkLook(const NetworkFacts& known)
    : m_known(known)
{
    askManager();
}

const NetworkFacts& NetworkLook::facts() const
{
    return m_facts;
}

bool NetworkLook::isComplete() const
{
    return m_isComplete;
}

void NetworkLook::askManager()
{
    // No other object may stand in its place.
    m_asked.insert(NetworkFacts::manager());
    QDBusMessage question = newQuestion(NetworkFacts::manager(), BusValue::properties, "GetAll");
    question << QStringLiteral("org.freedesktop.NetworkManager");
    ask(question, [this](const QDBusMessage& answer) {
        const QVariantMap values = BusValue::map(answer);
        if (values.isEmpty()) {
            m_isComplete = false;
            m_facts = m_known;
            return;
        }
        m_facts.set(NetworkFacts::manager(), values);
        const QStringList connections = m_facts.connections();
        for (const QString& path : connections)
            askConnection(path);
    });
}

void NetworkLook::askConnection(const QString& path)
{
    askValues(path, QStringLiteral("org.freedesktop.NetworkManager.Connection.Active"), [this, path] {
        const QVariantMap connection = m_facts.of(path);
        askValues(BusValue::paths(connection.value(QStringLiteral("Devices"))).value(0),
                  QStringLiteral("org.freedesktop.NetworkManager.Device"), [] {});
        if (BusValue::text(connection.value(QStringLiteral("Type"))) == QLatin1String("bluetooth"))
            askStored(BusValue::path(connection.value(QStringLiteral("Connection"))));
    });
}

void NetworkLook::askStored(const QString& path)
{
    if (!isNew(path))
        return;
    ask(newQuestion(path, "org.freedesktop.NetworkManager.Settings.Connection", "GetSettings"),
        [this, path](const QDBusMessage& answer) {
            const QString type = BusValue::text(answer, QStringLiteral("bluetooth"), QStringLiteral("type"));
            take(path, answer, {{QStringLiteral("type"), type}});
        });
}

void NetworkLook::askValues(const QString& path, const QString& interface, const std::function<void()>& next)
{
    if (!isNew(path))
        return;
    QDBusMessage question = newQuestion(path, BusValue::properties, "GetAll");
    question << interface;
    ask(question, [this, path, next](const QDBusMessage& answer) {
        take(path, answer, BusValue::map(answer));
        next();
    });
}

bool NetworkLook::isNew(const QString& path)
{
    if (path.isEmpty() || m_asked.contains(path))
        return false;
    m_asked.insert(path);
    return true;
}

void NetworkLook::ask(QDBusMessage question, const std::function<void(const QDBusMessage& answer)>& read)
{
    ++m_open;
    // Nobody has to be started for an answer.
    question.setAutoStartService(false);
    auto* const watcher = new QDBusPendingCallWatcher(QDBusConnection::systemBus().asyncCall(question, patience), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, read] {
        read(watcher->reply());
        if (--m_open == 0)
            Q_EMIT finished();
    });
}

void NetworkLook::take(const QString& path, const QDBusMessage& answer, const QVariantMap& values)
{
    const bool isSilent = isSilence(answer);
    m_isComplete = m_isComplete && !isSilent;
    m_facts.set(path, isSilent ? m_known.of(path) : values);
}
