# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""A desktop of its own: home, display and, when wanted, window manager and message buses; and the programs on it."""

import ctypes
import os
import re
import signal
import subprocess
import tempfile

from waiting import wait_for

_libc = ctypes.CDLL(None)
SANITIZER_OPTIONS = ("ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS")
_FINDING = re.compile(r"ERROR: \w+Sanitizer|^\S+:\d+:\d+: runtime error: ")


def die_with_parent():
    """Even when the test is killed, nothing that it started stays behind."""
    pr_set_pdeathsig = 1
    _libc.prctl(pr_set_pdeathsig, signal.SIGKILL)


def end(process):
    """Ends a process started here and waits until it is gone."""
    if process.poll() is None:
        process.terminate()
        try:
            process.wait(10)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()


class Session:
    """Is the environment of this process, and so of what it starts, until `close`, which ends everything."""

    def __init__(self, screen):
        self._started = []
        self._before = dict(os.environ)
        self._home = tempfile.TemporaryDirectory(prefix="desktop-", ignore_cleanup_errors=True)
        try:
            self._set_environment(self._home.name)
            os.environ["DISPLAY"] = ":" + self._start_display(screen)
        except BaseException:
            self.close()
            raise

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def start_window_manager(self):
        self._start(["openbox", "--sm-disable"])
        # A window manager tells the current desktop.
        wait_for(lambda: subprocess.run(["xdotool", "get_desktop"], capture_output=True, check=False).returncode == 0,
                 "openbox on the display")

    def start_buses(self):
        """A session bus, with accessibility, and a system bus: the computer's own network must not be seen."""
        # Knows the display, so that the accessibility bus is where Qt 5 looks for it.
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self._start_bus()
        os.environ["DBUS_SYSTEM_BUS_ADDRESS"] = self._start_bus()
        os.environ.update(QT_ACCESSIBILITY="1", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")

    @staticmethod
    def _set_environment(home):
        """Nothing of the real user's desktop may reach in, and nothing of the tests out."""
        kept = {name: value for name, value in os.environ.items()
                if name in ("PATH", *SANITIZER_OPTIONS) or name.startswith("VELLUM_")}
        runtime = os.path.join(home, "runtime")
        os.mkdir(runtime, 0o700)
        os.environ.clear()
        os.environ.update(kept, HOME=home, XDG_RUNTIME_DIR=runtime, XDG_DATA_HOME=f"{home}/data",
                          XDG_CONFIG_HOME=f"{home}/config", XDG_CACHE_HOME=f"{home}/cache", LC_ALL="C.UTF-8",
                          VELLUMCONNECT_OPERATOR_DIRS=f"{home}/operator", GSETTINGS_BACKEND="memory",
                          QT_QPA_PLATFORM="xcb")

    def _start(self, command, **options):
        self._started.append(subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                              stderr=subprocess.DEVNULL, preexec_fn=die_with_parent, **options))

    def _start_display(self, screen):
        """Of those that start at the same moment and take the same number, all but one end."""
        def command(fd):
            return ["Xvfb", "-displayfd", str(fd), "-screen", "0", f"{screen}x24", "-dpi", "96", "-nolisten", "tcp",
                    "-noreset"]
        for _ in range(20):
            try:
                return self._start_telling(command)
            except AssertionError:
                pass
        return self._start_telling(command)

    def _start_bus(self):
        return self._start_telling(
            lambda fd: ["dbus-daemon", "--session", "--nofork", "--nopidfile", f"--print-address={fd}"])

    def _start_telling(self, command):
        """Starts `command(fd)`, which writes one line to that descriptor when it is ready; returns the line."""
        read_end, write_end = os.pipe()
        with open(read_end, encoding="ascii") as pipe:
            with open(write_end, "wb"):
                self._start(command(write_end), pass_fds=[write_end])
            line = pipe.readline().strip()
        assert line, f"{command(write_end)[0]} did not start"
        return line

    def close(self):
        for process in reversed(self._started):
            end(process)
        self._started = []
        self._home.cleanup()
        os.environ.clear()
        os.environ.update(self._before)


class Program:
    """A program on the desktop, its output in a log file. `close` ends it; what it opened may live on."""

    def __init__(self, command, log, **environment):
        self._log = log
        with open(log, "wb") as output:
            self._process = subprocess.Popen(command, env={**os.environ, **environment}, stdin=subprocess.DEVNULL,
                                             stdout=output, stderr=output, preexec_fn=die_with_parent)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    @property
    def pid(self):
        return self._process.pid

    def is_running(self):
        return self._process.poll() is None

    def exit_code(self):
        """Waits until the program has ended by itself."""
        wait_for(lambda: not self.is_running(), "the end of the program")
        return self._process.returncode

    def output(self):
        with open(self._log, encoding="utf-8", errors="replace") as text:
            return text.read()

    def close(self):
        """AssertionError when a sanitizer has found something; a program that ends by itself says what it leaks."""
        end(self._process)
        found = next((line for line in self.output().splitlines() if _FINDING.search(line)), None)
        assert not found, f"a sanitizer has found something: {found}\n{self.output()}"
