#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Breaks what the program does in every way that a computer can, starts it again, and counts what is lost.

Usage: run_faults.py DRIVER [--sizes 3,20,200] [--faults kill,ENOSPC,...] [--operations new,edit,...] [--jobs N]
                     [--points N] [--output FILE]
  --points N  of faults that strike at a byte, try so many bytes of each operation
Prints a row for each fault, as a table of Markdown; exits with 1 when a link was lost or nobody was told.
"""

import argparse
import collections
import concurrent.futures
import contextlib
import errno
import json
import os
import shutil
import subprocess
import sys
import tempfile
import threading
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "desktop"))
from links import APPLICATION, EMAIL, config_path, document, link, visible_links  # noqa: E402
from power_cut import Disk, make, states_of  # noqa: E402

PAGE = ("new", "edit", "up", "down", "delete")
ALL = (*PAGE, "start", "first", "seed")
ERRORS = {"kill": -1, **{name: getattr(errno, name) for name in ("ENOSPC", "EIO", "EROFS", "EACCES")}}
# The faults: in words, the operations that they strike, and what the user sees.
PUT_BACK = "a message, and the links as they were before"
FAILED = "\"could not be saved\" with the reason, and the links as they were before; a start says what it could not put back"
FAULTS = {
    "kill": ("killed at a file call", ALL, PUT_BACK + ", or as they were wanted"),
    "ENOSPC": ("disk full from a file call on", ALL, FAILED),
    "EIO": ("disk fails from a file call on", ALL, FAILED),
    "EROFS": ("file system read-only from a file call on", ALL, FAILED),
    "EACCES": ("nothing allowed from a file call on", ALL, FAILED),
    "room": ("disk full after so many bytes", ALL, FAILED),
    "power": ("power cut at a file call", ALL, "nothing, or " + PUT_BACK + ", or as they were wanted"),
    "foreign": ("file changed by another program, and saved over", PAGE, "a question: load theirs or keep yours"),
    "latin": ("a byte of another encoding in the file", ("start",), PUT_BACK),
    "cut": ("file cut after so many bytes", ("start",), PUT_BACK),
    "two": ("two programs at the same time", ("new",), "the second says that the first is running, and ends"),
}
FIRST = {
    "kill": "nothing: the next start copies what is missing",
    "power": "nothing: the next start copies what is missing",
}
FIRST_FAILED = "a message that the prepared links could not be put in place; the next start does it"
SEED = {
    "kill": "nothing: the next start gives what is missing",
    "power": "nothing: the next start gives what is missing",
}
SEED_FAILED = "nothing: the next start gives what could not be put in place"
ROWS = ("first", "seed")  # the operations that have rows of their own
GIVEN = "given"  # the operator's link
MEMORY = "/dev/shm"  # where waiting for the disk takes no time
PAIRS = 20  # of two programs, for each size

# lost: links; kept: whether the change in flight is there; told: whether the user knows what is not as it was wanted
Try = collections.namedtuple("Try", "fault operation size point lost kept told detail")


def names_before(size):
    return [f"L{i}" for i in range(size)]


def names_after(operation, size):
    """What the links are when the operation succeeds on the second of them."""
    names = names_before(size)
    if operation == "seed":
        names.append(GIVEN)
    elif operation == "new":
        names.append("newed")
    elif operation == "edit":
        names[1] = "edited"
    elif operation == "delete":
        del names[1]
    elif operation == "up":
        names[0], names[1] = names[1], names[0]
    elif operation == "down":
        names[1], names[2] = names[2], names[1]
    return names


def content(names):
    return document(len(names), *(link(i, name, EMAIL, "mailto:") for i, name in enumerate(names)))


def spread(length, most):
    """At most so many numbers below length, from the first on."""
    return range(0, length, max(1, -(-length // most)))


def missing(wanted, found):
    return len([name for name in wanted if name not in found])


def lost_of(before, after, found):
    """How many of the links before are not found, without the one that was to change where that has come about."""
    changed = [] if set(before) <= set(after) else ["L1"]
    lost = missing([name for name in before if name not in changed], found)
    return lost + (missing(changed, found) if found != after else 0)


class Faults:
    """Each try works in a copy of the folder of a user who has used the program before."""

    def __init__(self, driver, place, environment=None, user=None):
        """With environment beside what is there, and as another user where one is given."""
        self._driver = driver
        self._place = Path(place)
        self._environment = environment or {}
        self._user = user
        self._states = {}  # of the disk: by operation and size
        self._preparing = threading.RLock()

    def start(self, data, operation, first=0, fault=0, driver=None, **environment):
        environment = {**self.layers_of(operation), **environment}
        operation = {"new": "new=newed", "first": "start", "seed": "start"}.get(operation, operation)
        return subprocess.Popen([driver or self._driver, data, operation, str(first), str(fault)],
                                env={**os.environ, **self._environment, **environment},
                                user=self._user, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE, text=True)

    @staticmethod
    def answer(process, wait=120):
        """What the program said; None where it was killed or did not start within the time, in seconds."""
        try:
            output, _ = process.communicate(timeout=wait)
        except subprocess.TimeoutExpired:
            process.kill()
            output, _ = process.communicate()
        return json.loads(output.splitlines()[-1]) if output else None

    def run(self, data, *arguments, wait=120, **options):
        return self.answer(self.start(data, *arguments, **options), wait)

    def look(self, data, driver=None, **environment):
        found = self.run(data, "look", driver=driver, **environment)
        assert found, "the program does not start again"
        return found

    def layers_of(self, operation):
        """The environment in which an operator gives a link, or none."""
        place = self._place / ("operator" if operation == "seed" else "no-operator")
        layer = place / "links.d/office.xml"
        with self._preparing:
            if operation == "seed" and not layer.exists():
                layer.parent.mkdir(parents=True)
                layer.write_bytes(document(1, link(0, GIVEN, APPLICATION, "/usr/bin/given")))
        return {"VELLUMCONNECT_OPERATOR_DIRS": str(place)}

    def driver_of(self, operation, size):
        """For the first start a program beside which an operator's links lie."""
        if operation != "first":
            return self._driver
        place = self._place / f"installation-{size}"
        driver = place / "bin/fault_driver"
        if not driver.exists():
            driver.parent.mkdir(parents=True)
            shutil.copy(Path(self._driver).parent / "libfilecalls.so", driver.parent)
            shutil.copy(self._driver, driver)
            links = config_path(place / "share/vellumconnect/defaults")
            links.parent.mkdir(parents=True)
            links.write_bytes(content(names_before(size)))
        return driver

    @contextlib.contextmanager
    def folder(self, operation, size, has_history=True):
        """A user's folder before the operation; without history, that of one who never had a guard."""
        with tempfile.TemporaryDirectory(dir=self._place) as place:
            data = Path(place) / "data"
            if operation == "first":
                pass
            elif has_history:
                shutil.copytree(self.template(size), data)
            else:
                config_path(data).parent.mkdir(parents=True)
                config_path(data).write_bytes(content(names_before(size)))
            self.damage(data, operation, size)
            yield data

    def template(self, size):
        template = self._place / f"template-{size}"
        with self._preparing:
            if not template.exists():
                config_path(template).parent.mkdir(parents=True)
                config_path(template).write_bytes(content(names_before(size)))
                self.look(template)
        return template

    def breaking_points(self, fault, operation, size, most):
        """Where the fault can strike: file calls, or bytes, of the operation when nothing fails."""
        if fault == "two":
            return range(PAIRS)
        if fault == "foreign":
            return range(1)
        if fault in ("latin", "cut"):
            return spread(len(content(names_before(size))) - 1, most)
        if fault == "power":
            # The first run with a guard makes for itself what is on the disk in later ones.
            before = [True] if operation == "start" else [False, True] if operation in PAGE else [False]
            self._states[operation, size] = [state for has_history in before
                                             for state in self.record(operation, size, has_history)]
            return range(len(self._states[operation, size]))
        with self.folder(operation, size) as data:
            answer = self.run(data, operation, *((10**9, "room") if fault == "room" else (0, 1)),
                              driver=self.driver_of(operation, size))
            assert answer and answer["links"] == names_after(operation, size), (operation, answer)
            points = spread(answer["bytes"], most) if fault == "room" else range(1, answer["calls"] + 1)
            assert points, operation
            return points

    def record(self, operation, size, has_history):
        """The states of the disk in one operation, each with whether the change is to last by then."""
        with self.folder(operation, size, has_history) as data, \
                tempfile.NamedTemporaryFile(dir=self._place) as journal:
            disk = Disk(data)
            answer = self.run(data, operation, 0, "record", self.driver_of(operation, size), JOURNAL=journal.name)
            assert answer and answer["links"] == names_after(operation, size), (operation, answer)
            states = states_of(disk, Path(journal.name).read_text().splitlines())
            assert disk.seen() == Disk(data).seen(), "the journal misses a call"
            return states

    @staticmethod
    def damage(data, operation, size):
        """What makes a start write: a file that was cut since the last run."""
        if operation == "start":
            config_path(data).write_bytes(content(names_before(size))[:-20])

    def one(self, fault, operation, size, point):
        if fault == "power":
            return self.power_cut(operation, size, point)
        with self.folder(operation if fault not in ("latin", "cut") else "look", size) as data:
            if fault == "two":
                return self.two_programs(data, size, point)
            if fault == "foreign":
                return self.foreign(data, operation, size)
            if fault in ("latin", "cut"):
                return self.bad_file(data, fault, size, point)
            return self.broken_run(data, fault, operation, size, point)

    def broken_run(self, data, fault, operation, size, point):
        before, after = names_before(size), names_after(operation, size)
        driver = self.driver_of(operation, size)
        answer = self.run(data, operation, point, ERRORS.get(fault, fault), driver)
        found = self.look(data, driver, **self.layers_of(operation))["links"]
        lost = lost_of(before, after, found)
        if operation == "seed":
            # The user asked for nothing: what counts is that it is there in the end, and noted.
            return Try(fault, operation, size, point, lost, found == after, self.is_given(data, size), f"{answer} -> {found}")
        # What the window shows at the end is what was wanted and is there at the next start; else somebody is told.
        told = found in (before, after) and \
            (fault == "kill" if not answer else answer["links"] == found == after or bool(answer["messages"]))
        return Try(fault, operation, size, point, lost, found == after, told, f"{answer} -> {found}")

    def is_given(self, data, size):
        """Whether the operator's link is there, and stays away once the user has deleted it."""
        layers = self.layers_of("seed")
        is_there = self.look(data, **layers)["links"] == names_after("seed", size)
        config_path(data).write_bytes(content(names_before(size)))
        return is_there and self.look(data, **layers)["links"] == names_before(size)

    def power_cut(self, operation, size, point):
        state, is_done = self._states[operation, size][point]
        before, after = names_before(size), names_after(operation, size)
        with tempfile.TemporaryDirectory(dir=self._place) as data:
            make(data, state)
            answer = self.look(data, self.driver_of(operation, size), **self.layers_of(operation))
            is_given = operation != "seed" or self.is_given(Path(data), size)
        found = answer["links"]
        # A change that was done before the power went is there.
        lost = lost_of(before, after, found) + (is_done and found != after)
        return Try("power", operation, size, point, lost, found == after,
                   found in (before, after) and is_given,
                   f"{is_done} {[(name, len(data)) for name, data in state]} {answer}")

    def foreign(self, data, operation, size):
        theirs = names_before(size) + ["theirs"]
        other = Path(data) / "other.xml"
        other.write_bytes(content(theirs))
        answer = self.run(data, operation, FOREIGN_LINKS=str(other))
        kept = [config_path(data), *(Path(data) / "history").glob("*")]
        states = [[item["name"] for item in visible_links_of(path)] for path in kept]
        after = names_after(operation, size)
        # Both what the user made and what the other program made can be had.
        lost = (theirs not in states) + (after not in states)
        return Try("foreign", operation, size, 0, lost, self.look(data)["links"] == after,
                   any("another program" in message for message in answer["messages"]), f"{answer} {states}")

    def bad_file(self, data, fault, size, point):
        whole = content(names_before(size))
        bad = whole[:point] + (b"\xe9" + whole[point + 1:] if fault == "latin" else b"")
        config_path(data).write_bytes(bad)
        answer = self.run(data, "start")
        aside = [path.read_bytes() for path in config_path(data).parent.glob("*.damaged-*")]
        lost = missing(names_before(size), answer["links"]) + (0 if aside == [bad] else 1)
        return Try(fault, "start", size, point, lost, not lost, bool(answer["messages"]), f"{answer}")

    def two_programs(self, data, size, point):
        both = [self.start(data, f"new={name}") for name in ("first", "second")]
        answers = [self.answer(process) for process in both]
        # One that was kept away said so and ended; what the other added is there.
        added = [name for name, answer in zip(("first", "second"), answers) if answer]
        found = self.look(data)["links"]
        told = all(answer or process.returncode == 1 for process, answer in zip(both, answers))
        return Try("two", "new", size, point, missing(names_before(size) + added, found), bool(added), told,
                   f"{answers} -> {found}")


def visible_links_of(path):
    """As `visible_links`, of one file."""
    with tempfile.TemporaryDirectory() as data:
        config_path(data).parent.mkdir(parents=True)
        shutil.copy(path, config_path(data))
        return visible_links(data)


def parse_arguments():
    parser = argparse.ArgumentParser()
    parser.add_argument("driver")
    parser.add_argument("--sizes", default="3,20,200")
    parser.add_argument("--faults", default=",".join(FAULTS))
    parser.add_argument("--operations", default=",".join(ALL))
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--points", type=int, default=100)
    parser.add_argument("--output", type=argparse.FileType("w"), default=sys.stderr)
    return parser.parse_args()


def main():
    options = parse_arguments()
    with tempfile.TemporaryDirectory(prefix="faults-", dir=MEMORY if os.path.isdir(MEMORY) else None) as place, \
            concurrent.futures.ThreadPoolExecutor(options.jobs) as workers:
        faults = Faults(options.driver, place)
        tries = []
        for size in map(int, options.sizes.split(",")):
            for fault in options.faults.split(","):
                for operation in set(FAULTS[fault][1]) & set(options.operations.split(",")):
                    tries += [workers.submit(faults.one, fault, operation, size, point)
                              for point in faults.breaking_points(fault, operation, size, options.points)]
        results = [attempt.result() for attempt in tries]
    rows = collections.defaultdict(list)
    for attempt in results:
        rows[attempt.fault, ROWS.index(attempt.operation) if attempt.operation in ROWS else -1].append(attempt)
        if attempt.lost or not attempt.told:
            print(attempt, file=options.output)
    print("| fault | tries | links lost | change in place | nobody told | what the user sees |\n|---|---|---|---|---|---|")
    for (fault, row), attempts in sorted(rows.items(), key=lambda row: (row[0][1], list(FAULTS).index(row[0][0]))):
        name, _, seen = FAULTS[fault]
        if row == 0:
            name, seen = f"first start: {name}", FIRST.get(fault, FIRST_FAILED)
        elif row == 1:
            name, seen = f"operator's link: {name}", SEED.get(fault, SEED_FAILED)
        print(f"| {name} | {len(attempts)} | {sum(a.lost for a in attempts)} |"
              f" {sum(a.kept for a in attempts)} | {sum(not a.told for a in attempts)} | {seen} |")
    sys.exit(any(attempt.lost or not attempt.told for attempt in results))


if __name__ == "__main__":
    main()
