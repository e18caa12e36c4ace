// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "TransitionRules.h"

#include <algorithm>

using Reach = ConnectionState::Reach;
using Decision = TransitionRules::Decision;

Decision TransitionRules::observe(const ConnectionState& state, qint64 now)
{
    m_isComingUp = state.isComingUp;
    switch (m_phase) {
    case Phase::Unseen:
        return firstSight(state);
    case Phase::Down:
        return state.isUp ? comeUp(state, now) : Decision();
    case Phase::Waiting:
        if (state.isUp)
            return judgeReach(state, now);
        withdraw();
        return {Announcement::None, QStringLiteral("went down before it was told")};
    case Phase::Up:
        return state.isUp ? staysUp(state) : goDown(now);
    case Phase::Gap:
        return inGap(state, now);
    }
    return Decision();
}

Decision TransitionRules::firstSight(const ConnectionState& state)
{
    m_phase = state.isUp ? Phase::Up : Phase::Down;
    m_id = state.id;
    // The user may start the program any number of times while one connection lasts.
    return {Announcement::None, state.isUp ? QStringLiteral("was up before the program was there") : QString()};
}

Decision TransitionRules::comeUp(const ConnectionState& state, qint64 now)
{
    m_phase = Phase::Waiting;
    m_deadline = now + reachLimit;
    Decision decision = judgeReach(state, now);
    if (decision.announcement == Announcement::None)
        decision.reason = QStringLiteral("up, waiting to be in the Internet");
    return decision;
}

Decision TransitionRules::judgeReach(const ConnectionState& state, qint64 now)
{
    m_id = state.id;
    QString reason;
    if (state.reach == Reach::Full)
        reason = QStringLiteral("up and in the Internet");
    else if (state.reach == Reach::Portal)
        reason = QStringLiteral("up, and a portal wants a login");
    else if (now >= m_deadline)
        reason = QStringLiteral("up, but not in the Internet within %1 s").arg(reachLimit / 1000);
    else
        return Decision();
    m_phase = Phase::Up;
    m_deadline = -1;
    return {Announcement::Up, reason};
}

Decision TransitionRules::staysUp(const ConnectionState& state)
{
    if (state.id == m_id)
        return Decision();
    m_id = state.id;
    return {Announcement::None, QStringLiteral("another connection took over")};
}

Decision TransitionRules::goDown(qint64 now)
{
    m_phase = Phase::Gap;
    m_gap = Gap::Network;
    m_handOverEnds = m_isAsleep ? -1 : now + handOverLimit;
    m_deadline = m_isAsleep ? -1 : std::max(m_handOverEnds, m_wokeUp + wakeUpLimit);
    return {Announcement::None, QStringLiteral("down, waiting whether it comes back")};
}

Decision TransitionRules::inGap(const ConnectionState& state, qint64 now)
{
    if (!state.isUp)
        return Decision();
    if (now <= m_handOverEnds)
        return resume(state, QStringLiteral("handed over"));
    if (state.id == m_id && m_gap == Gap::Network)
        return resume(state, QStringLiteral("was up before sleep"));
    if (state.id == m_id && m_gap == Gap::ServiceIsBack)
        return resume(state, QStringLiteral("outlived a restart of the service"));
    return comeUp(state, now);
}

Decision TransitionRules::resume(const ConnectionState& state, const QString& reason)
{
    m_phase = Phase::Up;
    m_deadline = -1;
    m_id = state.id;
    return {Announcement::None, reason + QStringLiteral(", not a new connection")};
}

Decision TransitionRules::endGap()
{
    // Modems that lost their power are slow to find their network, and the service begins only then.
    if (m_isComingUp && m_gap == Gap::Network && m_deadline == m_wokeUp + wakeUpLimit) {
        m_deadline += arrivalLimit;
        return Decision();
    }
    withdraw();
    return {Announcement::Down, QStringLiteral("down")};
}

Decision TransitionRules::timePassed(qint64 now)
{
    if (m_deadline < 0 || now < m_deadline)
        return Decision();
    if (m_phase == Phase::Gap)
        return endGap();
    ConnectionState stillUp;
    stillUp.isUp = true;
    stillUp.id = m_id;
    return judgeReach(stillUp, now);
}

Decision TransitionRules::serviceLost(qint64 now)
{
    if (m_phase == Phase::Waiting)
        withdraw();
    if (m_phase == Phase::Unseen)
        m_phase = Phase::Down;
    if (m_phase != Phase::Up && m_phase != Phase::Gap)
        return Decision();
    m_phase = Phase::Gap;
    m_gap = Gap::ServiceLost;
    m_handOverEnds = -1;
    m_deadline = now + handOverLimit;
    return {Announcement::None, QStringLiteral("the service is gone, waiting whether it comes back")};
}

void TransitionRules::serviceReturned(qint64 now)
{
    m_gap = Gap::ServiceIsBack;
    if (m_phase == Phase::Gap)
        m_deadline = now + handOverLimit;
}

void TransitionRules::fallAsleep()
{
    m_isAsleep = true;
    if (m_phase == Phase::Gap && m_gap == Gap::Network) {
        m_handOverEnds = -1;
        m_deadline = -1;
    }
}

void TransitionRules::wakeUp(qint64 now)
{
    m_isAsleep = false;
    m_wokeUp = now;
    if (m_phase == Phase::Gap && m_gap == Gap::Network)
        m_deadline = now + wakeUpLimit;
}

void TransitionRules::withdraw()
{
    m_phase = Phase::Down;
    m_deadline = -1;
}

qint64 TransitionRules::deadline() const
{
    return m_deadline;
}
