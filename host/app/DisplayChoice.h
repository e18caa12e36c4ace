// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

/**
 * The display on which the window will be, looked at before the toolkit does: that one ends the program where it has
 * none, and looks for X on a Wayland desktop without X.
 */
struct DisplayChoice {
    enum Problem {
        None,
        Missing,   ///< there is no graphical session
        NoWayland, ///< there is a Wayland session, and the toolkit's part for it is not installed
        NoX,       ///< the user asks for X, of which there is none
        Dead,      ///< nobody answers at the display
    };

    enum System { X, Wayland };

    /** A connection to a display, which ends with its last copy; null where nobody answers. */
    using Connection = std::shared_ptr<void>;

    /** Connects to the display of system to which the environment of this process leads. */
    using Connect = Connection (*)(System system);

    Problem problem = None;
    QByteArray platform;          ///< the toolkit's name for the system to use; empty where its own choice is right
    std::optional<System> system; ///< the one that will be used; none where the toolkit chooses
    QString name;                 ///< of its display
    Connection connection;        ///< to be kept until the toolkit has its own: a server may begin anew without any

    /** Chooses by the environment of the program. The toolkit's parts lie in pluginFolders. */
    static DisplayChoice choose(const QProcessEnvironment& environment, const QStringList& pluginFolders,
                                Connect connect = &DisplayChoice::connected);

    /** One line that says what is wrong, in the language of the installed translations. */
    QString error() const;

    /** By the library that the toolkit uses; not null where that is missing, as the toolkit has words for this. */
    static Connection connected(System system);

private:
    void use(System chosen, const QProcessEnvironment& environment);
    void followWish(const QStringList& platforms, const QProcessEnvironment& environment,
                    const QStringList& pluginFolders);
    void followSession(const QProcessEnvironment& environment, const QStringList& pluginFolders);
};
