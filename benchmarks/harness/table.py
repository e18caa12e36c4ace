# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""The table, and each target beside what was measured."""

from harness.tasks import TARGET_COUNT

COLUMNS = ("task", "N", "median ms", "ms to bare", "ms to KDE", "ms to pugixml", "instructions a link",
           "instructions to bare", "heap bytes a link", "growth")


def _number(value, digits):
    # Adding zero takes the sign of a rounded "-0".
    return "-" if value is None else f"{round(value, digits) + 0.0:,.{digits}f}"


def _ratio(times, column):
    return times["plugin"] / times[column] if column in times else None


def _growth(times, count):
    before = times.get(count // 10)
    return times[count]["plugin"] / before["plugin"] / 10 if before else None


def _rows(task, times, counts):
    for count, taken in times.items():
        repeatable = count == TARGET_COUNT
        yield (task.name, f"{count:,}", _number(taken["plugin"], 3), _number(_ratio(taken, "bare"), 2),
               _number(_ratio(taken, "peer"), 3), _number(_ratio(taken, "parser"), 2),
               _number(counts.instructions, 0) if repeatable else "",
               _number(counts.instructions / counts.bare_instructions, 3) if repeatable else "",
               _number(counts.heap, 0) if repeatable else "", _number(_growth(times, count), 2))


def _markdown(head, rows):
    lines = [head, ["---"] + ["--:"] * (len(head) - 1)] + list(rows)
    return "".join("| " + " | ".join(line) + " |\n" for line in lines)


def table(tasks, times, counts):
    """The one table, as markdown."""
    return _markdown(COLUMNS, (row for task in tasks for row in _rows(task, times[task.name], counts[task.name])))


def _measured(task, times, counts):
    at_target = times[TARGET_COUNT]
    return {"instructions": counts.instructions / counts.bare_instructions, "time": _ratio(at_target, "bare"),
            "peer": _ratio(at_target, "peer"), "heap": counts.heap,
            "growth": _growth(times, TARGET_COUNT * 10)}


NAMES = {"instructions": "instructions against bare", "time": "CPU time against bare at 10,000",
         "peer": "CPU time against KDE at 10,000", "heap": "heap bytes a link", "growth": "growth to 100,000"}


def verdicts(tasks, times, counts):
    """Every target with what was measured, as markdown."""
    rows = []
    for task in tasks:
        measured = _measured(task, times[task.name], counts[task.name])
        for name, limit in task.target._asdict().items():
            if limit is None:
                continue
            value = measured[name]
            digits = 0 if name == "heap" else 3
            met = "not measured" if value is None else "met" if value <= limit else "**missed**"
            rows.append((task.name, NAMES[name], f"{limit:g}", _number(value, digits), met))
    return _markdown(("target of", "what", "at most", "measured", "result"), rows)
