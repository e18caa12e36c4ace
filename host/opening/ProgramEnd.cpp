// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ProgramEnd.h"

#include <QCoreApplication>

#include <csignal>

namespace
{
const qint64 startingTakesAtMost = 5000; // ms

/** The context of the words. */
class Words
{
    Q_DECLARE_TR_FUNCTIONS(ProgramEnd)

public:
    /** What a program did that the system ended; empty for a signal that somebody sent. */
    static QString ofCrash(int signal)
    {
        switch (signal) {
        case SIGSEGV:
        case SIGBUS:
            return tr("it used memory that it does not have");
        case SIGABRT:
        case SIGTRAP:
            return tr("it noticed a mistake of its own");
        case SIGFPE:
            return tr("it divided by zero or the like");
        case SIGILL:
            return tr("it came to an instruction that the processor does not know");
        case SIGSYS:
            return tr("it asked the system for what is forbidden");
        default:
            return QString();
        }
    }
};
} // namespace

QString ProgramEnd::failure() const
{
    const bool isEarly = lasted < startingTakesAtMost;
    if (!isBySignal)
        return isEarly && code != 0 ? Words::tr("This program ended at once, with the error code %1:").arg(code)
                                    : QString();
    const QString crash = Words::ofCrash(code);
    if (!crash.isEmpty())
        return Words::tr("This program crashed (signal %1, %2):").arg(code).arg(crash);
    return isEarly ? Words::tr("This program was ended by the system or by another program (signal %1):").arg(code)
                   : QString();
}
