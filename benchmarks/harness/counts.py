# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Instructions and heap bytes a link: repeatable figures, each the difference between two numbers of links."""

from collections import namedtuple
from concurrent.futures import ThreadPoolExecutor

from harness.tasks import FEW, MORE

# The plug-in's and the bare toolkit's instructions a link, and the plug-in's heap bytes a link.
Counts = namedtuple("Counts", "instructions bare_instructions heap")


def _a_link(count_at, few=FEW, more=MORE):
    return (count_at(more) - count_at(few)) / (more - few)


def instructions_a_link(programs, subject, few=FEW, more=MORE):
    return _a_link(lambda count: programs.instructions(subject, count), few, more)


def heap_a_link(programs, subject):
    return _a_link(lambda count: programs.run(subject, count, "heap").heap)


def counts_of(programs, tasks, workers=2):
    """The counts of each task, by its name. Two processes at a time: neither figure knows of time."""
    with ThreadPoolExecutor(workers) as pool:
        waiting = {task.name: (pool.submit(instructions_a_link, programs, task.plugin),
                               pool.submit(instructions_a_link, programs, task.bare),
                               pool.submit(heap_a_link, programs, task.plugin)) for task in tasks}
        return {name: Counts(*(future.result() for future in futures)) for name, futures in waiting.items()}
