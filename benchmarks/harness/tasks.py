# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What is measured, against whom, and what it may cost at most."""

from collections import namedtuple

from harness.programs import Subject

# At most: instructions and CPU time against bare, CPU time against KDE's bookmarks, heap bytes a link, growth.
# Times and peers count at TARGET_COUNT links, growth from there to ten times as many.
Target = namedtuple("Target", "instructions time peer heap growth", defaults=(None,) * 5)
Task = namedtuple("Task", "name plugin bare peer target", defaults=(None, Target()))

TARGET_COUNT = 10000

# The two numbers of links that instructions and heap are counted at: their difference is free of what is there once.
FEW, MORE = 100, 1100


def _of_page(name, traces=False, label=None, target=Target()):
    return Task(label or name, Subject("bench_plugin", name, traces), Subject("bench_bare", name), None, target)


def _with_peer(name, target=Target(), traces=False, label=None):
    return Task(label or name, Subject("bench_plugin", name, traces), Subject("bench_bare", name),
                Subject("bench_bookmarks", name), target)


TASKS = [
    _with_peer("load", Target(instructions=1.15, time=1.15, peer=0.55, heap=400)),
    _with_peer("menu", Target(instructions=1.30, time=1.6, peer=0.08)),
    _with_peer("menu", traces=True, label="menu, traces on"),
    _with_peer("save", Target(instructions=1.02, time=1.03)),
    _of_page("page", traces=True, label="page, traces on", target=Target(instructions=2.2, time=3.0, growth=1.15)),
    _of_page("page", target=Target(time=1.7, growth=1.15)),
    _of_page("paint", label="first paint"),
    _with_peer("up", Target(time=1.05)),
    _with_peer("delete", Target(time=1.05)),
    _with_peer("new", Target(time=1.12)),
    Task("start", Subject("bench_start", "plugin"), Subject("bench_start", "bare")),
]

# What a parser can do at best, for the task "load".
PARSER = Subject("bench_pugixml", "load")

# After these tasks config.xml holds the same bytes, whoever has written it.
WRITING_TASKS = ("save", "up", "delete", "new")
