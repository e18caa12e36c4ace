# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""One program for a folder: a second start, and the desktop, reach the one that runs."""

import configparser
import os
import subprocess
from pathlib import Path

from gi.repository import Gio, GLib

from display import active_window, press, xdotool
from links import INTERNET, link
from scenario import PROGRAM, TITLE, Scenario, main
from session import Program
from screen import Application
from settings_dialog import SettingsDialog
from waiting import wait_for

NAME = "com.norvik.vellumconnect"
ENTRY = Path(__file__).resolve().parents[2] / "host/app/com.norvik.vellumconnect.desktop"


class OneProgram(Scenario):

    def setUp(self):
        super().setUp()
        self.start_with(link(0, "Portal", INTERNET, "https://portal.example.org/"))
        wait_for(lambda: self.names_on_bus(), "a name on the bus")

    @staticmethod
    def call(name, path, interface, method, arguments=None):
        bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        return bus.call_sync(name, path, interface, method, arguments, None, Gio.DBusCallFlags.NO_AUTO_START, 30000)

    def names_on_bus(self):
        [names] = self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "ListNames")
        return [name for name in names if name.startswith(NAME)]

    def ask(self, method, arguments, name=None):
        self.call(name or self.names_on_bus()[0], "/com/norvik/vellumconnect", "org.freedesktop.Application", method,
                  arguments)

    def act(self, action, name=None):
        self.ask("ActivateAction", GLib.Variant("(sava{sv})", (action, [], {})), name)

    def start_second(self, *arguments, **environment):
        return subprocess.run([PROGRAM, "--data-dir", str(self.data), *arguments], capture_output=True, text=True,
                              timeout=60, check=False, env={**os.environ, **environment})

    def expect_second_start_to_end_well(self):
        second = self.start_second()
        self.assertEqual((second.returncode, second.stdout, second.stderr), (0, "", ""))

    def expect_in_front(self):
        self.application.main_window(TITLE)
        self.assertEqual(self.names_on_buttons(), ["Portal"])

    def test_second_start_brings_the_first_to_the_front(self):
        window = active_window()
        for gone in ("minimised", "behind another"):
            with self.subTest(gone=gone):
                with Program([PROGRAM, "--data-dir", str(self.folder / "other")], self.folder / "other-log"):
                    wait_for(lambda: active_window() not in ("", window), "another window in front")
                    if gone == "minimised":
                        xdotool("windowminimize", window)
                    self.expect_second_start_to_end_well()
                    wait_for(lambda: active_window() == window, "the window in front")
        self.expect_in_front()
        self.assertEqual(self.opened.calls(), [])

    def test_second_start_comes_to_the_open_dialog(self):
        press("ctrl+comma")
        settings = SettingsDialog(self.application)
        self.expect_second_start_to_end_well()
        SettingsDialog(self.application).wait_for_links("Portal")
        settings.close()

    def test_second_start_without_a_bus(self):
        second = self.start_second(DBUS_SESSION_BUS_ADDRESS="unix:path=/nonexistent")
        self.assertEqual((second.returncode, second.stdout), (1, ""))
        self.assertEqual(len(second.stderr.splitlines()), 1, second.stderr)
        self.assertIn(f"It is running already, as process {self.program.pid}", second.stderr)
        german = self.start_second("--language", "de", DBUS_SESSION_BUS_ADDRESS="unix:path=/nonexistent")
        self.assertEqual(german.returncode, 1)
        self.assertIn(f"Prozess {self.program.pid}", german.stderr)
        self.expect_in_front()

    def test_another_folder_is_another_program(self):
        self.assertEqual(len(self.names_on_bus()), 1)
        first = self.program
        self.data = self.folder / "other"
        self.launch()
        self.application.main_window(TITLE)
        wait_for(lambda: len(self.names_on_bus()) == 2, "a second name on the bus")
        self.assertTrue(first.is_running())

    def test_the_folder_of_the_user_has_the_plain_name(self):
        program = Program([PROGRAM], self.folder / "plain-log", XDG_DATA_HOME=str(self.folder))
        self.addCleanup(program.close)
        wait_for(lambda: NAME in self.names_on_bus(), "the plain name on the bus")
        self.act("quit", NAME)
        self.assertEqual(program.exit_code(), 0)
        self.assertNotIn(NAME, self.names_on_bus())

    def test_actions_of_a_desktop_that_runs_commands(self):
        """By what stands in the desktop entry for those that do not reach actions over the bus themselves."""
        entry = configparser.ConfigParser(interpolation=None)
        entry.optionxform = str
        entry.read(ENTRY, encoding="utf-8")
        program = Program([PROGRAM], self.folder / "plain-log", XDG_DATA_HOME=str(self.folder))
        self.addCleanup(program.close)
        wait_for(lambda: NAME in self.names_on_bus(), "the plain name on the bus")
        subprocess.run(entry["Desktop Action settings"]["Exec"].split(), check=True)
        SettingsDialog(Application(program)).close()
        subprocess.run(entry["Desktop Action quit"]["Exec"].split(), check=True)
        self.assertEqual(program.exit_code(), 0)

    def test_actions_of_the_desktop(self):
        self.act("settings")
        SettingsDialog(self.application).wait_for_links("Portal")
        # Not a second dialog above the first.
        self.act("settings")
        SettingsDialog(self.application).close()
        self.expect_in_front()
        self.ask("Activate", GLib.Variant("(a{sv})", ({},)))
        self.ask("Open", GLib.Variant("(asa{sv})", (["http://x.example.org/"], {})))
        self.expect_in_front()
        self.assertEqual(self.opened.calls(), [])
        self.act("quit")
        self.assertEqual(self.program.exit_code(), 0)


if __name__ == "__main__":
    main()
