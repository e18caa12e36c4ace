// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "MobilePlans.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include "BusValue.h"
#include "NetworkFacts.h"
#include "NetworkObjects.h"

namespace
{
const int mostStored = 1000; // More would only keep the bus busy.

/** The values of a stored connection, by the sections that they are in. */
using Settings = QMap<QString, QVariantMap>;

QString textOf(const Settings& settings, const QString& section, const char* name)
{
    return BusValue::text(settings.value(section).value(QLatin1String(name)));
}
} // namespace

MobilePlans::MobilePlans(QObject* parent)
    : QObject(parent)
{
}

MobilePlans::~MobilePlans() = default;

void MobilePlans::ask()
{
    m_plans.clear();
    send(QStringLiteral("/org/freedesktop/NetworkManager/Settings"), "org.freedesktop.NetworkManager.Settings",
         "ListConnections", [this](const QDBusMessage& answer) {
             if (answer.type() != QDBusMessage::ReplyMessage) {
                 Q_EMIT found({}, false);
                 return;
             }
             m_paths = BusValue::paths(answer.arguments().value(0)).mid(0, mostStored);
             askNext();
         });
}

/** One after the other: a bus takes only so many questions at once. */
void MobilePlans::askNext()
{
    if (m_paths.isEmpty()) {
        Q_EMIT found(m_plans, true);
        return;
    }
    send(m_paths.takeFirst(), "org.freedesktop.NetworkManager.Settings.Connection", "GetSettings",
         [this](const QDBusMessage& answer) {
             // That it is gone meanwhile, or another user's, is an answer as well.
             if (QDBusError(answer).type() == QDBusError::NoReply) {
                 Q_EMIT found({}, false);
                 return;
             }
             const QString section = QStringLiteral("connection");
             const Settings settings = BusValue::sections(answer.arguments().value(0));
             const QString uuid = textOf(settings, section, "uuid");
             const QString bluetoothType = textOf(settings, QStringLiteral("bluetooth"), "type");
             if (NetworkFacts::isMobile(textOf(settings, section, "type"), bluetoothType) && !uuid.isEmpty())
                 m_plans.insert(uuid, textOf(settings, section, "id"));
             askNext();
         });
}

void MobilePlans::send(const QString& path, const char* interface, const char* method,
                       const std::function<void(const QDBusMessage& answer)>& read)
{
    const QDBusMessage question = NetworkObjects::question(path, interface, method);
    m_answer = std::make_unique<QDBusPendingCallWatcher>(QDBusConnection::systemBus().asyncCall(question, patience));
    connect(m_answer.get(), &QDBusPendingCallWatcher::finished, this, [this, read] {
        QDBusPendingCallWatcher* const watcher = m_answer.release();
        watcher->deleteLater();
        read(watcher->reply());
    });
}
