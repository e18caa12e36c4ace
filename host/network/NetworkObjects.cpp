// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "NetworkObjects.h"

#include <QDBusConnection>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

#include <algorithm>
#include <limits>

#include "BusValue.h"

namespace
{
constexpr char service[] = "org.freedesktop.NetworkManager";
constexpr char objects[] = "/org/freedesktop";
constexpr char objectManager[] = "org.freedesktop.DBus.ObjectManager";
constexpr char storedConnection[] = "org.freedesktop.NetworkManager.Settings.Connection";

/** Whose properties are of use. No object has two of them. */
constexpr const char* interfaces[] = {service, "org.freedesktop.NetworkManager.Connection.Active",
                                      "org.freedesktop.NetworkManager.Device"};

/** Which of the two it is depends on whether the service could be started. */
bool isNotRunning(const QString& error)
{
    return error == QLatin1String("org.freedesktop.DBus.Error.ServiceUnknown") ||
           error == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner");
}

bool hasOneOfUse(const QStringList& names)
{
    return std::any_of(std::begin(interfaces), std::end(interfaces),
                       [&names](const char* interface) { return names.contains(QLatin1String(interface)); });
}
} // namespace

NetworkObjects::NetworkObjects()
    : m_telephoneAnswers(std::make_unique<QObject>())
{
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, [this] {
        m_isSilent = m_isFirst;
        setPresence(Presence::Away);
        ask();
    });
    if (QDBusConnection::systemBus().isConnected())
        listen();
    else
        m_presence = Presence::Away;
}

QDBusMessage NetworkObjects::question(const QString& path, const char* interface, const char* method)
{
    QDBusMessage question =
        QDBusMessage::createMethodCall(QLatin1String(service), path, QLatin1String(interface), QLatin1String(method));
    // Nobody has to be started for an answer.
    question.setAutoStartService(false);
    return question;
}

void NetworkObjects::listen()
{
    QDBusConnection bus = QDBusConnection::systemBus();
    auto* const watcher =
        new QDBusServiceWatcher(QLatin1String(service), bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) { setOwner(owner); });
    const auto hear = [this, &bus](const char* path, const char* interface, const char* signal,
                                   const QStringList& first, const char* slot) {
        bus.connect(QLatin1String(service), QLatin1String(path), QLatin1String(interface), QLatin1String(signal), first,
                    QString(), this, slot);
    };
    hear(objects, objectManager, "", {}, SLOT(hearObject(QDBusMessage)));
    for (const char* const interface : interfaces)
        hear("", BusValue::properties, "PropertiesChanged", {QLatin1String(interface)},
             SLOT(hearChanged(QDBusMessage)));
    ask();
}

NetworkObjects::Presence NetworkObjects::presence() const
{
    return m_presence;
}

bool NetworkObjects::isSilent() const
{
    return m_isSilent;
}

const NetworkFacts& NetworkObjects::facts() const
{
    return m_facts;
}

void NetworkObjects::setOwner(const QString& owner)
{
    // What the one before said counts no longer.
    m_answer.reset();
    m_retry.stop();
    m_wait = 0;
    m_facts = NetworkFacts();
    m_isAnswered = false;
    m_isSilent = false;
    m_isFirst = false;
    m_telephones.clear();
    m_telephoneAnswers = std::make_unique<QObject>();
    m_openQuestions = 0;
    if (m_presence == Presence::There || owner.isEmpty())
        setPresence(Presence::Away);
    if (!owner.isEmpty())
        ask();
}

void NetworkObjects::setPresence(Presence presence)
{
    if (m_presence == presence)
        return;
    m_presence = presence;
    Q_EMIT presenceChanged();
}

void NetworkObjects::ask()
{
    m_wait = std::min(std::max(2 * m_wait, patience), longestWait);
    m_retry.start(m_wait);
    // However late, an answer is as good: it says how things are when it is given. So a service that was stopped for a
    // while is known anew as soon as it goes on.
    const int forEver = std::numeric_limits<int>::max();
    m_answer = std::make_unique<QDBusPendingCallWatcher>(QDBusConnection::systemBus().asyncCall(
        question(QLatin1String(objects), objectManager, "GetManagedObjects"), forEver));
    connect(m_answer.get(), &QDBusPendingCallWatcher::finished, this, &NetworkObjects::takeAnswer);
}

void NetworkObjects::takeAnswer()
{
    const QDBusMessage answer = m_answer->reply();
    m_answer.release()->deleteLater();
    const auto all = BusValue::objects(answer.arguments().value(0));
    for (auto object = all.begin(); object != all.end(); ++object)
        take(object.key().path(), object.value());
    if (m_facts.of(NetworkFacts::manager()).isEmpty()) {
        // It is asked again, but for a service that is not running, whose coming is told.
        if (isNotRunning(answer.errorName()))
            m_retry.stop();
        m_facts = NetworkFacts();
        setPresence(Presence::Away);
        return;
    }
    m_retry.stop();
    m_isAnswered = true;
    askForTelephones();
    tellChange();
}

void NetworkObjects::take(const QString& path, const QMap<QString, QVariantMap>& values)
{
    for (const char* const interface : interfaces) {
        // No other object may stand in the place of the manager.
        if (values.contains(QLatin1String(interface)) && (interface == service) == (path == NetworkFacts::manager()))
            m_facts.set(path, values.value(QLatin1String(interface)));
    }
}

void NetworkObjects::hearObject(const QDBusMessage& signal)
{
    // What was said before the answer that is awaited is in that answer.
    if (!m_isAnswered)
        return;
    const QString path = BusValue::path(signal.arguments().value(0));
    const QVariant what = signal.arguments().value(1);
    if (signal.member() == QLatin1String("InterfacesAdded"))
        take(path, BusValue::sections(what));
    else if (signal.member() == QLatin1String("InterfacesRemoved") && hasOneOfUse(what.toStringList()))
        forget(path);
    askForTelephones();
    tellChange();
}

void NetworkObjects::forget(const QString& path)
{
    m_facts.remove(path);
    m_telephones.remove(path);
}

void NetworkObjects::hearChanged(const QDBusMessage& signal)
{
    const QVariantMap changes = BusValue::map(signal.arguments().value(1));
    const QStringList withdrawn = signal.arguments().value(2).toStringList();
    if (!m_isAnswered || !m_facts.change(signal.path(), changes, withdrawn))
        return;
    // Of thousands of changes only these can bring a telephone.
    if (changes.contains(QStringLiteral("ActiveConnections")) || changes.contains(QStringLiteral("Type")) ||
        changes.contains(QStringLiteral("Connection")))
        askForTelephones();
    tellChange();
}

void NetworkObjects::tellChange()
{
    if (m_presence == Presence::There)
        Q_EMIT changed();
    // Its first word is whole: what was up before must not seem to come up.
    else if (m_openQuestions == 0)
        setPresence(Presence::There);
}

/** Whether a connection by Bluetooth is mobile broadband only its stored settings say. */
void NetworkObjects::askForTelephones()
{
    const QStringList connections = m_facts.connections();
    for (const QString& path : connections) {
        const QVariantMap connection = m_facts.of(path);
        const QString stored = BusValue::path(connection.value(QStringLiteral("Connection")));
        if (BusValue::text(connection.value(QStringLiteral("Type"))) != QLatin1String("bluetooth") ||
            stored.isEmpty() || m_telephones.contains(path))
            continue;
        m_telephones.insert(path);
        ++m_openQuestions;
        auto* const answer = new QDBusPendingCallWatcher(
            QDBusConnection::systemBus().asyncCall(question(stored, storedConnection, "GetSettings"), patience),
            m_telephoneAnswers.get());
        connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, stored] {
            answer->deleteLater();
            --m_openQuestions;
            m_facts.set(stored,
                        BusValue::sections(answer->reply().arguments().value(0)).value(QStringLiteral("bluetooth")));
            tellChange();
        });
    }
}
