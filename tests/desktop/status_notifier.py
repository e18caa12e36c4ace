# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""A tray that programs reach over the session bus (freedesktop, "StatusNotifierItem"), played by dbusmock."""

from pathlib import Path

import dbus

from played_service import PlayedService

WATCHER = "org.kde.StatusNotifierWatcher"
TEMPLATE = Path(__file__).with_name("status_notifier_template.py")


class StatusNotifierTray(PlayedService):

    def __init__(self):
        super().__init__(WATCHER, "--session", "--template", str(TEMPLATE), bus="SESSION")
        self._watcher = self.at("/StatusNotifierWatcher")

    def set_host(self, is_there):
        """The service stays; what shows the icons comes or goes."""
        self._watcher.UpdateProperties(WATCHER, {"IsStatusNotifierHostRegistered": is_there})
        event = "Registered" if is_there else "Unregistered"
        self._watcher.EmitSignal(WATCHER, f"StatusNotifierHost{event}", "", [])

    def items(self):
        """The names on the bus of the icons that were put into it."""
        return [str(arguments[0]) for _, arguments in self._watcher.GetMethodCalls("RegisterStatusNotifierItem")]

    def click(self, item):
        dbus.Interface(self._bus.get_object(item, "/StatusNotifierItem"), "org.kde.StatusNotifierItem").Activate(0, 0)
