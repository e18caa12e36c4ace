// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "NetworkManagerSource.h"

using Reach = ConnectionState::Reach;
using Presence = NetworkObjects::Presence;

namespace
{
/** What is up does not count while it roams, and is still on the way as long as that is unknown. */
ConnectionState withoutRoaming(ConnectionState state, ModemOperator::Roaming roaming)
{
    if (roaming == ModemOperator::Roaming::No)
        return state;
    state.isUp = false;
    state.isComingUp = roaming == ModemOperator::Roaming::Unknown;
    state.reach = Reach::Unknown;
    state.id.clear();
    if (roaming == ModemOperator::Roaming::Yes)
        state.inItsPlace = ConnectionState::InItsPlace::Roaming;
    return state;
}
} // namespace

NetworkManagerSource::NetworkManagerSource(const ConnectionChoice& choice)
    : m_choice(choice)
    , m_presence(m_objects.presence())
{
    for (QTimer* const timer : {&m_pause, &m_settling, &m_checking})
        timer->setSingleShot(true);
    m_checking.setInterval(checkingTime);
    connect(&m_pause, &QTimer::timeout, this, [this] {
        if (m_isWanted)
            takeChange();
    });
    connect(&m_settling, &QTimer::timeout, this, [this] { take(chosen()); });
    connect(&m_checking, &QTimer::timeout, this, &NetworkManagerSource::changed);
    connect(&m_objects, &NetworkObjects::presenceChanged, this, [this] { take(chosen()); });
    connect(&m_objects, &NetworkObjects::changed, this, &NetworkManagerSource::requestChange);
    // The name of an operator may change as fast as anything else.
    connect(&m_operator, &ModemOperator::changed, this, &NetworkManagerSource::requestChange);
}

bool NetworkManagerSource::isKnown() const
{
    return m_presence != Presence::Unknown;
}

bool NetworkManagerSource::isAvailable() const
{
    return m_presence == Presence::There;
}

bool NetworkManagerSource::isSilent() const
{
    return m_objects.isSilent();
}

ConnectionState NetworkManagerSource::state() const
{
    ConnectionState state = m_chosen.state;
    if (!state.isUp)
        return state;
    state.operatorName = m_chosen.modem.isEmpty() ? QString() : m_operator.name();
    // The service says the same while it looks for the first time as where it has found nothing.
    if (state.reach == Reach::Checking && !m_checking.isActive())
        state.reach = Reach::Limited;
    return m_choice.forbidsRoaming() ? withoutRoaming(state, roaming()) : state;
}

ModemOperator::Roaming NetworkManagerSource::roaming() const
{
    return m_chosen.modem.isEmpty() ? ModemOperator::Roaming::No : m_operator.roaming();
}

/** Whether it hangs on ModemManager alone if the connection counts; it says so by another change. */
bool NetworkManagerSource::isRoamingUnknown() const
{
    return m_chosen.state.isUp && m_choice.forbidsRoaming() && roaming() == ModemOperator::Roaming::Unknown;
}

void NetworkManagerSource::askWhetherUp()
{
    // The service tells every change unasked, so nothing is asked of it; but what it has told already, and what lies
    // here unread, is read first.
    QMetaObject::invokeMethod(
        this, [this] { Q_EMIT answered(m_objects.facts().isUp(m_chosen.path)); }, Qt::QueuedConnection);
}

NetworkFacts::Chosen NetworkManagerSource::chosen() const
{
    return m_objects.facts().chosen(m_choice, m_chosen.path);
}

void NetworkManagerSource::requestChange()
{
    m_isWanted = true;
    if (!m_pause.isActive())
        takeChange();
}

void NetworkManagerSource::takeChange()
{
    m_isWanted = false;
    m_pause.start(pause);
    const NetworkFacts::Chosen found = chosen();
    // When one device takes over from another, for a moment neither has the traffic.
    if (!m_chosen.state.isUp || found.state.isUp)
        take(found);
    else if (!m_settling.isActive())
        m_settling.start(m_objects.facts().isTakeOverLikely(m_choice) ? takeOverTime : settlingTime);
}

void NetworkManagerSource::take(const NetworkFacts::Chosen& found)
{
    m_settling.stop();
    if (found.path != m_chosen.path)
        m_checking.start();
    if (found.state.reach != Reach::Checking)
        m_checking.stop();
    m_chosen = found;
    // One that is there is asked before it is needed: when its plan comes up, everything is known.
    m_operator.setModem(m_chosen.modem.isEmpty() ? m_objects.facts().modem() : m_chosen.modem);
    if (m_presence == m_objects.presence()) {
        Q_EMIT changed();
    } else if (!isRoamingUnknown()) {
        // Before that its first word would be that nothing is up, and what is up would be news then.
        m_presence = m_objects.presence();
        Q_EMIT availabilityChanged();
    }
}
