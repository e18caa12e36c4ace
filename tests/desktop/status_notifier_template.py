# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What dbusmock plays for status_notifier.py: all of it is there as soon as the name is on the bus."""

import dbus

BUS_NAME = MAIN_IFACE = "org.kde.StatusNotifierWatcher"
MAIN_OBJ = "/StatusNotifierWatcher"
SYSTEM_BUS = False


def load(mock, _parameters):
    mock.AddProperties(MAIN_IFACE, {"ProtocolVersion": dbus.Int32(0), "IsStatusNotifierHostRegistered": True})
    mock.AddMethod(MAIN_IFACE, "RegisterStatusNotifierItem", "s", "", "")
