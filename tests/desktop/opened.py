# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What a program hands to the desktop: bin/xdg-open stands in for the real one and records it."""

import os
from pathlib import Path

BIN = Path(__file__).resolve().parent / "bin"


class Opened:
    """The calls of xdg-open, recorded in a new folder by programs that have `environment`."""

    def __init__(self, folder):
        self._folder = folder
        folder.mkdir()
        self.environment = {"PATH": f"{BIN}:{os.environ['PATH']}", "OPENED": str(folder)}

    def calls(self):
        """The arguments of every call so far, in order."""
        # Process numbers tell the order of the calls better than the times at which the processes got so far.
        records = list(self._records())
        turn = _turn(map(_process_number, records))
        records.sort(key=lambda record: (_process_number(record) < turn, _process_number(record)))
        return [record.read_text(encoding="utf-8").split("\0")[:-1] for record in records]

    def process_numbers(self):
        """Of the calls so far."""
        return [_process_number(record) for record in self._records()]

    def let_answer(self, code):
        """What later calls answer."""
        (self._folder / "answer").write_text(str(code), encoding="ascii")

    def let_stay(self):
        """Later calls stay, as a browser does."""
        (self._folder / "stay").touch()

    def _records(self):
        return self._folder.glob("*.call")


def _turn(numbers):
    """The number below which processes are later than those above: the system begins anew behind its highest one."""
    numbers = sorted(numbers)
    half = int(Path("/proc/sys/kernel/pid_max").read_text(encoding="ascii")) // 2
    return half if numbers and numbers[-1] - numbers[0] > half else 0


def _process_number(record):
    return int(record.stem.rsplit("-", 1)[1])
