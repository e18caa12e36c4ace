// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

/** Catches what is written to the debug, information and warning channels while it lives; only one at a time. */
class RecordingTrace
{
public:
    RecordingTrace();
    ~RecordingTrace();

    QStringList debugLines;
    QStringList infoLines;
    QStringList warningLines;

    /** How many debug lines match the whole regular expression. */
    int countDebug(const QString& pattern) const;

    /** How many warning lines match the whole regular expression. */
    int countWarnings(const QString& pattern) const;

    /** Empty when the debug lines are exactly these, one regular expression a line, in order; else what is different.
     */
    QString debugDifference(const QStringList& patterns) const;

private:
    RecordingTrace(const RecordingTrace&);
    RecordingTrace& operator=(const RecordingTrace&);
};

/** The debug channel is off while this lives, where the toolkit lets it be. */
class DebugChannelOff
{
public:
    DebugChannelOff();
    ~DebugChannelOff();

    /** Whether the toolkit lets it be off. */
    static bool isPossible();
};

/** The text without the times of day in it. */
QString withoutTimes(QString text);

/** Patterns for the pieces of a trace line: a time of day, a source file, a line number. */
namespace TracePattern
{
extern const char time[];
extern const char file[];
extern const char line[];
} // namespace TracePattern

/** The pattern of a trace line, in which %T stands for the time, %F for the source file and %L for the line. */
QString tracePattern(const char* line);
