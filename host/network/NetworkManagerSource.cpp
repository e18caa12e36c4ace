// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "NetworkManagerSource.h"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

#include <algorithm>

#include "BusValue.h"
#include "NetworkLook.h"

namespace
{
constexpr char networkManager[] = "org.freedesktop.NetworkManager";
constexpr char active[] = "org.freedesktop.NetworkManager.Connection.Active";
const uint activated = 2; // NetworkManager's number

/** What is up does not count while it roams, and is still on the way as long as that is unknown. */
ConnectionState withoutRoaming(ConnectionState state, ModemOperator::Roaming roaming)
{
    if (roaming == ModemOperator::Roaming::No)
        return state;
    state.isUp = false;
    state.isComingUp = roaming == ModemOperator::Roaming::Unknown;
    state.reach = ConnectionState::Reach::Unknown;
    state.id.clear();
    if (roaming == ModemOperator::Roaming::Yes)
        state.inItsPlace = ConnectionState::InItsPlace::Roaming;
    return state;
}
} // namespace

NetworkManagerSource::NetworkManagerSource(const ConnectionChoice& choice)
    : m_choice(choice)
{
    m_pause.setSingleShot(true);
    m_retry.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, &NetworkManagerSource::lookWhenDue);
    connect(&m_retry, &QTimer::timeout, this, &NetworkManagerSource::requestLook);
    // The name of an operator may change as fast as anything else.
    connect(&m_operator, &ModemOperator::changed, this, &NetworkManagerSource::requestLook);
    if (QDBusConnection::systemBus().isConnected())
        listen();
    else
        m_presence = Presence::Away;
}

NetworkManagerSource::~NetworkManagerSource() = default;

void NetworkManagerSource::listen()
{
    QDBusConnection bus = QDBusConnection::systemBus();
    auto* const watcher =
        new QDBusServiceWatcher(QLatin1String(networkManager), bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) { setOwner(owner); });
    for (const char* const interface : {networkManager, active})
        bus.connect(QLatin1String(networkManager), QString(), QLatin1String(BusValue::properties),
                    QStringLiteral("PropertiesChanged"), {QLatin1String(interface)}, QString(), this,
                    SLOT(requestLook()));

    QDBusMessage question =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                                       QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetNameOwner"));
    question << QLatin1String(networkManager);
    auto* const answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        // When the service came meanwhile, its coming was told.
        if (!m_hasOwner)
            setOwner(BusValue::text(answer->reply().arguments().value(0)));
    });
}

bool NetworkManagerSource::isKnown() const
{
    return m_presence != Presence::Unknown;
}

bool NetworkManagerSource::isAvailable() const
{
    return m_presence == Presence::There;
}

ConnectionState NetworkManagerSource::state() const
{
    ConnectionState state = m_chosen.state;
    if (!state.isUp)
        return state;
    state.operatorName = m_operator.name();
    return m_choice.forbidsRoaming() ? withoutRoaming(state, m_operator.roaming()) : state;
}

/** Whether it hangs on ModemManager alone if the connection counts; it says so by another look. */
bool NetworkManagerSource::isRoamingUnknown() const
{
    return m_chosen.state.isUp && m_choice.forbidsRoaming() && m_operator.roaming() == ModemOperator::Roaming::Unknown;
}

void NetworkManagerSource::askWhetherUp()
{
    QDBusMessage question = QDBusMessage::createMethodCall(QLatin1String(networkManager), m_chosen.path,
                                                           QLatin1String(BusValue::properties), QStringLiteral("Get"));
    question << QLatin1String(active) << QStringLiteral("State");
    auto* const watcher =
        new QDBusPendingCallWatcher(QDBusConnection::systemBus().asyncCall(question, NetworkLook::patience), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        // There is no answer when the connection is gone, and with it its object.
        const QVariant answer = watcher->reply().arguments().value(0).value<QDBusVariant>().variant();
        Q_EMIT answered(BusValue::number(answer) == activated);
    });
}

void NetworkManagerSource::setOwner(const QString& owner)
{
    m_hasOwner = !owner.isEmpty();
    // What the one before said counts no longer.
    m_look.reset();
    m_retry.stop();
    m_wait = 0;
    m_facts = NetworkFacts();
    m_chosen = NetworkFacts::Chosen();
    m_operator.setModem(QString());
    if (m_presence == Presence::There || !m_hasOwner)
        setPresence(Presence::Away);
    requestLook();
}

void NetworkManagerSource::setPresence(Presence presence)
{
    if (m_presence == presence)
        return;
    m_presence = presence;
    Q_EMIT availabilityChanged();
}

void NetworkManagerSource::requestLook()
{
    m_isWanted = true;
    lookWhenDue();
}

void NetworkManagerSource::lookWhenDue()
{
    if (!m_isWanted || !m_hasOwner || m_look || m_pause.isActive())
        return;
    m_isWanted = false;
    m_pause.start(pause);
    m_look = std::make_unique<NetworkLook>(m_facts);
    connect(m_look.get(), &NetworkLook::finished, this, &NetworkManagerSource::takeLook);
}

void NetworkManagerSource::takeLook()
{
    NetworkLook* const look = m_look.release();
    look->deleteLater();
    if (look->isComplete()) {
        m_wait = 0;
        m_retry.stop();
    } else {
        m_wait = std::min(std::max(2 * m_wait, NetworkLook::patience), longestWait);
        m_retry.start(m_wait);
    }
    const bool isSilent = look->facts().of(NetworkFacts::manager()).isEmpty();
    m_facts = look->facts();
    m_chosen = m_facts.chosen(m_choice);
    m_operator.setModem(m_chosen.modem);
    // Its first word would be that nothing is up, and what is up would be news then.
    const bool isTooEarly = !isSilent && isRoamingUnknown();
    if (isAvailable())
        Q_EMIT changed();
    else if (!isTooEarly)
        setPresence(isSilent ? Presence::Away : Presence::There);
    lookWhenDue();
}
