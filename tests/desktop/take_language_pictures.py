# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Takes one picture of the main windows for every language; scripts/pictures.sh calls it."""

import os
import subprocess
from pathlib import Path

from display import press, save_active_window
from scenario import TITLE, main
from settings_dialog import LinkDialog
from settings_scenario import SettingsScenario
from texts import Texts, languages

FOLDER = Path(os.environ["VELLUM_DOCUMENTATION"]) / "languages"
ROWS = (("main-window", "settings-page"), ("dialog-application", "dialog-email", "dialog-internet"))


class LanguagePictures(SettingsScenario):

    screen_size = "2000x1600"

    def setUp(self):
        super().setUp()
        self.use_sample()

    def test_languages(self):
        FOLDER.mkdir(exist_ok=True)
        for language in languages():
            with self.subTest(language):
                self.start("--language", language)
                self.take_all(Texts(language))
                self.program.close()
                self.join(FOLDER / f"{language}.png")

    def take_all(self, texts):
        self.take("main-window")
        self.application.main_window(TITLE)
        press("ctrl+comma")
        settings = self.application.window(texts.of("SettingsDialog", "Settings"))
        self.take("settings-page")
        settings.find("push button", texts["LINK_SETTING_NEW"]).click()
        dialog = LinkDialog(self.application, texts["LINK_SETTING_NEW_TITLE"])
        choice = dialog.window.find("combo box", texts["LINK_SETTING_NEW_TYPE"])
        dialog.field(texts["LINK_SETTING_NEW_NAME"]).type("Photo album")
        self.take("dialog-application")
        choice.choose(texts["LINK_TYPE_E-MAIL"])
        self.take("dialog-email")
        choice.choose(texts["LINK_TYPE_INTERNET"])
        self.take("dialog-internet")

    def take(self, name):
        save_active_window(self.folder / f"{name}.png")

    def join(self, path):
        """All pictures of a language on one sheet, in few colours: there are many languages."""
        command = ["convert", "-background", "white", "-bordercolor", "white"]
        for names in ROWS:
            command += ["(", *(str(self.folder / f"{name}.png") for name in names), "-border", "6", "+append", ")"]
        subprocess.run([*command, "-append", "-strip", "+dither", "-colors", "48", "-define",
                        "png:compression-level=9", f"png8:{path}"], check=True)


if __name__ == "__main__":
    main()
