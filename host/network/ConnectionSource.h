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
    /** Whether it has found out yet whether it can tell anything. Nothing is to be concluded from it before. */
    virtual bool isKnown() const = 0;

    /** Whether it can tell anything now. A source may come and go. */
    virtual bool isAvailable() const = 0;

    /** Whether it is unavailable for being silent since before we listened: what it says first may have long been so.
     */
    virtual bool isSilent() const { return false; }

    /** The state as last heard; down while unavailable. */
    virtual ConnectionState state() const = 0;

    /** Finds out anew whether the connection of state() is up, which may be late, and says it by answered(). */
    virtual void askWhetherUp() = 0;

Q_SIGNALS:
    /** state() may have changed. It may come without need. */
    void changed();

    /** isAvailable() or isKnown() changed. */
    void availabilityChanged();

    /** The answer to one askWhetherUp(), within about a second of it or at once; no answer is a no. */
    void answered(bool isUp);
};
