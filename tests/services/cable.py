# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Cables of this network into another one, which stands for the rest of the world."""

from namespaces import run
from network_manager import Connection

_OUTSIDE = "outside"


def make_outside():
    """Once for all cables."""
    run("ip", "netns", "add", _OUTSIDE)
    outside("ip", "link", "set", "lo", "up")


def outside(*command):
    """Runs a command in the other network."""
    return run("ip", "netns", "exec", _OUTSIDE, *command)


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

    def close(self):
        run("ip", "link", "delete", self.device)
