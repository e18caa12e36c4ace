// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ConnectionSource.h"

/** A service whose every answer the test gives. */
class FakeSource : public ConnectionSource
{
public:
    bool isAvailable() const override { return available; }
    ConnectionState state() const override { return available ? current : ConnectionState(); }
    bool isStillUp() const override { return stillUp; }

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

    bool available = true;
    bool stillUp = false;
    ConnectionState current;
};
