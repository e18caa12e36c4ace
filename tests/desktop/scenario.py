# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What every scenario shares: the real program with the real plug-in on a desktop of its own."""

import os
import shutil
import signal
import sys
import tempfile
import unittest
from pathlib import Path

from display import press, save_screen, windows_of_class
from links import config_path, save
from opened import BIN, Opened
from screen import Application, start_accessibility
from session import Program, Session
from waiting import wait_for

PROGRAM = os.environ["VELLUM_PROGRAM"]
PICTURES = Path(os.environ.get("VELLUM_PICTURES", "."))
TITLE = "Vellum Connect"


class Scenario(unittest.TestCase):
    """A desktop for each class; a folder of links, a record of what was opened, and a program for each test."""

    screen_size = "1280x1024"

    @classmethod
    def setUpClass(cls):
        cls.session = Session(cls.screen_size)
        cls.addClassCleanup(cls.session.close)
        cls.session.start_buses()
        cls.session.start_window_manager()
        start_accessibility()

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="scenario-")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.data = self.folder / "data"
        self.config = config_path(self.data)
        self.config.parent.mkdir(parents=True)
        self.opened = Opened(self.folder / "opened")
        self.program = None

    def start_tray(self):
        """Starts a tray of X11 and waits for it; it ends with the test, or when it is closed."""
        tray = Program(["trayer", "--edge", "bottom", "--align", "left", "--widthtype", "request"],
                       self.folder / "tray.log")
        self.addCleanup(tray.close)
        wait_for(lambda: windows_of_class("trayer"), "the tray")
        return tray

    def use_sample(self):
        """Takes the links of the sample for the next start."""
        shutil.copy(os.environ["VELLUM_SAMPLE"], self.config)

    def start_with(self, *links, arguments=()):
        """Starts the program with these links."""
        save(self.data, *links)
        self.start(*arguments)

    def start(self, *arguments, **environment):
        """Starts the program and waits for its window and for its word that the start is complete."""
        self.launch(*arguments, **environment)
        self.window = self.application.main_window(TITLE)
        self.wait_for_log("notification 258 sent")

    def launch(self, *arguments, wrapper=(), **environment):
        """Starts the program, by a command that becomes it where there is a `wrapper`, and waits for no window."""
        self.program = Program([*wrapper, PROGRAM, "--data-dir", str(self.data), *arguments], self.folder / "log",
                               **self.opened.environment, **environment)
        self.addCleanup(self.program.close)
        self.application = Application(self.program)

    def said(self):
        """What each program of this test said so far, for whoever looks for the reason of a failure."""
        return {"The program": self.program.output()} if self.program else {}

    def message_about(self, target):
        """Waits for a message of the program in which the target stands."""
        def is_there():
            for window in self.application.windows():
                if window.name != TITLE and any(target in text for text in window.names("label")):
                    return window
            return None

        return wait_for(is_there, f"a message about {target}")

    def wait_for_log(self, line, count=1):
        """Waits until the program has said something this many times."""
        wait_for(lambda: self.program.output().count(line) >= count, f"\"{line}\" in the log")

    def play(self, service):
        """Ends a played service of the system bus together with the test."""
        self.addCleanup(service.close)
        return service

    def links_in_menu(self):
        """Opens the Quick Links menu, reads its entries from the screen and closes it again."""
        menu = self.open_menu("Quick Links")
        names = menu.names("menu item")
        self.close_menu(menu)
        return names

    def link_buttons(self):
        """The buttons of the quick links in the window."""
        return self.window.find("filler", "Quick Links").all("push button")

    def names_on_buttons(self):
        return [button.name for button in self.link_buttons()]

    def open_menu(self, title):
        menu = self.window.find("menu bar").find("menu item", title)
        menu.click()
        return menu.find("popup menu")

    @staticmethod
    def close_menu(menu):
        press("Escape")
        wait_for(lambda: not menu.is_showing(), f"the end of {menu}")

    # -- What was opened --------------------------------------------------------------------------------------------

    def staying_calls(self, count):
        """Waits for `count` calls of xdg-open that stay: their process numbers."""
        wait_for(lambda: len(self.opened.calls()) == count, f"{count} calls of xdg-open")
        pids = self.opened.process_numbers()
        for pid in pids:
            self.addCleanup(end_by_number, pid)
        return pids

    def make_application(self, folder, name):
        """An executable file in a new folder; returns its path."""
        path = self.folder / folder / name
        path.parent.mkdir(parents=True)
        shutil.copy(BIN / "application", path)
        return path

    def started(self, application):
        """Waits until the application runs: (process number, working directory, own path, arguments)."""
        record = application.parent / "started"
        wait_for(record.exists, f"{application} to be started")
        pid, folder, path, *arguments = record.read_text(encoding="utf-8").split("\0")[:-1]
        self.addCleanup(end_by_number, int(pid))
        return int(pid), folder, path, arguments


def end_by_number(pid):
    try:
        os.kill(pid, signal.SIGKILL)
    except ProcessLookupError:
        pass


class _ResultWithPictures(unittest.TextTestResult):
    """Shows the screen, and what the program said, of a test that fails."""

    def addFailure(self, test, err):
        self._show(test)
        super().addFailure(test, err)

    def addError(self, test, err):
        self._show(test)
        super().addError(test, err)

    def addSubTest(self, test, subtest, err):
        if err:
            self._show(test)
        super().addSubTest(test, subtest, err)

    def _show(self, test):
        if not isinstance(test, Scenario):
            return
        PICTURES.mkdir(parents=True, exist_ok=True)
        path = PICTURES / f"{test.id().replace('__main__', Path(sys.argv[0]).stem)}.png"
        save_screen(path)
        self.stream.writeln(f"\nThe screen at the failure: {path}")
        for who, words in test.said().items():
            self.stream.writeln(f"{who} said:\n{words}")


def main():
    """To be called by every scenario file."""
    unittest.main(testRunner=unittest.TextTestRunner(stream=sys.stdout, verbosity=2, resultclass=_ResultWithPictures))
