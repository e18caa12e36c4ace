// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "DisplayChoice.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>

#include <algorithm>

namespace
{
/** The context of the texts. */
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(DisplayChoice)
};

#if QT_VERSION < 0x060000
const char waylandPackage[] = "qtwayland5";
#else
const char waylandPackage[] = "qt6-wayland";
#endif

bool isWayland(const QString& platform)
{
    return platform.startsWith(QLatin1String("wayland"));
}

/** "xcb" may stand for more, as in "xcb:option". */
bool isX(const QString& platform)
{
    return platform.section(QLatin1Char(':'), 0, 0) == QLatin1String("xcb");
}

template <typename Function>
Function find(QLibrary& library, const char* name)
{
    return reinterpret_cast<Function>(library.resolve(name));
}

/** For a library that is not there. */
DisplayChoice::Connection unknown()
{
    static char nothing;
    return DisplayChoice::Connection(&nothing, [](void*) {});
}

/** See xcb_connect(3). */
DisplayChoice::Connection connectedByX()
{
    QLibrary library(QStringLiteral("xcb"), 1);
    const auto connect = find<void* (*)(const char*, int*)>(library, "xcb_connect");
    const auto hasError = find<int (*)(void*)>(library, "xcb_connection_has_error");
    const auto disconnect = find<void (*)(void*)>(library, "xcb_disconnect");
    if (!connect || !hasError || !disconnect)
        return unknown();
    const DisplayChoice::Connection connection(connect(nullptr, nullptr), disconnect);
    return hasError(connection.get()) ? nullptr : connection;
}

/** See wl_display_connect() of the Wayland protocol's client library. */
DisplayChoice::Connection connectedByWayland()
{
    QLibrary library(QStringLiteral("wayland-client"), 0);
    const auto connect = find<void* (*)(const char*)>(library, "wl_display_connect");
    const auto disconnect = find<void (*)(void*)>(library, "wl_display_disconnect");
    // A connection that was left to this process can be taken once only.
    if (!connect || !disconnect || qEnvironmentVariableIsSet("WAYLAND_SOCKET"))
        return unknown();
    void* const connection = connect(nullptr);
    return connection ? DisplayChoice::Connection(connection, disconnect) : nullptr;
}

bool hasWayland(const QStringList& pluginFolders)
{
    return std::any_of(pluginFolders.begin(), pluginFolders.end(), [](const QString& folder) {
        const QDir platforms(folder + QStringLiteral("/platforms"));
        return !platforms.entryList({QStringLiteral("libqwayland*.so")}, QDir::Files).isEmpty();
    });
}
} // namespace

DisplayChoice DisplayChoice::choose(const QProcessEnvironment& environment, const QStringList& pluginFolders,
                                    Connect connect)
{
    DisplayChoice display;
    const QStringList asked = environment.value(QStringLiteral("QT_QPA_PLATFORM")).split(QLatin1Char(';'));
    if (asked == QStringList(QString()))
        display.followSession(environment, pluginFolders);
    else
        display.followWish(asked, environment, pluginFolders);
    if (display.problem != None || !display.system)
        return display;
    display.connection = connect(*display.system);
    display.problem = display.connection ? None : Dead;
    return display;
}

void DisplayChoice::use(System chosen, const QProcessEnvironment& environment)
{
    system = chosen;
    name = environment.value(chosen == X ? QStringLiteral("DISPLAY") : QStringLiteral("WAYLAND_DISPLAY"));
    if (chosen == Wayland && name.isEmpty())
        name = QStringLiteral("wayland-0");
}

void DisplayChoice::followWish(const QStringList& platforms, const QProcessEnvironment& environment,
                               const QStringList& pluginFolders)
{
    if (std::all_of(platforms.begin(), platforms.end(), isWayland)) {
        use(Wayland, environment);
        problem = hasWayland(pluginFolders) ? None : NoWayland;
    } else if (std::all_of(platforms.begin(), platforms.end(), isX)) {
        use(X, environment);
        problem = name.isEmpty() ? NoX : None;
    }
}

void DisplayChoice::followSession(const QProcessEnvironment& environment, const QStringList& pluginFolders)
{
    const bool hasX = !environment.value(QStringLiteral("DISPLAY")).isEmpty();
    const bool isWaylandSession = !environment.value(QStringLiteral("WAYLAND_DISPLAY")).isEmpty() ||
                                  environment.value(QStringLiteral("XDG_SESSION_TYPE")) == QLatin1String("wayland");
    if (isWaylandSession && hasWayland(pluginFolders)) {
        if (hasX)
            return;
        platform = "wayland";
        use(Wayland, environment);
    } else if (hasX) {
        platform = isWaylandSession ? "xcb" : "";
        use(X, environment);
    } else {
        problem = isWaylandSession ? NoWayland : Missing;
    }
}

QString DisplayChoice::error() const
{
    switch (problem) {
    case NoWayland:
        return Texts::tr("On Wayland the package %1 is needed, which is not installed.")
            .arg(QLatin1String(waylandPackage));
    case NoX:
        return Texts::tr("QT_QPA_PLATFORM asks for X, but DISPLAY is not set.");
    case Dead:
        return Texts::tr("The display \"%1\" does not answer.").arg(name);
    case Missing:
    case None:
        break;
    }
    return Texts::tr("There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set.");
}

DisplayChoice::Connection DisplayChoice::connected(System system)
{
    return system == X ? connectedByX() : connectedByWayland();
}
