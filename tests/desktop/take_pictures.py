# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Takes the pictures of the documentation; scripts/pictures.sh calls it."""

import os
from pathlib import Path

from compositor import Compositor
from display import save_active_window
from letters import letters, scale_of
from network import ModemManager, NetworkManager
from scenario import main
from screen import Widget
from settings_dialog import TYPES
from settings_scenario import SettingsScenario

FOLDER = Path(os.environ["VELLUM_DOCUMENTATION"])


class Pictures(SettingsScenario):

    screen_size = "2000x1600"

    def setUp(self):
        super().setUp()
        self.use_sample()
        self.play(ModemManager("Northern Mobile"))
        self.network = self.play(NetworkManager())

    def test_default(self):
        self.take_all("")

    def test_why(self):
        self.start()
        self.bring_up()
        self.open_menu("Connection").find("menu item", "Why…").click()
        self.application.window("What Opened, and Why")
        self.take("why-window")

    def test_large_letters(self):
        """Letters of 14 points and more in place of 9, as a user with weak eyes sets them in the desktop's settings."""
        self.take_all("14-points-", **letters(self.folder, 14))

    def test_larger_letters(self):
        self.take_all("18-points-", **letters(self.folder, 18))

    def test_largest_letters(self):
        self.take_all("24-points-", **letters(self.folder, 24))

    def test_dark(self):
        self.take_all("dark-", **letters(self.folder, 9, is_dark=True))

    def test_scaled(self):
        """A display of twice the density."""
        self.take_all("scaled-", QT_SCALE_FACTOR="2")

    def test_wayland(self):
        compositor = Compositor(self.folder / "weston.log")
        self.addCleanup(compositor.close)
        x = {name: os.environ.pop(name) for name in ("DISPLAY", "QT_QPA_PLATFORM")}
        self.addCleanup(os.environ.update, x)
        self.launch(**Compositor.environment)
        # Told when the window has been painted.
        self.wait_for_log("notification 258 sent")
        compositor.save_screen_at_rest(FOLDER / "wayland.png")

    def test_styles(self):
        for style in ("adwaita", "adwaita-dark", "breeze"):
            with self.subTest(style):
                self.start(QT_STYLE_OVERRIDE=style)
                is_installed = "invalid style override" not in self.program.output()
                if is_installed:
                    self.take_windows(f"{style}-")
                self.program.close()
                if not is_installed:
                    self.skipTest("it is not installed")

    def take_all(self, prefix, **environment):
        self.addCleanup(setattr, Widget, "scale", 1)
        self.start(**environment)
        Widget.scale = scale_of(self.program.pid)
        self.take_windows(prefix)

    def bring_up(self):
        self.network.activate("Mobile plan")
        self.window.find("label", "Operator: Northern Mobile")

    def take_windows(self, prefix):
        self.bring_up()
        self.take(prefix + "main-window")
        settings = self.open_settings()
        for page in ("General", "Connection", "History"):
            settings.window.find("list item", page).click()
            self.take(f"{prefix}{page.lower()}-page")
        settings.window.find("list item", "Quick Links").click()
        self.take(prefix + "settings-page")
        dialog = settings.new()
        dialog.field("Name:").type("Photo album")
        dialog.field("Program file:").type("/usr/bin/display")
        dialog.field("Parameters:").type("-immutable album.jpg")
        self.take(prefix + "dialog-application")
        dialog.choose_type(TYPES[1])
        dialog.field("Name:").type("Mail")
        self.take(prefix + "dialog-email")
        dialog.choose_type(TYPES[2])
        dialog.field("Name:").type("Intranet")
        dialog.field("Address:").type("https://intranet.example.com/")
        self.take(prefix + "dialog-internet")

    @staticmethod
    def take(name):
        save_active_window(FOLDER / f"{name}.png")


if __name__ == "__main__":
    main()
