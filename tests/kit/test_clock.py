# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Somebody else's plug-in in the installed program: its entry in the menu, and its page in the settings."""

import re

from display import press
from links import INTERNET, link
from scenario import TITLE, Scenario, main
from waiting import wait_for


class Clock(Scenario):

    def test_entry_and_page(self):
        self.start_with(link(0, "Portal", INTERNET, "https://portal.example.org/"))
        self.assertEqual(self.links_in_menu(), ["Clock", "Portal"])
        self.assertRegex(self.time_told(), r"^\d\d:\d\d$")
        self.let_show_seconds()
        self.assertRegex(self.time_told(), r"^\d\d:\d\d:\d\d$")

        # It is known at the next start as well.
        press("ctrl+q")
        self.assertEqual(self.program.exit_code(), 0)
        self.start()
        self.assertRegex(self.time_told(), r"^\d\d:\d\d:\d\d$")

    def time_told(self):
        """Picks the entry, and answers the message that comes."""
        self.open_menu("Quick Links").find("menu item", "Clock").click()
        message = self.application.window("Clock")
        times = [text for text in message.names("label") if re.match(r"\d\d:", text)]
        press("Return")
        self.application.wait_until_gone(message)
        self.application.main_window(TITLE)
        return times[0] if times else ""

    def let_show_seconds(self):
        press("ctrl+comma")
        settings = self.application.window("Settings")
        settings.find("list item", "Clock").click()
        box = settings.find("check box", "Show the seconds")
        box.click()
        wait_for(box.is_checked, "the tick")
        settings.find("push button", "OK").click()
        self.application.wait_until_gone(settings)
        self.application.main_window(TITLE)


if __name__ == "__main__":
    main()
