// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTimer>

#include "ConnectionChoice.h"
#include "ConnectionSource.h"
#include "ModemOperator.h"
#include "NetworkObjects.h"

/**
 * The connections of NetworkManager, over the system bus. The service may say what it wants ten thousand times a
 * second: what follows from it is told every 100 milliseconds at most.
 */
class NetworkManagerSource : public ConnectionSource
{
    Q_OBJECT

public:
    static constexpr int pause = 100;          ///< milliseconds from change to change
    static constexpr int settlingTime = 250;   ///< milliseconds that a connection is missing before it is down
    static constexpr int takeOverTime = 2000;  ///< the same while another is up that the traffic may take
    static constexpr int checkingTime = 10000; ///< milliseconds that the service may look whether a new one is online

    /** Begins to listen for what counts by choice, whose kind is Mobile or Any. */
    explicit NetworkManagerSource(const ConnectionChoice& choice);

    bool isKnown() const override;
    bool isAvailable() const override;
    bool isSilent() const override;
    ConnectionState state() const override;
    void askWhetherUp() override;

private:
    ModemOperator::Roaming roaming() const;
    bool isRoamingUnknown() const;
    NetworkFacts::Chosen chosen() const;
    void requestChange();
    void takeChange();
    void take(const NetworkFacts::Chosen& found);

    const ConnectionChoice m_choice;
    NetworkObjects m_objects;
    NetworkObjects::Presence m_presence; ///< as it was told
    NetworkFacts::Chosen m_chosen;
    ModemOperator m_operator;
    bool m_isWanted = false; ///< a change is
    QTimer m_pause;          ///< runs while the last change is too young for another
    QTimer m_settling;       ///< runs while the connection is missing and not yet down
    QTimer m_checking;       ///< runs while the service may look whether the connection is online
};
