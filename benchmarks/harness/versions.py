# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""When, where and with what it was measured."""

import os
import platform
import subprocess
from datetime import date


def _first_line(command):
    return subprocess.run(command, stdout=subprocess.PIPE, check=True).stdout.decode().splitlines()[0].strip()


def _package(name):
    return f"{name} {_first_line(['dpkg-query', '-W', '-f', '${Version}', name])}"


def _processor():
    with open("/proc/cpuinfo", encoding="utf-8") as lines:
        for line in lines:
            if line.startswith("model name"):
                return line.split(":", 1)[1].strip()
    return platform.machine()


def versions(qt_major):
    """A line of markdown."""
    libraries = ["libqt5widgets5", "libkf5bookmarks5"] if qt_major == 5 else ["libqt6widgets6"]
    packages = ", ".join(_package(name) for name in libraries + ["libpugixml1v5", "g++-12", "valgrind"])
    load = _first_line(["cat", "/proc/loadavg"]).split()[0]
    return (f"Measured on {date.today():%d %B %Y} on {_processor()}, {os.cpu_count()} cores, "
            f"with {packages}. Load of the machine at the start: {load}.")
