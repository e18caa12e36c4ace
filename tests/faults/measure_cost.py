#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What the guard of the links costs a user.

Usage: measure_cost.py DRIVER
Prints two rows of Markdown: the time of a click that saves 20 links, without and with the guard, in turns; and what the guard
does before plug-ins are loaded, with one and with 100 kept states. Medians, in microseconds.
"""

import statistics
import sys
import tempfile

from run_faults import Faults, config_path, content, names_before

TURNS = 41
SIZE = 20
STATES = 100


def main():
    with tempfile.TemporaryDirectory(prefix="cost-") as place:
        faults = Faults(sys.argv[1], place)
        clicks = {"": [], "UNGUARDED": []}
        for _ in range(TURNS):
            for variable, times in clicks.items():
                with faults.folder("up", SIZE) as data:
                    times.append(faults.run(data, "up", **({variable: "1"} if variable else {}))["click"])
        starts = []
        with faults.folder("look", SIZE) as data:
            starts.append([faults.run(data, "look")["guard"] for _ in range(TURNS)])
            for i in range(STATES):
                config_path(data).write_bytes(content([*names_before(SIZE), f"state {i}"]))
                faults.run(data, "look")
            starts.append([faults.run(data, "look")["guard"] for _ in range(TURNS)])
    without, guarded = (statistics.median(clicks[variable]) for variable in ("UNGUARDED", ""))
    few, many = map(statistics.median, starts)
    print("| what | microseconds | |\n|---|--:|---|")
    print(f"| a click that saves {SIZE} links, the guard left out | {without:.0f} | |")
    print(f"| the same with the guard | {guarded:.0f} | {guarded / without:.3f} times |")
    print(f"| the guard's look before plug-ins are loaded, 1 kept state | {few:.0f} | |")
    print(f"| the same, {STATES} kept states | {many:.0f} | {(many - few) / 1000:.2f} ms more |")


if __name__ == "__main__":
    main()
