// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include "ConnectionState.h"

/**
 * Decides which changes of the connection are worth telling: a plug-in opens its links each time it hears of one, so
 * what only flickers is kept from it. It has no clock; times are milliseconds that only grow.
 * docs/connection-rules.md has the rules as a table.
 */
class TransitionRules
{
public:
    static constexpr qint64 reachLimit = 10000;   ///< how long a new connection may take to reach the Internet
    static constexpr qint64 handOverLimit = 5000; ///< how long a connection may be gone and still be the same
    static constexpr qint64 wakeUpLimit = 60000;  ///< the same after the computer slept
    static constexpr qint64 arrivalLimit = 30000; ///< how much longer, if it is on its way then

    enum class Announcement { None, Up, Down };

    /** What to tell, and why; the reason is English, for the log, and empty when there is nothing to say. */
    struct Decision {
        Announcement announcement = Announcement::None;
        QString reason;
    };

    /** The state was seen. Seeing it again without a change is harmless. */
    Decision observe(const ConnectionState& state, qint64 now);

    /** The deadline may have passed. */
    Decision timePassed(qint64 now);

    /** What tells the state went away, which is no news of the connection itself. */
    Decision serviceLost(qint64 now);

    /** It is back; what is observed next is its first word, which may come before it has found what is up. */
    void serviceReturned(qint64 now);

    /** The computer is about to sleep. */
    void fallAsleep();

    /** It is awake again. */
    void wakeUp(qint64 now);

    /** The Up just announced was down again when asked. */
    void withdraw();

    /** When timePassed() is to be called; -1 for never. */
    qint64 deadline() const;

private:
    enum class Phase {
        Unseen,
        Down,
        Waiting, ///< up and not told yet
        Up,
        Gap, ///< down and not told yet
    };
    /** What made the gap. */
    enum class Gap { Network, ServiceLost, ServiceIsBack };

    Decision firstSight(const ConnectionState& state);
    Decision comeUp(const ConnectionState& state, qint64 now);
    Decision judgeReach(const ConnectionState& state, qint64 now);
    Decision staysUp(const ConnectionState& state);
    Decision goDown(qint64 now);
    Decision inGap(const ConnectionState& state, qint64 now);
    Decision resume(const ConnectionState& state, const QString& reason);
    Decision endGap();

    Phase m_phase = Phase::Unseen;
    Gap m_gap = Gap::Network;
    QString m_id;              ///< of the connection that is, or last was, up
    bool m_isComingUp = false; ///< a connection is
    bool m_isAsleep = false;
    qint64 m_wokeUp = -wakeUpLimit;
    qint64 m_handOverEnds = -1; ///< until when a gap may end with any connection
    qint64 m_deadline = -1;
};
