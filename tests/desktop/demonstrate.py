# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Starts the program on a virtual display, picks every entry of its Quick Links menu by keyboard, and says what opened.

Usage: demonstrate.py PROGRAM DATA_FOLDER OUTPUT_FOLDER [ARGUMENTS OF PROGRAM]; scripts/run.sh calls it.
A recording xdg-open comes first in PATH, so no browser or mail program starts. Applications of links do start, on the
virtual display, and end with it. Screenshots: OUTPUT_FOLDER/screenshots
"""

import os
import sys
from functools import partial
from pathlib import Path
from tempfile import TemporaryDirectory

import waiting
from display import (active_window, press, process_of_window, save_screen_at_rest, window_title, windows_of_class,
                     xdotool)
from links import APPLICATION, visible_links
from opened import Opened
from session import Program, Session

wait_for = partial(waiting.wait_for, patience=30.0)  # seconds: the computer may be slow


def windows():
    """All visible ones, menus included."""
    return windows_of_class(".")


def windows_besides(others):
    return [window for window in windows() if window not in others]


def wait_until_gone(window, what):
    wait_for(lambda: window not in windows(), f"the end of {what}")


def focus(window):
    """Keys go to the window that has the focus."""
    xdotool("windowactivate", window)
    wait_for(lambda: active_window() == window, f"the focus in the window \"{window_title(window)}\"")


class Demonstration:

    def __init__(self, program, opened, screenshots):
        self._program = program
        self._opened = opened
        self._screenshots = screenshots
        wait_for(lambda: windows() or not program.is_running(), "the program's window")
        assert windows(), "the program showed no window"
        self._window = windows()[0]
        print(f"Started the program: window \"{window_title(self._window)}\"")
        focus(self._window)
        self._take("main-window")

    def _take(self, name):
        save_screen_at_rest(self._screenshots / f"{name}.png")

    def pick(self, index, link):
        """Picks an entry (from 0) of the Quick Links menu by keyboard and says what opened."""
        name = link["name"]
        before = windows()
        calls_before = len(self._opened.calls())
        press("alt+q")
        menu = wait_for(lambda: windows_besides(before), "the Quick Links menu")[0]
        press("Home", *["Down"] * index)
        if index == 0:
            self._take("quick-links-menu")
        press("Return")
        wait_until_gone(menu, f"the menu at \"{name}\"")
        wait_for(lambda: len(self._opened.calls()) > calls_before or windows_besides(before),
                 f"something that \"{name}\" opens")
        new = windows_besides(before)
        if new:
            self._look_at(new[0], index, link)
        else:
            print(f"Picked \"{name}\": xdg-open was called with {' '.join(self._opened.calls()[-1])}")
        focus(self._window)

    def _look_at(self, window, index, link):
        """A window that a link opened: its application, which ends here, or a message, which is closed."""
        name, url = link["name"], link["url"]
        title = window_title(window)
        if process_of_window(window) != str(self._program.pid):
            self._take(f"application-{index}")
            print(f"Picked \"{name}\": {url} was started, window \"{title}\"")
            xdotool("windowkill", window)
        else:
            self._take(f"message-{index}")
            assert link["type"] == APPLICATION and not os.path.exists(url), \
                f"picking \"{name}\" showed a message and did not open {url}"
            print(f"Picked \"{name}\": a message says that {url} cannot be opened")
            focus(window)
            press("Escape")
        wait_until_gone(window, f"the window \"{title}\"")

    def close(self):
        press("alt+F4")
        wait_until_gone(self._window, "the window")
        code = self._program.exit_code()
        assert code == 0, f"the program ended with exit code {code}"
        print("Closed the window; the program ended")


def main(program_file, data, output, *arguments):
    log = Path(output) / "demo.log"
    log.write_bytes(b"")
    screenshots = Path(output) / "screenshots"
    screenshots.mkdir(parents=True, exist_ok=True)
    for picture in screenshots.glob("*.png"):
        picture.unlink()
    try:
        with TemporaryDirectory() as scratch, Session("1024x768") as session:
            session.start_window_manager()
            opened = Opened(Path(scratch) / "opened")
            with Program([program_file, "--data-dir", data, *arguments], log, **opened.environment) as program:
                demonstration = Demonstration(program, opened, screenshots)
                for index, link in enumerate(visible_links(data)):
                    demonstration.pick(index, link)
                demonstration.close()
    except AssertionError as failure:
        sys.exit(f"{log.read_text(errors='replace')}{Path(__file__).name}: {failure}")
    print(f"Screenshots: {screenshots}/*.png")


sys.stdout.reconfigure(line_buffering=True)
main(*sys.argv[1:])
