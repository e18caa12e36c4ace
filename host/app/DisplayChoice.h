// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/**
 * The display on which the window will be, looked at before the toolkit does: that one ends the program where it has
 * none, and looks for X on a Wayland desktop without X.
 */
struct DisplayChoice {
    enum Problem {
        None,
        Missing,   ///< there is no graphical session
        NoWayland, ///< there is a Wayland session, and the toolkit's part for it is not installed
    };

    Problem problem = None;
    QByteArray platform; ///< the toolkit's name for the display that can be used; empty where its own choice is right

    /** Chooses by the environment of the program. The toolkit's parts lie in pluginFolders. */
    static DisplayChoice choose(const QProcessEnvironment& environment, const QStringList& pluginFolders);

    /** One line that says what is wrong, in the language of the installed translations. */
    QString error() const;
};
