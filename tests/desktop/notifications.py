# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""The desktop's notifications as the program meets them on the session bus, played by dbusmock."""

import json

import dbus

from played_service import MOCK, PlayedService
from waiting import wait_for

PATH = "/org/freedesktop/Notifications"


class Notifications(PlayedService):
    """Takes every notification, and tells what the test lets the user do with it."""

    def __init__(self, capabilities="body body-markup actions"):
        super().__init__("org.freedesktop.Notifications", "--template", "notification_daemon", "--parameters",
                         json.dumps({"capabilities": capabilities}), bus="SESSION")

    def told(self):
        """[(number that it replaces, title, text, {action: caption})] of every notification so far."""
        calls = self.at(PATH, MOCK).GetMethodCalls("Notify")
        return [(int(arguments[1]), str(arguments[3]), str(arguments[4]),
                 dict(zip(map(str, arguments[5][0::2]), map(str, arguments[5][1::2]))))
                for _, arguments in calls]

    def wait_for(self, text):
        """Waits for a notification with this text in it to be the last one."""
        def last():
            told = self.told()
            return told[-1] if told and text in told[-1][2] else None

        return wait_for(last, f"a notification with \"{text}\"; there are {self.told()}")

    def act(self, number, action):
        """The user clicks something in the notification of this number."""
        self._emit("ActivationToken", "us", [dbus.UInt32(number), "token"])
        self._emit("ActionInvoked", "us", [dbus.UInt32(number), action])

    def close_notification(self, number):
        """The user closes it."""
        self._emit("NotificationClosed", "uu", [dbus.UInt32(number), dbus.UInt32(2)])

    def _emit(self, signal, signature, arguments):
        self.at(PATH, MOCK).EmitSignal(self.name, signal, signature, arguments)
