# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""The targets that are repeatable: instructions, heap, linear growth, and the bytes that are written."""

from harness.counts import counts_of, instructions_a_link
from harness.programs import Failed, Subject
from harness.tasks import FEW, MORE, TASKS, WRITING_TASKS

# Far enough to show what grows faster than the number of rows, near enough for callgrind.
MANY = 4100


def _say(what, value, limit, digits):
    result = "ok" if value <= limit else "MISSED"
    print(f"{result:7} {what}: {value:,.{digits}f}, at most {limit:g}", flush=True)
    return value <= limit


def check_bytes(programs, folders):
    """The plug-in and the bare toolkit write the same, and saving what was read changes nothing."""
    with open(folders.config_of(FEW), "rb") as config:
        untouched = config.read()
    for name in WRITING_TASKS:
        written = [programs.written(Subject(program, name), FEW) for program in ("bench_plugin", "bench_bare")]
        if written[0] != written[1] or (name == "save") != (written[0] == untouched):
            raise Failed(f"the bytes written by \"{name}\" are not those expected")
    print("ok      the bytes written", flush=True)


def _check_growth(programs, task):
    near = instructions_a_link(programs, task.plugin)
    far = instructions_a_link(programs, task.plugin, MORE, MANY)
    return _say(f"{task.name}: instructions a link, growth to {MANY:,}", far / near, task.target.growth, 3)


def check(programs, folders):
    """Prints a line a target; whether all are met."""
    check_bytes(programs, folders)
    tasks = [task for task in TASKS if task.target.instructions or task.target.heap]
    counts = counts_of(programs, tasks)
    met = []
    for task in tasks:
        count, target = counts[task.name], task.target
        if target.instructions:
            met.append(_say(f"{task.name}: instructions against bare", count.instructions / count.bare_instructions,
                            target.instructions, 3))
        if target.heap:
            met.append(_say(f"{task.name}: heap bytes a link", count.heap, target.heap, 0))
        if target.growth:
            met.append(_check_growth(programs, task))
    return all(met)
