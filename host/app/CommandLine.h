// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <optional>

#include "ConnectionKind.h"

/** What the user asked for on the command line. */
struct CommandLine {
    enum Action { ShowWindow, ListLinks, ShowDecisions, ShowHelp, ShowVersion, Refuse };

    Action action = ShowWindow;
    QString error;                            ///< with Refuse: one line that says what is wrong
    QString dataFolder;                       ///< empty for the default
    QString pluginFolder;                     ///< empty for the installed one
    QString language;                         ///< empty for the one chosen in the program, or else the system's
    std::optional<ConnectionKind> connection; ///< none for the one chosen in the program
    bool isHidden = false;                    ///< the window waits in the tray

    /** What asks for the same again, and for a window that waits in the tray. Paths are absolute. */
    QStringList againHidden() const;

    /** What main() was given, the program's name first; the application object takes out what it knows. */
    static QStringList arguments(int argc, char** argv);

    /**
     * Reads such arguments. Needs no application object. The error is in the language of the texts that are there: who
     * shows it loads them first, in the language that is told even beside an error, and reads the arguments again.
     */
    static CommandLine parse(const QStringList& arguments);

    /** The answer to --help, in the language of the installed translations. Needs the application object. */
    static QString helpText();

    /** What is said where the program runs already with this folder, as the process with this number. */
    static QString runningAlready(qint64 process, const QString& folder);

    /** What is said where the folder of plug-ins that was asked for has none. */
    static QString noPlugins(const QString& folder);

    /** What is said where no program with this folder can be asked for its decisions. */
    static QString notRunning(const QString& folder);

    /** The answer to --why of a program that has decided nothing yet. */
    static QString noDecisionsText();

    /** The answer to --version. */
    static QString versionText();
};
