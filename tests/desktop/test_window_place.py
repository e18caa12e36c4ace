# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""The window comes where it was, as large as it was, and always where it can be seen."""

import os
import signal

from display import active_window, press, windows_of_class, xdotool
from links import INTERNET, link, save
from scenario import Scenario, main
from waiting import wait_for


class WindowPlace(Scenario):

    def setUp(self):
        super().setUp()
        save(self.data, link(0, "Portal", INTERNET, "http://portal.example.org/"))

    def move(self, x, y, width, height):
        """The window manager's place, with the frame, and the size within it."""
        window = active_window()
        xdotool("windowsize", window, width, height)
        wait_for(lambda: self.window.extents[2:] == (width, height), f"a window of {width} x {height}")
        xdotool("windowmove", window, x, y)
        # The frame may count or not.
        wait_for(lambda: abs(self.window.extents[0] - x) < 10, f"a window near {x}; it is at {self.window.extents}")
        return self.window.extents

    def test_next_start(self):
        self.start()
        place = self.move(300, 200, 700, 600)
        # More than once: a frame that is left out moves it by a few pixels each time.
        for way in ("ctrl+q", "alt+F4", "ctrl+q"):
            press(way)
            self.assertEqual(self.program.exit_code(), 0)
            self.start()
            wait_for(lambda: self.window.extents == place, f"{place}; it is at {self.window.extents}")

    def test_place_off_the_screen(self):
        self.start()
        self.move(1000, 800, 700, 600)
        press("ctrl+q")
        self.assertEqual(self.program.exit_code(), 0)
        self.start()
        width, height = map(int, self.screen_size.split("x"))

        def is_on_screen():
            x, y, window_width, window_height = self.window.extents
            return 0 <= x <= width - window_width and 0 <= y <= height - window_height

        wait_for(is_on_screen, f"the window on the screen; it is at {self.window.extents}")

    def test_window_that_was_hidden(self):
        self.start_tray()
        self.start()
        wait_for(lambda: len(windows_of_class("vellumconnect")) == 2, "the icon in the tray")
        place = self.move(300, 200, 700, 600)
        press("alt+F4")
        wait_for(lambda: not self.window.is_showing(), "the end of the window")
        # It does not have to end well.
        os.kill(self.program.pid, signal.SIGKILL)
        self.program.exit_code()
        self.start()
        wait_for(lambda: self.window.extents == place, f"{place}; it is at {self.window.extents}")


if __name__ == "__main__":
    main()
