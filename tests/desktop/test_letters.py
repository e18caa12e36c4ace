# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Letters of any size on the desktop, and names of any length, in windows whose sizes are fixed in pixels."""

import os
import subprocess

from display import active_window, press, window_size, xdotool
from letters import environment_of, letters, scale_of
from links import APPLICATION, EMAIL, INTERNET, link, save
from scenario import PROGRAM, TITLE, main
from screen import Widget
from settings_scenario import SettingsScenario
from waiting import wait_for

PORTAL = link(0, "Portal", INTERNET, "https://portal.example.org/")
LONG = "x" * 440
TURNED = "photo\u202egpj.exe"


class Letters(SettingsScenario):

    screen_size = "2000x1600"

    def start_with_letters(self, points, *links, **environment):
        """Starts the program with these links on a desktop with letters of so many points."""
        save(self.data, *links)
        self.addCleanup(setattr, Widget, "scale", 1)
        self.desktop = {**letters(self.folder, points), **environment}
        self.start(**self.desktop)
        Widget.scale = scale_of(self.program.pid)

    def expect_growth(self, points, scale):
        self.start_with_letters(points, PORTAL)
        self.assertAlmostEqual(Widget.scale, scale, 1)
        settings = self.open_settings()
        # The screen's pixels, for those that the program counts in.
        self.assertAlmostEqual(window_size(active_window())[0] / settings.window.extents[2], Widget.scale, 1)
        # The letters are no larger for it: a label is as high as a line of them.
        line = settings.window.find("label", "Links open in this order:").extents[3]
        self.assertLess(line, 18)
        dialog = settings.new()
        dialog.field("Name:").type("Notes")
        dialog.choose_type("E-mail")
        dialog.close()
        settings.wait_for_links("Portal", "Notes")

    def test_everything_grows_with_large_letters(self):
        self.expect_growth(14, 1.56)

    def test_everything_grows_with_huge_letters(self):
        self.expect_growth(24, 2.67)

    def test_nothing_grows_with_small_letters(self):
        self.start_with_letters(9, PORTAL)
        self.assertNotIn("QT_SCALE_FACTOR", environment_of(self.program.pid))

    def test_what_the_user_asked_of_the_toolkit_wins(self):
        self.start_with_letters(14, PORTAL, QT_SCALE_FACTOR="1")
        self.assertEqual(environment_of(self.program.pid)["QT_SCALE_FACTOR"], "1")
        self.assertNotIn("VELLUMCONNECT_LETTER_SCALE", environment_of(self.program.pid))

    def test_what_is_opened_has_nothing_of_it(self):
        application = self.make_application("programs", "notes")
        self.start_with_letters(14, link(0, "Notes", APPLICATION, str(application)))
        self.assertIn("QT_SCALE_FACTOR", environment_of(self.program.pid))
        self.window.find("push button", "Notes").click()
        pid = self.started(application)[0]
        own = {name for name in environment_of(pid).keys() - os.environ.keys()
               if name.startswith(("QT_SCALE", "QT_FONT", "VELLUMCONNECT"))}
        self.assertEqual(own, set())

    def test_second_start_hands_over(self):
        self.start_with_letters(14, PORTAL)
        other = self.window
        second = subprocess.run([PROGRAM, "--data-dir", str(self.data)], capture_output=True, text=True, timeout=60,
                                check=False, env={**os.environ, **self.desktop})
        self.assertEqual((second.returncode, second.stdout, second.stderr), (0, "", ""))
        self.assertTrue(other.is_showing())

    def test_settings_page_stands_in_the_middle_of_a_large_window(self):
        self.start_with(PORTAL)
        settings = self.open_settings()
        xdotool("windowsize", active_window(), 1500, 1000)
        wait_for(lambda: settings.window.extents[2] == 1500, "the large window")

        def margins():
            pages = settings.window.find("list", "Pages").extents
            tab = settings.window.find("page tab", "Quick Links").extents
            button = settings.button("New…").extents
            return tab[0] - pages[0] - pages[2], 1500 + settings.window.extents[0] - button[0] - button[2]

        wait_for(lambda: abs(margins()[0] - margins()[1]) < 30 and margins()[0] > 300, f"equal margins: {margins()}")

    def test_long_name_is_within_reach(self):
        self.start_with(link(0, LONG, EMAIL, "mailto:"), PORTAL)
        menu = self.open_menu("Quick Links")
        entry = menu.all("menu item")[0]
        self.assertEqual(entry.name, LONG[:60] + "…")
        self.assertLess(menu.extents[2], 800)
        x, y, width, height = entry.extents
        xdotool("mousemove", x + width // 2, y + height // 2, "mousemove_relative", "2", "1")

        def tip():
            return [window for window in self.application.windows() if window.role == "tool tip"]

        x, _, width, _ = wait_for(tip, "a tool tip")[0].extents
        self.assertLess(x + width, 2000)
        self.close_menu(menu)
        self.assertEqual(self.names_on_buttons(), [LONG, "Portal"])
        self.assertLess(self.window.extents[2], 800)

    def test_name_that_turns_around_does_not(self):
        self.start_with(link(0, TURNED, APPLICATION, f"/no such/{TURNED}"))
        self.assertEqual(self.links_in_menu(), ["photo gpj.exe"])
        self.assertEqual(self.names_on_buttons(), ["photo gpj.exe"])
        self.open_menu("Quick Links").all("menu item")[0].click()
        self.message_about("/no such/photo gpj.exe")
        press("Return")
        self.application.main_window(TITLE)


if __name__ == "__main__":
    main()
