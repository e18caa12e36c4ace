#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What happens to links without anybody who looks after them, and with the guard: the same faults, twice.

Usage: compare.py DRIVER [--rows killed,room,...] [--points N]
  --points N  of faults that strike at a byte, try so many bytes of each operation; 1000000 for every one
Prints a table of Markdown: in how many tries links were lost, and how many. As root, permissions are tried as the user nobody.
"""

import argparse
import concurrent.futures
import os
import shutil
import tempfile
from pathlib import Path

from run_faults import APPLICATION, MEMORY, PAGE, Faults, Try, config_path, content, document, link, missing, \
    names_before, spread

SIZE = 20
VARIANTS = {"without": {"WITHOUT_GUARD": "1"}, "now": {}}
TWO, FOREIGN, SAME = 100, 30, 10  # tries: of two programs; of each operation; of what is always the same
EMOJI_NAME = "n" * 48 + "\U0001f517"
NOBODY = 65534
WAIT = 5  # seconds, after which a start hangs


def broken_saves(faults, fault, points):
    return [lambda operation=operation, point=point: faults.one(fault, operation, SIZE, point)
            for operation in PAGE for point in faults.breaking_points(fault, operation, SIZE, points)]


def killed(faults, points):
    return broken_saves(faults, "kill", points)


def room(faults, points):
    return broken_saves(faults, "room", points)


def two(faults, _):
    return [lambda point=point: faults.one("two", "new", SIZE, point) for point in range(TWO)]


def foreign(faults, _):
    return [lambda operation=operation: faults.one("foreign", operation, SIZE, 0)
            for operation in ("new", "edit", "up", "delete") for _ in range(FOREIGN)]


def after_new(faults, data, detail, name="newed", **options):
    """A link is added; all are to be there at the next start."""
    answer = faults.run(data, f"new={name}", **options)
    found = faults.run(data, "look")["links"]
    lost = missing(names_before(SIZE), found) + (name not in found)
    told = name in found or bool(answer and answer["messages"])
    return Try(detail, "new", SIZE, 0, lost, name in found, told, f"{answer} {found}")


def latin(faults, points):
    whole = content(names_before(SIZE))

    def one(point):
        with faults.folder("look", SIZE) as data:
            config_path(data).write_bytes(whole[:point] + b"\xe9" + whole[point + 1:])
            return after_new(faults, data, f"latin {point}")
    return [lambda point=point: one(point) for point in spread(len(whole) - 1, points)]


def emoji(faults, _):
    def one():
        with faults.folder("look", SIZE) as data:
            # What fits is cut before the pair of units, or has it whole.
            faults.run(data, f"new={EMOJI_NAME}")
            found = faults.run(data, "look")["links"]
            lost = missing(names_before(SIZE), found) + (len(found) != SIZE + 1)
            return Try("emoji", "new", SIZE, 0, lost, not lost, True, f"{found}")
    return [one] * SAME


def unreadable(faults, _):
    def one():
        with faults.folder("look", SIZE) as data:
            give_to_nobody(data)
            config_path(data).chmod(0)
            return after_new(faults, data, "unreadable")
    return [one] * SAME


def read_only(faults, _):
    def one():
        with faults.folder("look", SIZE) as data:
            give_to_nobody(data)
            config_path(data).parent.chmod(0o555)
            before = config_path(data).read_bytes()
            answer = faults.run(data, "new=newed")
            config_path(data).parent.chmod(0o755)
            found = faults.run(data, "look")["links"]
            told = "newed" in found or bool(answer and answer["messages"])
            return Try("read_only", "new", SIZE, 0, missing(names_before(SIZE), found), before, told, f"{answer}")
    return [one] * SAME


def folder_gone(faults, _):
    def one():
        with faults.folder("look", SIZE) as data:
            folder, moved = config_path(data).parent, Path(data) / "moved"
            answer = faults.run(data, "new=newed", MOVED_FOLDER=str(moved))
            # It comes back, as a disk that was away, in place of what was made meanwhile.
            shutil.rmtree(folder, ignore_errors=True)
            moved.rename(folder)
            found = faults.run(data, "look")["links"]
            told = "newed" in found or bool(answer and answer["messages"])
            return Try("gone", "new", SIZE, 0, missing(names_before(SIZE), found), "newed" in found, told, f"{answer}")
    return [one] * SAME


def pipe(faults, _):
    def one():
        with faults.folder("look", SIZE) as data:
            config_path(data).unlink()
            os.mkfifo(config_path(data))
            answer = faults.run(data, "look", wait=WAIT)
            return Try("pipe", "look", SIZE, 0, missing(names_before(SIZE), answer["links"] if answer else []),
                       bool(answer), bool(answer and answer["messages"]), f"{answer}")
    return [one] * 2


def windows(faults, operation):
    """How many windows tell of 30 marked links whose program is gone."""
    with faults.folder("look", SIZE) as data:
        config_path(data).write_bytes(document(30, *(
            link(i, f"L{i}", APPLICATION, f"/no/such/program-{i}", startconnect=1, startmobile=1) for i in range(30))))
        return len(faults.run(data, operation)["messages"])


def give_to_nobody(data):
    if os.geteuid() == 0:
        Path(data).parent.chmod(0o755)
        for path in [data, *Path(data).rglob("*")]:
            os.chown(path, NOBODY, NOBODY)


ROWS = {
    "killed": ("killed at each file call of one save: New, Edit, Up, Down, Delete; 20 links", killed),
    "room": ("disk full after so many bytes of a save, the same five", room),
    "two": ("two programs, a link added in each", two),
    "foreign": ("file changed by another program, then New, Edit, Up or Delete", foreign),
    "latin": ("a byte of the file turned into Latin-1, and a New after it", latin),
    "emoji": ("a link with a name of 48 letters and an emoji", emoji),
    "unreadable": ("file unreadable for its user, and a New after it", unreadable),
    "read_only": ("folder of the file read-only, and a New", read_only),
    "folder_gone": ("folder of the file gone, a New, and the folder back", folder_gone),
    "pipe": ("a pipe in place of the file, and a start", pipe),
}


def cell(tries):
    bad = [attempt for attempt in tries if attempt.lost]
    silent = sum(not attempt.told for attempt in tries)
    text = f"lost in {len(bad)}, {sum(attempt.lost for attempt in bad)} links" if bad else "none lost"
    return text + (f"; {silent} times nobody told" if silent else "")


def measure(driver, row, variant, points):
    with tempfile.TemporaryDirectory(prefix="compare-", dir=MEMORY if os.path.isdir(MEMORY) else None) as place, \
            concurrent.futures.ThreadPoolExecutor(2) as workers:
        os.chmod(place, 0o755)
        as_nobody = row in ("unreadable", "read_only") and os.geteuid() == 0
        faults = Faults(driver, place, VARIANTS[variant], NOBODY if as_nobody else None)
        # Once for all, and by a user who may write there.
        Faults(driver, place).template(SIZE)
        tries = ROWS[row][1](faults, points)
        return [attempt.result() for attempt in [workers.submit(one) for one in tries]]


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("driver")
    parser.add_argument("--rows", default=",".join(ROWS))
    parser.add_argument("--points", type=int, default=100)
    options = parser.parse_args()
    print("| what happened | tries | without the guard | now |\n|---|---|---|---|")
    for row in options.rows.split(","):
        results = {variant: measure(options.driver, row, variant, options.points) for variant in VARIANTS}
        counts = [len(tries) for tries in results.values()]
        tries = f"{counts[0]} and {counts[1]}" if counts[0] != counts[1] else counts[0]
        print(f"| {ROWS[row][0]} | {tries} | {cell(results['without'])} | {cell(results['now'])} |", flush=True)
    with tempfile.TemporaryDirectory(prefix="compare-") as place:
        faults = Faults(options.driver, place)
        counts = ", ".join(str(windows(faults, operation)) for operation in ("look", "connections"))
        print(f"windows about 30 marked links whose program is gone, after the start, and after ten connections: {counts}")


if __name__ == "__main__":
    main()
