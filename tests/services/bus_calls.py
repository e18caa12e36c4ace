# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Who calls whom on the system bus, as a monitor of the bus sees it."""

import os
import re

import dbus

from session import Program
from waiting import wait_for

_CALL = re.compile(
    r"^method call time=\S+ sender=(\S+) -> destination=\S+ serial=\d+ path=\S+; interface=(\S+); member=(\S+)$", re.MULTILINE)


class BusCalls:
    """The calls on the system bus from now on."""

    def __init__(self, log):
        self._bus = dbus.bus.BusConnection(os.environ["DBUS_SYSTEM_BUS_ADDRESS"])
        self._marks = 0
        self._monitor = Program(["dbus-monitor", "--system", "type='method_call'"], log)
        wait_for(self._hears_a_mark, "the monitor of the bus")

    def of(self, process):
        """What a process that is still there has called so far: "interface.member" each."""
        # The bus keeps the order: whoever sees the mark has seen what was called before it.
        wait_for(self._hears_a_mark, "the monitor of the bus")
        names = [name for name in self._bus.list_names()
                 if name.startswith(":") and self._process_of(name) == process.pid]
        return [f"{interface}.{member}" for sender, interface, member in _CALL.findall(self._monitor.output())
                if sender in names]

    def close(self):
        self._monitor.close()
        self._bus.close()

    def _hears_a_mark(self):
        self._marks += 1
        mark = f"com.example.mark{self._marks}"
        self._bus.name_has_owner(mark)
        return f'"{mark}"' in self._monitor.output()

    def _process_of(self, name):
        try:
            return self._bus.call_blocking("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                           "GetConnectionUnixProcessID", "s", (name,))
        except dbus.DBusException:
            return None  # It has just gone.
