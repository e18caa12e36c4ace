# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Debian's NetworkManager on the system bus of this environment."""

import json
import shutil
from pathlib import Path

import dbus

from namespaces import run
from service import Service
from waiting import wait_for

NAME = "org.freedesktop.NetworkManager"
MANAGER = "/org/freedesktop/NetworkManager"
STATES = [Path("/run/NetworkManager"), Path("/var/lib/NetworkManager")]


class NetworkManager(Service):
    """Manages every device of this network; knows no connection at first. Its log lies beside its settings."""

    def __init__(self, folder, connectivity=""):
        """Keeps everything in `folder`, which is made; `connectivity` is the section of that name."""
        for name in ("", "conf.d", "system", "connections"):
            (folder / name).mkdir()
        (folder / "conf").write_text(
            "[main]\nplugins=keyfile\nauth-polkit=false\ndns=none\nrc-manager=unmanaged\nno-auto-default=*\n"
            f"hostname-mode=none\n[keyfile]\npath={folder}/connections\n"
            # As it would let a device of the real pppd alone.
            f"unmanaged-devices=interface-name:ppp0\n[connectivity]\n{connectivity}", encoding="utf-8")
        super().__init__(NAME, [
            "NetworkManager", "--debug", f"--config={folder}/conf", f"--config-dir={folder}/conf.d",
            f"--system-config-dir={folder}/system", f"--intern-config={folder}/intern", f"--state-file={folder}/state",
            f"--pid-file={folder}/pid"], log=folder / "log")

    def start(self):
        super().start()
        wait_for(self._knows_devices, "NetworkManager to know all devices")

    def _knows_devices(self):
        try:
            return not self.ask("Startup")
        except dbus.DBusException:
            return False  # It takes its name before it shows anything.

    def ask(self, name, interface=NAME, path=MANAGER):
        """A property; of the service itself unless told."""
        return self.at(path, dbus.PROPERTIES_IFACE).Get(interface, name)

    def close(self):
        super().close()
        # What one leaves the next one takes for its own.
        for kind in ("bridge", "tun"):
            for device in filter(None, json.loads(run("ip", "-json", "link", "show", "type", kind))):
                run("ip", "link", "delete", device["ifname"])
        for state in STATES:
            for path in state.iterdir():
                shutil.rmtree(path) if path.is_dir() else path.unlink()


class Connection:
    """A stored connection of a type to a device, with settings as nmcli names them: "ipv4_may__fail" is "ipv4.may-fail"."""

    def __init__(self, name, kind, device, **settings):
        self.name = name
        words = [word for setting, value in settings.items() for word in (_setting(setting), value)]
        run("nmcli", "connection", "add", "type", kind, "con-name", name, "ifname", device, "autoconnect", "no", *words)

    def change(self, **settings):
        for setting, value in settings.items():
            run("nmcli", "connection", "modify", self.name, _setting(setting), value)
        self.name = settings.get("connection_id", self.name)

    def state(self):
        """Such as "activated"; empty while it is down."""
        return run("nmcli", "--get-values", "GENERAL.STATE", "connection", "show", self.name).strip()

    def up(self):
        """Brings it up, and waits until it is."""
        run("nmcli", "connection", "up", self.name)

    def start_up(self):
        """Begins to bring it up."""
        run("nmcli", "--wait", "0", "connection", "up", self.name)

    def down(self):
        """Takes it down, and waits until it is."""
        run("nmcli", "connection", "down", self.name)


def _setting(name):
    return name.replace("__", "-").replace("_", ".", 1)
