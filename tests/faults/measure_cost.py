#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What the guard of the links, and the operator's links, cost a user.

Usage: measure_cost.py DRIVER
Prints rows of Markdown: the time of a click that saves 20 links, without and with the guard, in turns; what the guard
does before plug-ins are loaded, with one and with 100 kept states; and the time until plug-ins are loaded, without links of the
operator, with 100 that were given before, and with 100 that are given then. Medians, in microseconds.
"""

import statistics
import sys
import tempfile
from pathlib import Path

from run_faults import APPLICATION, Faults, config_path, content, document, link, names_before

TURNS = 41
SIZE = 20
STATES = 100
LAYER = 100  # links of the operator
OPERATOR = "VELLUMCONNECT_OPERATOR_DIRS"


def starts_with_layers(faults, place):
    """The times until plug-ins are loaded, in turns: without links of the operator, with those of before, with new ones."""
    layer = Path(place) / "operator/links.d/office.xml"
    layer.parent.mkdir(parents=True)
    layer.write_bytes(document(LAYER, *(link(i, f"Operator's {i}", APPLICATION, f"/opt/office/bin/program-{i}")
                                        for i in range(LAYER))))
    environment = {OPERATOR: str(layer.parent.parent)}
    none, before, new = [], [], []
    for _ in range(TURNS):
        with faults.folder("look", SIZE) as data:
            none.append(faults.run(data, "look")["load"])
        with faults.folder("look", SIZE) as data:
            new.append(faults.run(data, "look", **environment)["load"])
            before.append(faults.run(data, "look", **environment)["load"])
    return map(statistics.median, (none, before, new))


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
        none, before, new = starts_with_layers(faults, place)
    without, guarded = (statistics.median(clicks[variable]) for variable in ("UNGUARDED", ""))
    few, many = map(statistics.median, starts)
    print("| what | microseconds | |\n|---|--:|---|")
    print(f"| a click that saves {SIZE} links, the guard left out | {without:.0f} | |")
    print(f"| the same with the guard | {guarded:.0f} | {guarded / without:.3f} times |")
    print(f"| the guard's look before plug-ins are loaded, 1 kept state | {few:.0f} | |")
    print(f"| the same, {STATES} kept states | {many:.0f} | {(many - few) / 1000:.2f} ms more |")
    print(f"| until plug-ins are loaded, no links of the operator | {none:.0f} | |")
    print(f"| the same, {LAYER} that were given before | {before:.0f} | {(before - none) / 1000:.2f} ms more |")
    print(f"| the same, {LAYER} that are given then | {new:.0f} | {(new - none) / 1000:.2f} ms more |")


if __name__ == "__main__":
    main()
