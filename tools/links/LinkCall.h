// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QCommandLineParser>
#include <QStringList>

/** What a command was given, and how it answers. */
struct LinkCall {
    /** What the process ends with. */
    enum Result {
        Done = 0,
        NotDone = 1,   ///< something was found, or could not be done
        WrongUsage = 2 ///< of the command line
    };

    QStringList words;       ///< what is no option, less the command
    QCommandLineParser line; ///< the options

    /** The word at index, empty where there are fewer: most commands end in a file that may be left out. */
    QString word(int index) const { return words.value(index); }

    /** Prints bytes as they are. */
    static void print(const QByteArray& bytes);

    /** Prints a sentence on a line of its own. */
    static void say(const QString& sentence);

    /** Says on the error output why nothing is done; answers result. */
    static Result refuse(const QString& sentence, Result result = NotDone);
};
