# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""The program in a tray of the kind that speaks over the session bus."""

from links import INTERNET, link
from scenario import TITLE, Scenario, main
from status_notifier import StatusNotifierTray
from waiting import wait_for


class TrayOnTheBus(Scenario):
    def start_program(self):
        self.start_with(link(0, "Portal", INTERNET, "http://portal.example.org/"))

    def close_window(self, tray):
        wait_for(tray.items, "an icon in the tray")
        self.window.press_close_button()
        wait_for(lambda: not self.window.is_showing(), "the end of the window")
        self.assertTrue(self.program.is_running())

    def test_closed_window_comes_back(self):
        tray = self.play(StatusNotifierTray())
        self.start_program()
        self.close_window(tray)
        tray.click(tray.items()[0])
        self.application.main_window(TITLE)

    def test_tray_that_goes_brings_the_window_back(self):
        tray = self.play(StatusNotifierTray())
        self.start_program()
        self.close_window(tray)
        tray.kill()
        self.window = self.application.main_window(TITLE)
        self.close_window(self.play(StatusNotifierTray()))

    def test_service_that_stays_without_its_tray(self):
        tray = self.play(StatusNotifierTray())
        self.start_program()
        self.close_window(tray)
        tray.set_host(False)
        self.window = self.application.main_window(TITLE)
        tray.set_host(True)
        self.close_window(tray)

if __name__ == "__main__":
    main()
