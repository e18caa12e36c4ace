// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include "ConnectionKind.h"

/** What the user asked for on the command line. */
struct CommandLine {
    enum Action { ShowWindow, ListLinks, ShowHelp, ShowVersion, Refuse };

    Action action = ShowWindow;
    QString error;        ///< with Refuse: one line that says what is wrong
    QString dataFolder;   ///< empty for the default
    QString pluginFolder; ///< empty for the installed one
    QString language;     ///< empty for the one chosen in the program, or else the system's
    ConnectionKind connection = ConnectionKind::Mobile;

    /** Reads the arguments. Needs no application object. */
    static CommandLine parse(int argc, char** argv);

    /** The answer to --help, in the language of the installed translations. Needs the application object. */
    static QString helpText();

    /** The answer to --version. */
    static QString versionText();
};
