# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""NetworkManager, ModemManager and logind as the program meets them on the system bus, played by dbusmock."""

import dbus

from played_service import PlayedService

MANAGER = "/org/freedesktop/NetworkManager"
SETTINGS = "/org/freedesktop/NetworkManager/Settings"
MODEM = "/org/freedesktop/ModemManager1/Modem/0"


class NetworkManager(PlayedService):
    """NetworkManager with a modem, "wwan0", a cable, "eth0", and a telephone by Bluetooth, which are not connected."""

    FULL, LIMITED, PORTAL = 4, 3, 2

    def __init__(self):
        super().__init__("org.freedesktop.NetworkManager", "--template", "networkmanager")
        self._manager = self.at(MANAGER)
        self._devices = {"gsm": self._add_device("modem", "cdc-wdm0", "wwan0", 8, MODEM),
                         "802-3-ethernet": self._add_device("cable", "eth0", "eth0", 1, "cable"),
                         "bluetooth": self._add_device("telephone", "bnep0", "bnep0", 5, "telephone")}
        self._manager.AddProperty(self.name, "PrimaryConnection", dbus.ObjectPath("/"))
        self._connections = {}  # stored ones: (name, kind) -> path
        self._number = 0

    def _add_device(self, name, interface, ip_interface, kind, udi):
        # The mock itself knows no modems.
        path = f"/org/freedesktop/NetworkManager/Devices/{name}"
        disconnected = dbus.UInt32(30)
        self._manager.AddObject(path, "org.freedesktop.NetworkManager.Device", {
            "DeviceType": dbus.UInt32(kind), "Udi": udi, "Interface": interface, "IpInterface": ip_interface,
            "State": disconnected, "StateReason": dbus.Struct((disconnected, dbus.UInt32(0))), "Managed": True,
            "ActiveConnection": dbus.ObjectPath("/"), "AvailableConnections": dbus.Array([], signature="o"),
        }, dbus.Array([], signature="(ssss)"))
        devices = self.at(MANAGER, dbus.PROPERTIES_IFACE).Get(self.name, "Devices")
        self._manager.SetProperty(MANAGER, self.name, "Devices", dbus.Array([*devices, path], signature="o"))
        self._manager.EmitSignal(self.name, "DeviceAdded", "o", [path])
        return path

    def store(self, name, kind="gsm", **settings):
        """Keeps a connection that is not up."""
        self._stored(name, kind, settings)

    def forget(self, name, kind="gsm"):
        """Deletes a connection that is kept."""
        path = self._connections.pop((name, kind))
        self.at(path, "org.freedesktop.NetworkManager.Settings.Connection").Delete()

    def activate(self, name, kind="gsm", **settings):
        """Brings a connection up at once; returns its path, for the other calls. Settings are those of its kind."""
        return self._activate(name, kind, 2, **settings)

    def start_to_activate(self, name, kind="gsm"):
        """Begins to bring a connection up; `set_state` goes on."""
        return self._activate(name, kind, 1)

    def _activate(self, name, kind, state, **settings):
        self._number += 1
        stored = self._stored(name, kind, settings)
        return self._manager.AddActiveConnection([self._devices[kind]], stored, "/", str(self._number),
                                                 dbus.UInt32(state))

    def _stored(self, name, kind, own):
        return self._connections.get((name, kind)) or self._store(name, kind, own)

    def _store(self, name, kind, own):
        settings = {"connection": {"id": name, "type": kind, "uuid": f"00000000-{name}-{kind}"}, kind: own}
        path = self.at(SETTINGS, "org.freedesktop.NetworkManager.Settings").AddConnection(
            dbus.Dictionary({section: dbus.Dictionary(values, signature="sv") for section, values in settings.items()},
                            signature="sa{sv}"))
        self._connections[name, kind] = path
        return path

    def set_state(self, connection, state):
        """Goes on to state 1 (activating), 2 (activated), 3 (deactivating) or 4 (deactivated)."""
        self._set(connection, "State", dbus.UInt32(state))

    def set_default_route(self, connection, is_default):
        """Says whether the connection has a default route, as it has at first."""
        self._set(connection, "Default", is_default)

    def set_primary(self, connection):
        """Says which connection the traffic takes; none at first."""
        self._manager.SetProperty(MANAGER, self.name, "PrimaryConnection", dbus.ObjectPath(connection))

    def _set(self, connection, name, value):
        self._manager.SetProperty(connection, "org.freedesktop.NetworkManager.Connection.Active", name, value)

    def say(self, name, value):
        """Gives a property of NetworkManager itself any value of any type."""
        self._manager.SetProperty(MANAGER, self.name, name, value)

    def flood(self, count):
        """Says that something changed, so many times as fast as it can; returns before the last one."""
        # A hundred at a time, so that it answers questions, too.
        self._manager.AddMethod(self.name, "Flood", "", "", "\n".join((
            f"def emit(mock=self, left=[{count}]):",
            "    import dbus",
            "    for _ in range(min(100, left[0])):",
            f"        mock.EmitSignal(dbus.PROPERTIES_IFACE, 'PropertiesChanged', 'sa{{sv}}as', ['{self.name}', "
            "{'State': dbus.UInt32(70)}, dbus.Array([], signature='s')])",
            "    left[0] -= 100",
            "    return left[0] > 0",
            "from gi.repository import GLib",
            "GLib.idle_add(emit)")))
        self.at(MANAGER, self.name).Flood()

    def take_down(self, connection, kind="gsm"):
        self._manager.RemoveActiveConnection(self._devices[kind], connection)

    def set_reach(self, connectivity):
        self._manager.SetConnectivity(dbus.UInt32(connectivity))


class ModemManager(PlayedService):
    """ModemManager with one modem, registered with an operator, at home."""

    _interface = "org.freedesktop.ModemManager1.Modem.Modem3gpp"

    def __init__(self, operator):
        super().__init__("org.freedesktop.ModemManager1", "--system", "org.freedesktop.ModemManager1",
                         "/org/freedesktop/ModemManager1", "org.freedesktop.ModemManager1")
        self.at("/org/freedesktop/ModemManager1").AddObject(
            MODEM, self._interface, {"OperatorName": operator, "RegistrationState": dbus.UInt32(1)},
            dbus.Array([], signature="(ssss)"))

    def set_operator(self, operator):
        self.at(MODEM).UpdateProperties(self._interface, {"OperatorName": operator})

    def set_roaming(self, is_roaming):
        """Whether that is the network of another operator than the user's own."""
        self.at(MODEM).UpdateProperties(self._interface, {"RegistrationState": dbus.UInt32(5 if is_roaming else 1)})


class Logind(PlayedService):
    """logind, which tells of sleep."""

    def __init__(self):
        super().__init__("org.freedesktop.login1", "--template", "logind")

    def prepare_for_sleep(self, starts):
        self.at("/org/freedesktop/login1").EmitSignal("org.freedesktop.login1.Manager", "PrepareForSleep", "b",
                                                      [starts])
