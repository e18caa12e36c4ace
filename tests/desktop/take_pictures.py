# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Takes the pictures of the documentation; scripts/pictures.sh calls it."""

import os
from pathlib import Path

from display import save_active_window
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

    def test_large_fonts(self):
        """Fonts of 14 points in place of 9, as a user with weak eyes sets them in the desktop's settings."""
        settings = self.folder / "config/kdeglobals"
        settings.parent.mkdir()
        fonts = [f"{name}=DejaVu Sans,14,-1,5,50,0,0,0,0,0\n" for name in ("font", "menuFont", "toolBarFont")]
        settings.write_text("[General]\n" + "".join(fonts), encoding="ascii")
        self.take_all("large-fonts-", QT_QPA_PLATFORMTHEME="kde", KDE_SESSION_VERSION="5",
                      XDG_CONFIG_HOME=str(settings.parent))

    def test_scaled(self):
        """A display of twice the density."""
        Widget.scale = 2
        self.addCleanup(setattr, Widget, "scale", 1)
        self.take_all("scaled-", QT_SCALE_FACTOR="2")

    def take_all(self, prefix, **environment):
        self.start(**environment)
        self.network.activate("Mobile plan")
        self.window.find("label", "Operator: Northern Mobile")
        self.take(prefix + "main-window")
        settings = self.open_settings()
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
