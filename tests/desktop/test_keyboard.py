# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Links are opened, added, edited, moved and deleted without the mouse."""

from display import press, windows_of_class, xdotool
from links import INTERNET, link
from scenario import TITLE, main
from settings_dialog import LinkDialog, SettingsDialog
from settings_scenario import SettingsScenario
from waiting import wait_for

NAMES = ["First", "Second", "Third"]


class Keyboard(SettingsScenario):

    def setUp(self):
        super().setUp()
        self.start_with(*(link(i, name, INTERNET, f"http://{name.lower()}.example.org/") for i, name in enumerate(NAMES)))

    def expect_opened(self, *names):
        addresses = [[f"http://{name.lower()}.example.org/"] for name in names]
        wait_for(lambda: self.opened.calls() == addresses, f"{addresses} to be opened")

    def test_return_on_a_button_opens_it(self):
        button = self.link_buttons()[1]
        for _ in range(20):
            if button.has_state("focused"):
                break
            press("Tab")
        press("Return")
        self.expect_opened("Second")

    def test_control_and_a_number_open_a_link(self):
        press("ctrl+3")
        self.expect_opened("Third")
        press("ctrl+1")
        self.expect_opened("Third", "First")
        press("ctrl+9")
        press("ctrl+2")
        self.expect_opened("Third", "First", "Second")

    def test_alt_and_a_letter_open_a_link(self):
        press("alt+s")
        self.expect_opened("Second")
        # The menus have the first two letters of the third.
        press("alt+i")
        self.expect_opened("Second", "Third")

    def test_menu_by_its_letter(self):
        self.application.main_window(TITLE)
        press("alt+q")
        wait_for(lambda: len(windows_of_class("vellumconnect")) > 1, "the menu")
        press("Down", "Down", "Return")
        self.expect_opened("Third")

    def test_table_of_the_settings(self):
        settings = self.open_settings()
        settings.select("First")
        press("ctrl+Down")
        settings.wait_for_links("Second", "First", "Third")
        press("ctrl+Down")
        settings.wait_for_links("Second", "Third", "First")
        press("ctrl+Up")
        settings.wait_for_links("Second", "First", "Third")
        press("Return")
        dialog = LinkDialog(self.application, LinkDialog.edit_title)
        self.assertEqual(dialog.field("Name:").text, "First")
        press("Escape")
        dialog.wait_until_gone()
        press("Delete")
        question = self.application.window("Quick Links")
        press("Return")
        self.application.wait_until_gone(question)
        SettingsDialog(self.application).wait_for_links("Second", "Third")

    def test_settings_begin_with_the_links_and_then_where_they_were_left(self):
        settings = self.open_settings()
        press("Down", "Return")
        dialog = LinkDialog(self.application, LinkDialog.edit_title)
        self.assertEqual(dialog.field("Name:").text, "Second")
        press("Escape")
        dialog.wait_until_gone()
        settings.window.find("list item", "General").click()
        press("Escape")
        settings.wait_until_gone()
        self.application.main_window(TITLE)
        press("ctrl+comma")
        page = self.application.window("Settings")
        box = page.find("check box", "Start with the session")
        wait_for(lambda: box.has_state("focused"), "the keyboard on the page")

    def test_double_click_edits(self):
        settings = self.open_settings()
        x, y, width, height = settings.table.find("table cell", "Second").extents
        xdotool("mousemove", x + width // 2, y + height // 2, "click", "--repeat", 2, "--delay", 50, 1)
        dialog = LinkDialog(self.application, LinkDialog.edit_title)
        self.assertEqual(dialog.field("Name:").text, "Second")

    def test_tab_leaves_the_table(self):
        settings = self.open_settings()
        settings.select("First")
        reached = set()
        for _ in range(8):
            press("Tab")
            reached |= {name for name in ("New…", "Edit…", "Delete", "Down") if settings.button(name).has_state("focused")}
        self.assertEqual(reached, {"New…", "Edit…", "Delete", "Down"})

    def test_menu_of_the_table(self):
        settings = self.open_settings()
        settings.select("Third")
        # The menu belongs to no widget that the screen reader asks for its children.
        before = windows_of_class("vellumconnect")
        press("shift+F10")
        wait_for(lambda: len(windows_of_class("vellumconnect")) > len(before), "the menu")
        press("Down", "Down", "Return")
        dialog = LinkDialog(self.application, LinkDialog.edit_title)
        self.assertEqual(dialog.field("Name:").text, "Third")


if __name__ == "__main__":
    main()
