# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""CPU times of the subjects of a task, taken in turns: A B C A B C, a process each; the median counts."""

from statistics import median

from harness.tasks import PARSER

COUNTS = (10, 1000, 10000, 100000)

# A subject that needed longer than this, in milliseconds, is not asked for ten times as many links.
PATIENCE = 20000


def turns_at(count):
    """Small tasks are short and waver more."""
    return 5 if count >= 100000 else 9


def subjects_of(programs, task):
    """The subjects that take part, by their column."""
    subjects = {"plugin": task.plugin, "bare": task.bare}
    if task.peer and programs.has(task.peer.program):
        subjects["peer"] = task.peer
    if task.name == "load":
        subjects["parser"] = PARSER
    return subjects


def times_of(programs, task):
    """Milliseconds by number of links and column; a subject that has become too slow is missing."""
    subjects = subjects_of(programs, task)
    result = {}
    for count in COUNTS:
        taken = {column: [] for column in subjects}
        for _ in range(turns_at(count)):
            for column, subject in subjects.items():
                taken[column].append(programs.run(subject, count).milliseconds)
        result[count] = {column: median(values) for column, values in taken.items()}
        subjects = {column: subject for column, subject in subjects.items() if result[count][column] < PATIENCE}
    return result
