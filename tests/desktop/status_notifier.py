# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""A tray that programs reach over the session bus (freedesktop, "StatusNotifierItem"), played by dbusmock."""

import dbus

from played_service import PlayedService

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
PATH = "/StatusNotifierWatcher"


class StatusNotifierTray(PlayedService):

    def __init__(self):
        super().__init__(WATCHER, "--session", WATCHER, PATH, WATCHER, bus="SESSION")
        self._watcher = self.at(PATH)
        self._watcher.AddProperty(WATCHER, "ProtocolVersion", dbus.Int32(0))
        self._watcher.AddProperty(WATCHER, "IsStatusNotifierHostRegistered", True)
        self._watcher.AddMethod(WATCHER, "RegisterStatusNotifierItem", "s", "", "")
        self._tell("Registered")

    def set_host(self, is_there):
        """The service stays; what shows the icons comes or goes."""
        self._watcher.UpdateProperties(WATCHER, {"IsStatusNotifierHostRegistered": is_there})
        self._tell("Registered" if is_there else "Unregistered")

    def _tell(self, event):
        self._watcher.EmitSignal(WATCHER, f"StatusNotifierHost{event}", "", [])

    def items(self):
        """The names on the bus of the icons that were put into it."""
        return [str(arguments[0]) for _, arguments in self._watcher.GetMethodCalls("RegisterStatusNotifierItem")]

    def click(self, item):
        dbus.Interface(self._bus.get_object(item, "/StatusNotifierItem"), ITEM).Activate(0, 0)
