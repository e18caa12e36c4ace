// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include "ConnectionState.h"

/** Something that knows whether a data connection is up. */
class ConnectionSource : public QObject
{
    Q_OBJECT

public:
    /** Whether it can tell anything now. A source may come and go. */
    virtual bool isAvailable() const = 0;

    /** The state as last heard; down while unavailable. */
    virtual ConnectionState state() const = 0;

    /** Whether the connection of state() is up, asked anew: what was heard last may be late. May take a second. */
    virtual bool isStillUp() const = 0;

Q_SIGNALS:
    /** state() may have changed. It may come without need. */
    void changed();

    /** isAvailable() changed. */
    void availabilityChanged();
};
