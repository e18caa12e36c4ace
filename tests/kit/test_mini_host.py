# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Somebody else's host, which loads the installed quick links, and somebody else's plug-in beside them."""

import os
import unittest

from display import active_window, press, windows_of_class, xdotool
from links import EMAIL, INTERNET, link, save
from scenario import Scenario, main
from screen import Application
from session import Program
from settings_dialog import SettingsDialog
from waiting import wait_for


class MiniHost(Scenario):

    def setUp(self):
        super().setUp()
        save(self.data, link(0, "Portal", INTERNET, "https://portal.example.org/"), link(1, "Write", EMAIL, "mailto:"))
        self.program = Program([os.environ["VELLUM_MINI_HOST"], str(self.data)], self.folder / "log",
                               **self.opened.environment)
        self.addCleanup(self.program.close)
        self.wait_for_log("Quick links: Clock, Portal, Write\n")

    def focus(self):
        window = wait_for(lambda: windows_of_class("mini-host"), "the window of the host")[0]
        xdotool("windowactivate", window)
        wait_for(lambda: active_window() == window, "the focus in it")

    def test_link_opens(self):
        self.focus()
        # From "Settings...", which was made first and has the focus, over the clock to the first of the quick links.
        press("Tab", "Tab", "space")
        wait_for(self.opened.calls, "a call of xdg-open")
        self.assertEqual(self.opened.calls(), [["https://portal.example.org/"]])
        press("alt+F4")
        self.assertEqual(self.program.exit_code(), 0)

    @unittest.skipIf(os.environ["VELLUM_QT"] == "4", "Qt 4 tells no screen reader what it shows")
    def test_link_deleted_on_its_page(self):
        self.application = Application(self.program)
        self.focus()
        press("space")
        clock = self.application.window("Settings")
        clock.find("check box", "Show the seconds")
        clock.find("push button", "OK").click()
        wait_for(lambda: self.application.window("Settings").all("table"), "the page of the quick links")
        settings = SettingsDialog(self.application)
        settings.delete("Portal", "OK")
        self.wait_for_log("Quick links: Clock, Write\n")
        settings.close()


if __name__ == "__main__":
    main()
