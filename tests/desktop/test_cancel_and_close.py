# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Ways out of the settings and the New dialog, and in again."""

from display import press
from links import EMAIL, INTERNET, link
from scenario import TITLE, main
from settings_dialog import TYPES, SettingsDialog
from settings_scenario import SettingsScenario

PORTAL = link(0, "Portal", INTERNET, "https://portal.example.org/")
MAIL = link(1, "Mail", EMAIL, "mailto:")


class CancelAndClose(SettingsScenario):

    def setUp(self):
        super().setUp()
        self.start_with(PORTAL)

    def add_mail(self, settings):
        dialog = settings.new()
        dialog.choose_type(TYPES[1])
        dialog.field("Name:").type("Mail")
        dialog.close()
        settings.wait_for_links("Portal", "Mail")

    def test_cancel_keeps_changes(self):
        settings = self.open_settings()
        self.add_mail(settings)
        settings.close("Cancel")
        self.expect_file(2, PORTAL, MAIL)
        self.assertEqual(self.links_in_menu(), ["Portal", "Mail"])
        self.open_settings().wait_for_links("Portal", "Mail")

    def test_window_button_closes(self):
        settings = self.open_settings()
        self.add_mail(settings)
        settings.window.press_close_button()
        settings.wait_until_gone()
        self.application.main_window(TITLE)
        self.expect_file(2, PORTAL, MAIL)
        self.open_settings().wait_for_links("Portal", "Mail")

    def test_opens_again_and_again(self):
        for way_out in ("OK", "Cancel", "OK", "Cancel"):
            settings = self.open_settings()
            settings.wait_for_links("Portal")
            self.assertEqual(settings.selected(), "Portal")
            settings.close(way_out)

    def test_opens_from_the_tools_menu(self):
        self.open_menu("Tools").find("menu item", "Settings…").click()
        SettingsDialog(self.application).wait_for_links("Portal")

    def test_escape_closes_the_new_dialog(self):
        settings = self.open_settings()
        dialog = settings.new()
        dialog.field("Name:").type("Lost")
        press("Escape")
        dialog.wait_until_gone()
        self.application.window(settings.title)
        self.assertEqual(settings.links(), ["Portal"])
        self.expect_file(1, PORTAL)

    def test_window_button_closes_the_new_dialog(self):
        settings = self.open_settings()
        dialog = settings.new()
        dialog.window.press_close_button()
        dialog.wait_until_gone()
        self.add_mail(settings)

    def test_edit_after_a_cancelled_edit(self):
        settings = self.open_settings()
        settings.edit("Portal").press("Cancel")
        self.application.window(settings.title)
        self.add_mail(settings)
        self.expect_file(2, PORTAL, MAIL)


if __name__ == "__main__":
    main()
