# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What the operator of the computer gives to all of its users and fixes for them: links and settings."""

import os
import subprocess
from pathlib import Path

from display import press
from links import INTERNET, document, link, save, visible_links
from scenario import PROGRAM, main
from settings_scenario import SettingsScenario
from waiting import wait_for

REASON = "Fixed by the administrator of this computer"
MINE = link(0, "Mine", INTERNET, "http://mine.example.org/")
PORTAL = link(0, "Portal", INTERNET, "https://portal.example.org/")
HELP = link(1, "Help", INTERNET, "http://help.example.org/")
MORE = link(2, "More", INTERNET, "http://more.example.org/")
KEPT = HELP.replace('delete="1"', 'delete="0"')


class Layers(SettingsScenario):

    def setUp(self):
        super().setUp()
        self.operator = Path(os.environ["VELLUMCONNECT_OPERATOR_DIRS"])
        self.layer = self.operator / "links.d/10-office.xml"
        self.layer.parent.mkdir(parents=True, exist_ok=True)
        self.settings_file = self.operator / "vellumconnect.ini"
        for file in (self.layer, self.settings_file):
            self.addCleanup(file.unlink, missing_ok=True)

    def give(self, *links):
        """As a package does it: the whole file in one moment."""
        new = self.layer.with_suffix(".new")
        new.write_bytes(document(len(links), *links))
        new.rename(self.layer)

    def quit(self):
        press("ctrl+q")
        self.assertEqual(self.program.exit_code(), 0)

    def test_links_of_the_operator(self):
        save(self.data, MINE)
        self.give(PORTAL, KEPT)
        self.start()
        self.assertEqual(self.links_in_menu(), ["Mine", "Portal", "Help"])
        settings = self.open_settings()
        settings.wait_for_links("Mine", "Portal", "Help")
        settings.select("Help")
        self.assertNotIn("Delete", settings.enabled_buttons())
        settings.delete("Portal", "OK")
        settings.wait_for_links("Mine", "Help")
        settings.close()
        self.quit()
        # It does not come back.
        self.start()
        self.expect_menu("Mine", "Help")
        # What the user never changed goes with the operator's file.
        self.layer.unlink()
        self.expect_menu("Mine")
        self.quit()

    def test_layers_change_while_the_program_runs(self):
        self.give(HELP)
        self.start()
        self.expect_menu("Help")
        self.assertEqual(self.config.read_bytes(), document(1, HELP.replace('"1" name', '"0" name')))
        self.give(HELP, PORTAL)
        self.expect_menu("Help", "Portal")
        # Where the settings are open, they are left alone until they close.
        settings = self.open_settings()
        self.give(PORTAL, HELP, MORE)
        self.wait_for_log("they wait until nobody works on the user's")
        self.assertEqual(settings.links(), ["Help", "Portal"])
        dialog = settings.new()
        dialog.choose_type("E-mail")
        dialog.field("Name:").type("Post")
        dialog.close()
        settings.wait_for_links("Help", "Portal", "Post")
        settings.close()
        self.expect_menu("Help", "Portal", "Post", "More")
        self.assertEqual([item["name"] for item in visible_links(self.data)], ["Help", "Portal", "Post", "More"])
        # One step, as any other.
        press("ctrl+z")
        self.expect_menu("Help", "Portal", "Post")
        # A file that is no good leaves the links as they are.
        self.layer.write_bytes(b"<tovadoc>")
        self.wait_for_log("the operator's file 10-office.xml is no good")
        self.expect_menu("Help", "Portal", "Post")
        self.quit()

    def test_fixed_language(self):
        """The user may choose another for a run, but not for good."""
        (self.data / "vellumconnect.ini").write_text("[General]\nlanguage=fr\n", encoding="utf-8")
        for fixed, arguments, word in (("", (), "Affiche cette aide"), ("language=de\n", (), "Diese Hilfe"),
                                       ("language=de\n", ("--language", "es"), "Muestra esta ayuda")):
            self.settings_file.write_text(fixed, encoding="utf-8")
            said = subprocess.run([PROGRAM, "--data-dir", self.data, *arguments, "--help"], capture_output=True, check=True)
            self.assertIn(word, said.stdout.decode(), (fixed, arguments))

    def test_fixed_settings(self):
        save(self.data, MINE)
        file = Path(os.environ["XDG_CONFIG_HOME"]) / "autostart/com.norvik.vellumconnect.desktop"
        self.addCleanup(file.unlink, missing_ok=True)
        (self.data / "vellumconnect.ini").write_text("[connection]\nkind=any\n", encoding="utf-8")
        self.settings_file.write_text("language=en\nstartWithSession=true\n[connection]\nkind=mobile\n", encoding="utf-8")
        self.start()
        self.assertTrue(file.exists())
        settings = self.open_settings()
        settings.window.find("list item", "Connection").click()
        settings.window.find("label", REASON)
        for name in ("Mobile broadband", "Any connection", "My own button"):
            button = settings.window.find("radio button", name)
            self.assertEqual((button.is_enabled(), button.is_checked()), (False, name == "Mobile broadband"), name)
        # What is not fixed can be chosen.
        roaming = settings.window.find("check box", "Not while roaming")
        roaming.click()
        wait_for(roaming.is_checked, "the choice")
        settings.window.find("list item", "General").click()
        box = settings.window.find("check box", "Start with the session")
        self.assertEqual((box.is_enabled(), box.is_checked(), box.description), (False, True, REASON))
        settings.window.find("label", REASON)
        settings.close()
        view = self.open_menu("View")
        view.find("menu item", "Language").click()
        languages = wait_for(lambda: [menu for menu in self.window.all("popup menu") if "Deutsch" in menu.names("menu item") +
                                      menu.names("radio menu item") + menu.names("check menu item")], "the languages")[0]
        reason = languages.find("menu item", REASON)
        self.assertFalse(reason.is_enabled())
        press("Escape", "Escape")
        self.quit()
        # Where nothing is fixed any more, the user's own choice counts again.
        self.settings_file.unlink()
        self.start()
        settings = self.open_settings()
        settings.window.find("list item", "Connection").click()
        wait_for(settings.window.find("radio button", "Any connection").is_checked, "the user's own choice")
        self.assertTrue(settings.window.find("check box", "Not while roaming").is_checked())
        settings.close()


if __name__ == "__main__":
    main()
