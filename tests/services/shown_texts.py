# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Every text that the program's window shows, were it for a moment that nobody who looks now and then would catch."""

import sys

from namespaces import FOLDER
from session import Program
from waiting import wait_for


class ShownTexts:
    """The texts from now on, in order; hears them once `wait_for` has heard the first."""

    def __init__(self, program, log):
        self._watcher = Program([sys.executable, "-B", FOLDER / "watch_texts.py", str(program.pid)], log)
        wait_for(lambda: self._watcher.output(), "the watcher")

    def all(self):
        return self._watcher.output().splitlines()[1:]

    def wait_for(self, text, count=1):
        """Waits until it has been shown so many times."""
        wait_for(lambda: self.all().count(text) >= count, f"\"{text}\", shown {count} times; so far {self.all()}")

    def close(self):
        self._watcher.close()
