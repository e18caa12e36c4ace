// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "DisplayChoice.h"

#include <QCoreApplication>
#include <QDir>

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

bool hasWayland(const QStringList& pluginFolders)
{
    return std::any_of(pluginFolders.begin(), pluginFolders.end(), [](const QString& folder) {
        const QDir platforms(folder + QStringLiteral("/platforms"));
        return !platforms.entryList({QStringLiteral("libqwayland*.so")}, QDir::Files).isEmpty();
    });
}
} // namespace

DisplayChoice DisplayChoice::choose(const QProcessEnvironment& environment, const QStringList& pluginFolders)
{
    DisplayChoice display;
    const QStringList asked = environment.value(QStringLiteral("QT_QPA_PLATFORM")).split(QLatin1Char(';'));
    const bool isAsked = asked != QStringList(QString());
    const bool isX = !environment.value(QStringLiteral("DISPLAY")).isEmpty();
    const bool isWaylandSession = !environment.value(QStringLiteral("WAYLAND_DISPLAY")).isEmpty() ||
                                  environment.value(QStringLiteral("XDG_SESSION_TYPE")) == QLatin1String("wayland");
    if (isAsked) {
        if (std::all_of(asked.begin(), asked.end(), isWayland) && !hasWayland(pluginFolders))
            display.problem = NoWayland;
    } else if (isWaylandSession && hasWayland(pluginFolders)) {
        if (!isX)
            display.platform = "wayland";
    } else if (isX) {
        if (isWaylandSession)
            display.platform = "xcb";
    } else {
        display.problem = isWaylandSession ? NoWayland : Missing;
    }
    return display;
}

QString DisplayChoice::error() const
{
    if (problem == NoWayland) {
        return Texts::tr("On Wayland the package %1 is needed, which is not installed.")
            .arg(QLatin1String(waylandPackage));
    }
    return Texts::tr("There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set.");
}
