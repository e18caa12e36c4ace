// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ConnectionSource.h"

/** A service whose every answer the test gives. */
class FakeSource : public ConnectionSource
{
public:
    bool isKnown() const override { return known; }
    bool isAvailable() const override { return available; }
    bool isSilent() const override { return silent; }
    ConnectionState state() const override { return available ? current : ConnectionState(); }
    void askWhetherUp() override
    {
        ++questions;
        if (answersAtOnce)
            Q_EMIT answered(stillUp);
    }

    void become(const QString& id, ConnectionState::Reach reach = ConnectionState::Reach::Full)
    {
        ConnectionState state;
        state.isUp = !id.isEmpty();
        state.id = id;
        state.reach = reach;
        become(state);
    }

    void become(const ConnectionState& state)
    {
        current = state;
        stillUp = state.isUp;
        Q_EMIT changed();
    }

    void setAvailable(bool isThere)
    {
        available = isThere;
        Q_EMIT availabilityChanged();
    }

    bool known = true;
    bool available = true;
    bool silent = false;
    bool answersAtOnce = true;
    int questions = 0;
    bool stillUp = false;
    ConnectionState current;
};
