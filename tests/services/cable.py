# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Cables of this network into another one, which stands for the rest of the world."""

import sys
from pathlib import Path

from namespaces import FOLDER, run
from network_manager import Connection
from session import Program
from waiting import wait_for

_OUTSIDE = "outside"
_INSIDE_OF = ("ip", "netns", "exec", _OUTSIDE)
_SERVER = "10.255.255.1"  # far behind every cable


def make_outside():
    """Once for all cables."""
    run("ip", "netns", "add", _OUTSIDE)
    outside("ip", "link", "set", "lo", "up")
    outside("ip", "address", "add", f"{_SERVER}/32", "dev", "lo")


def outside(*command):
    """Runs a command in the other network."""
    return run(*_INSIDE_OF, *command)


class Reach:
    """Says how far cables and the plan of a modem let one go, by a page in the other network; all the way at first."""

    settings = f"uri=http://{_SERVER}/\n"  # where NetworkManager finds it

    def __init__(self, folder):
        """`folder` is made."""
        folder.mkdir()
        self._folder = folder
        self.set_cables("full")
        self.set_plan("full")
        self._server = Program([*_INSIDE_OF, sys.executable, "-B", FOLDER / "web_server.py", _SERVER, "80", folder],
                               folder / "log")
        wait_for(self._server.output, "the page")

    def set_cables(self, reach):
        """"full", "portal", "limited", or "hang": who asks waits."""
        self._set("10.0", reach)

    def set_plan(self, reach):
        self._set("10.64", reach)

    def _set(self, network, reach):
        unfinished = self._folder / "unfinished"
        unfinished.write_text(reach, encoding="ascii")
        unfinished.rename(self._folder / network)

    def close(self):
        self._server.close()


class Cable(Connection):
    """The device eth<number> with its cable plugged in, and the stored connection "Cable <number>", which is down."""

    def __init__(self, number, **settings):
        self.device = f"eth{number}"
        self._far = f"far{number}"
        run("ip", "link", "add", "name", self.device, "type", "veth", "peer", "name", self._far, "netns", _OUTSIDE)
        for version, network, length in (("-4", f"10.0.{number}.", 24), ("-6", f"fd00:{number}::", 64)):
            outside("ip", version, "address", "add", f"{network}1/{length}", "dev", self._far, *(
                ["nodad"] if version == "-6" else []))
        self.plug_in()
        super().__init__(f"Cable {number}", "ethernet", self.device, **{
            "ipv4_method": "manual", "ipv4_addresses": f"10.0.{number}.2/24", "ipv4_gateway": f"10.0.{number}.1",
            "ipv6_method": "disabled", **settings})

    def plug_in(self):
        outside("ip", "link", "set", self._far, "up")

    def unplug(self):
        outside("ip", "link", "set", self._far, "down")

    def remove(self):
        run("ip", "link", "delete", self.device)

    def close(self):
        if Path("/sys/class/net", self.device).exists():
            self.remove()
