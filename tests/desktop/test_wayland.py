# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""The program on a Wayland desktop without X."""

import os
from pathlib import Path

from gi.repository import Gio, GLib

from compositor import Compositor
from links import APPLICATION, link, save
from scenario import Scenario, main


class Wayland(Scenario):

    def setUp(self):
        super().setUp()
        self.notes = self.make_application("My programs", "note pad")
        save(self.data, link(0, "Notes", APPLICATION, str(self.notes), startmobile=1))
        self.addCleanup(Compositor(self.folder / "weston.log").close)
        self.x = {name: os.environ.pop(name) for name in ("DISPLAY", "QT_QPA_PLATFORM")}
        self.addCleanup(os.environ.update, self.x)

    def test_starts_without_x(self):
        self.launch(**Compositor.environment)
        # Told when the window has been painted.
        self.wait_for_log("notification 258 sent")
        # What it starts is not told how this program shows itself.
        pid = self.started(self.notes)[0]
        self.assertNotIn(b"QT_QPA_PLATFORM=", Path(f"/proc/{pid}/environ").read_bytes())
        [frame] = [window for window in self.application.windows() if window.role == "frame"]
        self.assertEqual([button.name for button in frame.find("filler", "Quick Links").all("push button")], ["Notes"])
        bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        [names] = bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "ListNames",
                                None, None, Gio.DBusCallFlags.NONE, -1)
        [name] = [name for name in names if name.startswith("com.norvik.vellumconnect")]
        bus.call_sync(name, "/com/norvik/vellumconnect", "org.freedesktop.Application", "ActivateAction",
                      GLib.Variant("(sava{sv})", ("quit", [], {})), None, Gio.DBusCallFlags.NONE, -1)
        self.assertEqual(self.program.exit_code(), 0)


if __name__ == "__main__":
    main()
