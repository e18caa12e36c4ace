# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""In the tray the program goes on without its window."""

from display import active_window, click_in_window, greenness, press, windows_of_class
from links import EMAIL, INTERNET, link
from scenario import TITLE, Scenario, main
from waiting import wait_for


class Tray(Scenario):

    far_away = (20, 20)  # in the icon, from its upper left part: a click there makes no double click with one here

    def start_program(self):
        self.start_with(link(0, "Portal", INTERNET, "http://portal.example.org/"),
                        link(1, "Write", EMAIL, "mailto:"))
        self.main = active_window()

    def icon(self):
        """Waits for the icon, a window of the program in the tray's."""
        return self.new_window([self.main])

    def new_window(self, others):
        """Waits for the window that the program has besides the others."""
        return wait_for(lambda: [window for window in windows_of_class("vellumconnect") if window not in others],
                        f"a window besides {others}")[0]

    def close_window(self):
        self.window.press_close_button()
        wait_for(lambda: not self.window.is_showing(), "the end of the window")
        self.assertTrue(self.program.is_running())

    def test_closed_window_comes_back(self):
        self.start_tray()
        self.start_program()
        icon = self.icon()
        self.close_window()
        click_in_window(icon, 4, 4)
        self.window = self.application.main_window(TITLE)
        self.assertEqual(self.names_on_buttons(), ["Portal", "Write"])
        click_in_window(icon, *self.far_away)
        wait_for(lambda: not self.window.is_showing(), "the end of the window")
        self.assertTrue(self.program.is_running())

    def test_menu_of_the_icon(self):
        self.start_tray()
        self.start_program()
        icon = self.icon()
        self.close_window()
        click_in_window(icon, 4, 4, button=3)
        menu = self.new_window([icon])
        press("Down", "Right")
        self.new_window([icon, menu])
        press("Down", "Return")
        wait_for(self.opened.calls, "a call of xdg-open")
        self.assertEqual(self.opened.calls(), [["mailto:"]])
        wait_for(lambda: windows_of_class("vellumconnect") == [icon], "the end of the menus")
        click_in_window(icon, *self.far_away, button=3)
        self.new_window([icon])
        press("Up", "Return")
        self.assertEqual(self.program.exit_code(), 0)

    def test_icon_shows_the_state(self):
        self.start_tray()
        self.start_program()
        icon = self.icon()
        wait_for(lambda: abs(greenness(icon)) < 0.01, "a grey icon")
        self.window.find("push button", "Connect").click()
        wait_for(lambda: greenness(icon) > 0.02, "a green icon")
        self.window.find("push button", "Disconnect").click()
        wait_for(lambda: abs(greenness(icon)) < 0.01, "a grey icon")

    def test_quit_ends_the_program(self):
        self.start_tray()
        self.start_program()
        self.icon()
        press("ctrl+q")
        self.assertEqual(self.program.exit_code(), 0)

    def test_tray_that_comes_later(self):
        self.start_program()
        self.start_tray()
        icon = self.icon()
        self.close_window()
        click_in_window(icon, 4, 4)
        self.application.main_window(TITLE)

    def test_tray_that_goes_brings_the_window_back(self):
        tray = self.start_tray()
        self.start_program()
        self.icon()
        self.close_window()
        tray.close()
        self.window = self.application.main_window(TITLE)
        # A window of its own number by now.
        self.main = active_window()
        self.start_tray()
        icon = self.icon()
        self.close_window()
        click_in_window(icon, 4, 4)
        self.application.main_window(TITLE)


if __name__ == "__main__":
    main()
