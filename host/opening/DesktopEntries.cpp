// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "DesktopEntries.h"

#include <QFile>

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>

#include <memory>

namespace
{
struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};

template <typename Object>
using Owned = std::unique_ptr<Object, Unref>;

Owned<GDesktopAppInfo> entryAt(const QString& path)
{
    return Owned<GDesktopAppInfo>(g_desktop_app_info_new_from_filename(QFile::encodeName(path).constData()));
}

struct Launch {
    DesktopPrograms::Start start;
    void (*cutOff)();
};

void cutOff(gpointer launch)
{
    static_cast<Launch*>(launch)->cutOff();
}

void takeProcess(GDesktopAppInfo*, GPid process, gpointer launch)
{
    static_cast<Launch*>(launch)->start.process = process;
}

/** The session bus as GIO has it. By itself GIO would end this program together with the bus. */
Owned<GDBusConnection> sessionBus()
{
    Owned<GDBusConnection> bus(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
    if (bus)
        g_dbus_connection_set_exit_on_close(bus.get(), FALSE);
    return bus;
}

QString iconOf(GAppInfo* program)
{
    GIcon* const icon = program ? g_app_info_get_icon(program) : nullptr; // the program's
    if (!icon)
        return QString();
    if (G_IS_THEMED_ICON(icon)) {
        const gchar* const* const names = g_themed_icon_get_names(G_THEMED_ICON(icon));
        return names ? QString::fromUtf8(names[0]) : QString();
    }
    gchar* const text = g_icon_to_string(icon);
    QString path = QFile::decodeName(text);
    g_free(text);
    return path;
}

DesktopPrograms::Start start(const QString& path, void (*cutOffChild)())
{
    Launch launch = {DesktopPrograms::Start(), cutOffChild};
    const Owned<GDesktopAppInfo> entry = entryAt(path);
    if (!entry)
        return launch.start;
    const Owned<GDBusConnection> bus = sessionBus();
    const int flags =
        G_SPAWN_SEARCH_PATH | G_SPAWN_DO_NOT_REAP_CHILD | G_SPAWN_STDOUT_TO_DEV_NULL | G_SPAWN_STDERR_TO_DEV_NULL;
    launch.start.isStarted = g_desktop_app_info_launch_uris_as_manager(
        entry.get(), nullptr, nullptr, GSpawnFlags(flags), cutOff, &launch, takeProcess, &launch, nullptr);
    return launch.start;
}

QString iconOfEntry(const QString& path)
{
    const Owned<GDesktopAppInfo> entry = entryAt(path);
    return iconOf(entry ? G_APP_INFO(entry.get()) : nullptr);
}

QString iconOfScheme(const QString& scheme)
{
    const Owned<GAppInfo> program(g_app_info_get_default_for_uri_scheme(scheme.toUtf8().constData()));
    return iconOf(program.get());
}
} // namespace

const DesktopEntries desktopEntries = {start, iconOfEntry, iconOfScheme};
