// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "NetworkManagerSource.h"

using Reach = ConnectionState::Reach;
using Presence = NetworkObjects::Presence;

NetworkManagerSource::NetworkManagerSource(ConnectionKind kind)
    : m_kind(kind)
{
    for (QTimer* const timer : {&m_pause, &m_settling, &m_checking})
        timer->setSingleShot(true);
    m_settling.setInterval(settlingTime);
    m_checking.setInterval(checkingTime);
    connect(&m_pause, &QTimer::timeout, this, [this] {
        if (m_isWanted)
            takeChange();
    });
    connect(&m_settling, &QTimer::timeout, this, [this] {
        take(m_objects.facts().chosen(m_kind, m_chosen.path));
        Q_EMIT changed();
    });
    connect(&m_checking, &QTimer::timeout, this, &NetworkManagerSource::changed);
    connect(&m_objects, &NetworkObjects::presenceChanged, this, &NetworkManagerSource::takePresence);
    connect(&m_objects, &NetworkObjects::changed, this, &NetworkManagerSource::requestChange);
    // The name of an operator may change as fast as anything else.
    connect(&m_operator, &ModemOperator::changed, this, &NetworkManagerSource::requestChange);
}

bool NetworkManagerSource::isKnown() const
{
    return m_objects.presence() != Presence::Unknown;
}

bool NetworkManagerSource::isAvailable() const
{
    return m_objects.presence() == Presence::There;
}

ConnectionState NetworkManagerSource::state() const
{
    ConnectionState state = m_chosen.state;
    if (state.isUp)
        state.operatorName = m_operator.name();
    // The service says the same while it looks for the first time as where it has found nothing.
    if (state.reach == Reach::Checking && !m_checking.isActive())
        state.reach = Reach::Limited;
    return state;
}

void NetworkManagerSource::askWhetherUp()
{
    // The service tells every change unasked, so nothing is asked of it; but what it has told already, and what lies
    // here unread, is read first.
    QMetaObject::invokeMethod(
        this, [this] { Q_EMIT answered(m_objects.facts().isUp(m_chosen.path)); }, Qt::QueuedConnection);
}

void NetworkManagerSource::takePresence()
{
    m_settling.stop();
    take(m_objects.facts().chosen(m_kind, m_chosen.path));
    Q_EMIT availabilityChanged();
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
    const NetworkFacts::Chosen chosen = m_objects.facts().chosen(m_kind, m_chosen.path);
    // When one device takes over from another, for a moment neither has the traffic.
    if (m_chosen.state.isUp && !chosen.state.isUp) {
        if (!m_settling.isActive())
            m_settling.start();
        return;
    }
    m_settling.stop();
    take(chosen);
    Q_EMIT changed();
}

void NetworkManagerSource::take(const NetworkFacts::Chosen& chosen)
{
    if (chosen.path != m_chosen.path)
        m_checking.start();
    if (chosen.state.reach != Reach::Checking)
        m_checking.stop();
    m_chosen = chosen;
    m_operator.setModem(m_chosen.modem);
}
