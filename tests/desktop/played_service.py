# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""A service of the system or of the desktop as the program meets it on a bus, played by dbusmock."""

import os
import signal
import subprocess
import sys

import dbus

from session import die_with_parent, end
from waiting import wait_for

MOCK = "org.freedesktop.DBus.Mock"


class PlayedService:
    """A played service on the system or session bus of this environment, there when the constructor returns."""

    def __init__(self, name, *arguments, bus="SYSTEM"):
        self.name = name
        self._process = subprocess.Popen([sys.executable, "-m", "dbusmock", *arguments], stdin=subprocess.DEVNULL,
                                         stdout=subprocess.DEVNULL, preexec_fn=die_with_parent)
        self._bus = dbus.bus.BusConnection(os.environ[f"DBUS_{bus}_BUS_ADDRESS"])
        wait_for(lambda: self._bus.name_has_owner(name), f"{name} on the bus")

    def at(self, path, interface=MOCK):
        return dbus.Interface(self._bus.get_object(self.name, path), interface)

    def kill(self):
        """Ends it in the midst of whatever it does."""
        self._process.kill()
        self._process.wait()
        wait_for(lambda: not self._bus.name_has_owner(self.name), f"the end of {self.name}")

    def stop(self):
        """It keeps its name and says nothing more, until `go_on`."""
        self._process.send_signal(signal.SIGSTOP)

    def go_on(self):
        self._process.send_signal(signal.SIGCONT)

    def close(self):
        self.go_on()
        end(self._process)
        self._bus.close()
