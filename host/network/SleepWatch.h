// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

/** Says when the computer falls asleep and wakes up, as logind tells on the system bus; silent where nothing tells. */
class SleepWatch : public QObject
{
    Q_OBJECT

public:
    /** Listens from now on. */
    SleepWatch();

Q_SIGNALS:
    /** The computer is about to sleep. */
    void fallingAsleep();

    /** The computer is awake again. */
    void wokeUp();

private Q_SLOTS:
    void prepareForSleep(bool isStarting);
};
