// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** How the run of a program ended, and whether the user should hear of it. */
struct ProgramEnd {
    bool isBySignal = false;
    int code = 0;      ///< the exit code, or the signal's number (signal(7))
    qint64 lasted = 0; ///< milliseconds

    /**
     * Why the program failed, in words that are followed by the program; empty where it did not. An exit code is an
     * error only within the first 5 seconds, as programs may end with any when their user is done. A crash is told
     * whenever it comes. Other signals are sent by somebody, who need not be told but within these seconds.
     */
    QString failure() const;
};
