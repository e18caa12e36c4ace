# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""A service of the system or of the desktop as the program meets it on a bus."""

import os
import signal
import subprocess

import dbus

from session import die_with_parent, end
from waiting import wait_for


class Service:
    """A process with a name on the system or session bus of this environment, there when the constructor returns."""

    def __init__(self, name, command, bus="SYSTEM", log=os.devnull):
        self.name = name
        self._command = command
        self._log = log
        self._bus = dbus.bus.BusConnection(os.environ[f"DBUS_{bus}_BUS_ADDRESS"])
        self.start()

    def start(self):
        """Once more, after `kill`."""
        with open(self._log, "ab") as output:
            self._process = subprocess.Popen(self._command, stdin=subprocess.DEVNULL, stdout=output, stderr=output,
                                             preexec_fn=die_with_parent)
        wait_for(lambda: self._bus.name_has_owner(self.name), f"{self.name} on the bus")

    def at(self, path, interface):
        return dbus.Interface(self._bus.get_object(self.name, path), interface)

    def kill(self, number=signal.SIGKILL):
        """Ends it in the midst of whatever it does, or by another signal."""
        self._process.send_signal(number)
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
