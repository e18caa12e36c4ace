# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Debian's ModemManager on the system bus of this environment, with the polkit that it asks."""

import json

from at_modem import AtModem
from namespaces import run
from network_manager import Connection
from played_service import PlayedService
from service import Service
from waiting import wait_for

NAME = "org.freedesktop.ModemManager1"
MANAGER = "/org/freedesktop/ModemManager1"
_DEVICE = "/virtual/modem"  # as the service calls the one of the profile "modem"


class Polkit(PlayedService):
    """Allows everything."""

    def __init__(self):
        super().__init__("org.freedesktop.PolicyKit1", "--template", "polkitd")
        self.at("/org/freedesktop/PolicyKit1/Authority").AllowUnknown(True)


class ModemManager(Service):
    """Knows no modem at first, and looks for none: not even one of this computer. Its log lies in its folder."""

    def __init__(self, folder):
        """`folder` is made."""
        folder.mkdir()
        self._folder = folder
        super().__init__(NAME, ["env", "-C", folder, "ModemManager", "--debug", "--test-enable", "--test-no-udev",
                                "--test-no-qrtr", "--no-auto-scan"], log=folder / "log")

    def add(self, operator):
        """Plugs a modem in that is registered with this operator."""
        modem = AtModem(self._folder, operator)
        self.find(modem)
        self.wait_until_registered()
        return modem

    def find(self, modem):
        """Makes the service know a modem: once it is there, and again after `start` and after sleep."""
        self.at(MANAGER, f"{NAME}.Test").SetProfile("modem", "generic", list(modem.ports))

    def take_out(self):
        """Lets the modem vanish from the bus, as one does that is pulled out or loses its power."""
        self.at(MANAGER, NAME).InhibitDevice(_DEVICE, True)
        self.wait_until_gone()

    def put_back(self):
        """After `take_out`: the service begins anew with it."""
        self.at(MANAGER, NAME).InhibitDevice(_DEVICE, False)

    def wait_until_gone(self):
        wait_for(lambda: not self.state(), "the end of the modem")

    def wait_until_registered(self):
        wait_for(lambda: self.state() == "registered", "the modem to be registered")

    def state(self):
        """Of the modem, such as "registered"; empty where there is none."""
        modems = json.loads(run("mmcli", "--list-modems", "--output-json"))["modem-list"]
        return json.loads(run("mmcli", "--modem", modems[0], "--output-json"))["modem"]["generic"]["state"] if modems else ""


class Plan(Connection):
    """The stored connection "Mobile plan", which is down, by whatever modem there is."""

    def __init__(self):
        super().__init__("Mobile plan", "gsm", "*", gsm_apn="internet", ipv4_route__metric="700")
