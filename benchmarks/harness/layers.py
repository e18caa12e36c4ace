# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What the operator's links cost the starts of a computer, over many made-up homes."""

import os
import subprocess
from collections import defaultdict, namedtuple
from statistics import median, quantiles

from harness.programs import Failed, environment

HOMES = 10000
TARGET = 5 # milliseconds over a start without links of the operator

# The starts, as bench_layers names them, and what they are.
WITHOUT = "none"
STARTS = {WITHOUT: "no links of the operator", "ordinary": "all were given before",
          "touched": "and the user deleted one and renamed another", "changed": "10 new, 10 taken away",
          "new": "100 new", "first": "100 new, the user's first start"}


Start = namedtuple("Start", "passed cpu") # milliseconds


def _measured(programs, folder, homes):
    """The starts of all homes, by their names."""
    done = subprocess.run([programs.path("bench_layers"), "0", str(homes), folder],
                          env=dict(environment(), QT_LOGGING_RULES="*=false"), stdout=subprocess.PIPE, check=False)
    if done.returncode:
        raise Failed(f"bench_layers ended with {done.returncode}: a home has not the links that it should have")
    starts = defaultdict(list)
    for line in done.stdout.decode().splitlines():
        name, *milliseconds = line.split()
        starts[name].append(Start(*map(float, milliseconds)))
    return starts


def _median(starts):
    return Start(*(median(values) for values in zip(*starts)))


def layers_table(programs, scratch, homes=HOMES):
    """Markdown: each kind of start, beside one without links of the operator."""
    folder = os.path.join(scratch, "homes")
    os.mkdir(folder)
    starts = _measured(programs, folder, homes)
    medians = {name: _median(starts[name]) for name in STARTS}
    least = medians[WITHOUT]
    lines = ["| start | homes | median ms | over a start without | 99 of 100 within, ms | CPU ms | over a start without |",
             "|---|--:|--:|--:|--:|--:|--:|"]
    for name, what in STARTS.items():
        passed, cpu = medians[name]
        over = ("-", "-") if name == WITHOUT else (f"{passed - least.passed:.2f}", f"{cpu - least.cpu:.2f}")
        most = quantiles([start.passed for start in starts[name]], n=100)[98]
        lines.append(f"| {what} | {len(starts[name]):,} | {passed:.2f} | {over[0]} | {most:.2f} | {cpu:.2f} | {over[1]} |")
    worst = medians["new"].passed - least.passed
    lines += ["", f"Target: 100 new links in at most {TARGET} ms over a start without: "
                  + ("met." if worst <= TARGET else f"**missed**, {worst:.2f}.")]
    return "\n".join(lines) + "\n"
