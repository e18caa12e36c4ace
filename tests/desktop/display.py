# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""The display as X knows it: its windows by their numbers, mouse, keyboard, and pictures of what it shows."""

import subprocess

from waiting import wait_for


def _output(*command, **options):
    return subprocess.run([*map(str, command)], check=True, capture_output=True, **options).stdout


def xdotool(*arguments):
    return _output("xdotool", *arguments, text=True).strip()


def _answer(*arguments):
    """What xdotool says, even when it fails: a window that is asked for may be gone, and none may be active."""
    return subprocess.run(["xdotool", *arguments], capture_output=True, text=True, check=False).stdout.strip()


def press(*keys):
    """Presses keys, such as "Return" or "ctrl+comma", in whatever has the focus."""
    xdotool("key", *keys)


def windows_of_class(name):
    """The visible windows of this class, among them those that the screen reader does not see."""
    return _answer("search", "--onlyvisible", "--class", name).split()


def active_window():
    return _answer("getactivewindow")


def active_window_title():
    return _answer("getactivewindow", "getwindowname")


def window_title(window):
    return _answer("getwindowname", window)


def window_size(window):
    """(width, height) without its frame, in pixels of the display."""
    lines = _answer("getwindowgeometry", "--shell", window).splitlines()
    values = dict(line.split("=") for line in lines)
    return int(values["WIDTH"]), int(values["HEIGHT"])


def process_of_window(window):
    return _answer("getwindowpid", window)


def click_in_window(window, x, y, button=1):
    """Clicks inside such a window, so many pixels from its corner."""
    xdotool("mousemove", "--window", window, x, y, "click", button)


def _picture(*what):
    return _output("import", "-silent", *what, "png:-")


def save_screen(path):
    """The whole screen as a file, as it is now."""
    _output("import", "-silent", "-window", "root", path)


def _save_at_rest(path, *what):
    pictures = []

    def is_at_rest():
        # Without the time at which each was taken.
        pictures.append(_output("convert", "png:-", "-strip", "png:-", input=_picture(*what)))
        return pictures[-2:-1] == pictures[-1:]

    wait_for(is_at_rest, "the picture to come to rest")
    with open(path, "wb") as file:
        file.write(pictures[-1])


def save_screen_at_rest(path):
    """The whole screen as a file, once it has come to rest."""
    _save_at_rest(path, "-window", "root")


def save_active_window(path):
    """The active window with its frame as a file, once it has come to rest and does not show the mouse over it."""
    xdotool("mousemove", 0, 0)
    _save_at_rest(path, "-frame", "-window", active_window())


def greenness(window):
    """How much more green than red a window shows on average, from -1 to 1."""
    return float(_output("convert", "png:-", "-format", "%[fx:mean.g-mean.r]", "info:",
                         input=_picture("-window", window)))
