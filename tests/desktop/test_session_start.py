# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""The program starts together with the session when its user wants that, and waits in the tray."""

import os
from pathlib import Path

from gi.repository import Gio, GLib

from display import click_in_window, press, windows_of_class
from links import INTERNET, link, save
from scenario import PROGRAM, TITLE, main
from session import Program
from settings_scenario import SettingsScenario
from waiting import wait_for

CHOICE = "Start with the session"


class SessionStart(SettingsScenario):

    def setUp(self):
        super().setUp()
        save(self.data, link(0, "Portal", INTERNET, "https://portal.example.org/", startmobile=1))
        self.file = Path(os.environ["XDG_CONFIG_HOME"]) / "autostart/com.norvik.vellumconnect.desktop"
        self.addCleanup(self.file.unlink, missing_ok=True)

    def choose(self, is_on):
        """Ticks or clears the choice, which shows what it was before."""
        settings = self.open_settings()
        settings.window.find("list item", "General").click()
        box = settings.window.find("check box", CHOICE)
        self.assertEqual(box.is_checked(), not is_on)
        box.click()
        wait_for(lambda: box.is_checked() == is_on, f"{box} to be {is_on}")
        settings.close()

    def test_choice_is_kept_as_the_desktop_reads_it(self):
        self.start("--connection", "any")
        self.assertFalse(self.file.exists())
        self.choose(True)
        entry = Gio.DesktopAppInfo.new_from_filename(str(self.file))
        self.assertEqual(entry.get_name(), TITLE)
        _, command = GLib.shell_parse_argv(entry.get_commandline())
        self.assertEqual(command, [PROGRAM, "--data-dir", str(self.data), "--connection", "any", "--hidden"])
        self.choose(False)
        self.assertFalse(self.file.exists())
        self.choose(True)
        press("ctrl+q")
        self.assertEqual(self.program.exit_code(), 0)

    def test_waits_in_the_tray(self):
        self.start_tray()
        self.launch("--hidden")
        self.wait_for_log("notification 258 sent")
        # What is marked to open at the start opens.
        wait_for(self.opened.calls, "a call of xdg-open")
        [icon] = wait_for(lambda: windows_of_class("vellumconnect"), "the icon")
        self.assertEqual(self.application.windows(), [])
        click_in_window(icon, 4, 4)
        self.window = self.application.main_window(TITLE)
        self.assertEqual(self.names_on_buttons(), ["Portal"])
        self.assertEqual(len(self.opened.calls()), 1)

    def test_shows_where_there_is_no_tray(self):
        self.launch("--hidden")
        self.wait_for_log("notification 258 sent")
        self.assertEqual(self.application.windows(), [])
        self.application.main_window(TITLE)

    def test_session_begins_where_it_runs_already(self):
        self.start()
        second = Program([PROGRAM, "--data-dir", str(self.data), "--hidden"], self.folder / "second-log")
        self.addCleanup(second.close)
        self.assertEqual(second.exit_code(), 0)
        self.assertEqual(second.output(), "")


if __name__ == "__main__":
    main()
