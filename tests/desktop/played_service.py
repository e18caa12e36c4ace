# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""A service of the system or of the desktop as the program meets it on a bus, played by dbusmock."""

import sys

from service import Service

MOCK = "org.freedesktop.DBus.Mock"


class PlayedService(Service):
    """A played service on the system or session bus of this environment, there when the constructor returns."""

    def __init__(self, name, *arguments, bus="SYSTEM"):
        super().__init__(name, [sys.executable, "-m", "dbusmock", *arguments], bus)

    def at(self, path, interface=MOCK):
        return super().at(path, interface)
