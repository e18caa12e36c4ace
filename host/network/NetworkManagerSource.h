// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTimer>

#include <memory>

#include "ConnectionChoice.h"
#include "ConnectionSource.h"
#include "ModemOperator.h"
#include "NetworkFacts.h"

class NetworkLook;

/**
 * The connections of NetworkManager, over the system bus. The service may start late, stop and come back, say nonsense
 * or nothing, and say it ten thousand times a second: nothing here waits for it, and it is looked at every 100
 * milliseconds at most.
 */
class NetworkManagerSource : public ConnectionSource
{
    Q_OBJECT

public:
    static constexpr int pause = 100;         ///< milliseconds from look to look
    static constexpr int longestWait = 10000; ///< milliseconds until a service that was silent is asked again

    /** Begins to listen for what counts by choice, whose kind is Mobile or Any. */
    explicit NetworkManagerSource(const ConnectionChoice& choice);
    ~NetworkManagerSource() override;

    bool isKnown() const override;
    bool isAvailable() const override;
    ConnectionState state() const override;
    void askWhetherUp() override;

private Q_SLOTS:
    /** Something of what a look finds may have changed. */
    void requestLook();

private:
    enum class Presence {
        Unknown, ///< nothing has answered yet
        Away,
        There,
    };

    bool isRoamingUnknown() const;
    void listen();
    void setOwner(const QString& owner);
    void setPresence(Presence presence);
    void lookWhenDue();
    void takeLook();

    const ConnectionChoice m_choice;
    Presence m_presence = Presence::Unknown;
    bool m_hasOwner = false; ///< somebody has the service's name, and may answer
    bool m_isWanted = false; ///< a look is
    QTimer m_pause;          ///< runs while the last look is too young for another
    QTimer m_retry;
    int m_wait = 0;                      ///< milliseconds until the next retry
    std::unique_ptr<NetworkLook> m_look; ///< the one under way
    NetworkFacts m_facts;
    NetworkFacts::Chosen m_chosen;
    ModemOperator m_operator;
};
