# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""The application: from its start to the first painted window, and what it does while nobody does anything."""

import os
import re
import signal
import subprocess
import time
from collections import namedtuple
from contextlib import contextmanager
from statistics import median

from harness.programs import Failed, environment

TURNS = 11
START_TARGET = 1.5 # times the empty window, with FEW links
FEW, MANY = 20, 500
REST = 5 # seconds until a started program has come to rest

Paint = namedtuple("Paint", "milliseconds cpu")


@contextmanager
def _display(log):
    """A virtual display of its own; its name."""
    reading, writing = os.pipe()
    with open(log, "w", encoding="utf-8") as output:
        server = subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-noreset", "-screen", "0", "1024x768x24",
                                   "-nolisten", "tcp"], pass_fds=[writing], stdout=output, stderr=subprocess.STDOUT)
    os.close(writing)
    try:
        with os.fdopen(reading) as number:
            name = number.readline().strip()
        if not name:
            raise Failed(f"the virtual display did not start, see {log}")
        yield ":" + name
    finally:
        server.terminate()
        server.wait()


class _Started:
    """The programs, ready to be started on a display."""

    def __init__(self, programs, build, folders, display):
        self._application = os.path.join(build, "stage", "bin", "vellumconnect")
        self._folders = folders
        self._window = programs.path("bench_window")
        self._environment = environment()
        self._environment.update(QT_QPA_PLATFORM="xcb", DISPLAY=display, QT_PLUGIN_PATH=programs.path("qtplugins"),
                                 HOME=folders.fresh(FEW, "home"))

    def window(self):
        return [self._window]

    def application(self, count):
        return [self._application, "--data-dir", self._folders.fresh(count, "application")]

    def first_paint(self, command):
        """From just before the process is made to the end of its first painting."""
        began = time.monotonic_ns()
        done = subprocess.run(command, env=dict(self._environment, QT_QPA_GENERIC_PLUGINS="firstpaint"),
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True)
        painted = re.search(rb"first paint: (\d+) (\d+)", done.stdout)
        return Paint((int(painted.group(1)) - began) / 1e6, int(painted.group(2)) / 1e6)

    def process(self, command):
        return subprocess.Popen(command, env=self._environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def _starts(started):
    """The median of each program's first paint."""
    commands = {"empty window": started.window(), f"{FEW} links": started.application(FEW),
                f"{MANY} links": started.application(MANY)}
    paints = {name: [] for name in commands}
    for _ in range(TURNS):
        for name, command in commands.items():
            paints[name].append(started.first_paint(command))
    return {name: Paint(*(median(values) for values in zip(*taken))) for name, taken in paints.items()}


def _trace(process, log):
    """Counts the system calls of a process and its threads from now on."""
    return subprocess.Popen(["strace", "-c", "-f", "-o", log, "-p", str(process.pid)], stderr=subprocess.DEVNULL)


def _calls(tracer, log):
    """How many system calls there were; strace stops, and the process goes on."""
    tracer.send_signal(signal.SIGINT)
    tracer.wait()
    with open(log, encoding="utf-8") as lines:
        totals = [line.split() for line in lines if line.rstrip().endswith("total")]
    # "% time, seconds, usecs/call, calls, errors, total"; where there is no call, there is no line.
    return int(totals[0][3]) if totals else 0


def _idle(started, seconds, folder):
    """System calls of the empty window and of the application in the same seconds, in which nobody does anything."""
    processes = {"empty window": started.process(started.window()),
                 f"{FEW} links": started.process(started.application(FEW))}
    logs = {name: os.path.join(folder, f"{name}.strace".replace(" ", "-")) for name in processes}
    try:
        time.sleep(REST)
        tracers = {name: _trace(process, logs[name]) for name, process in processes.items()}
        time.sleep(seconds)
        calls = {name: _calls(tracer, logs[name]) for name, tracer in tracers.items()}
        for name, process in processes.items():
            if process.poll() is not None:
                raise Failed(f"{name}: the program did not stay, it ended with {process.returncode}")
        return calls
    finally:
        for process in processes.values():
            process.terminate()
            process.wait()


def host_table(programs, build, folders, folder, idle_seconds):
    """Markdown: the starts, and the system calls while idle."""
    with _display(os.path.join(folder, "xvfb.log")) as display:
        started = _Started(programs, build, folders, display)
        starts = _starts(started)
        idle = _idle(started, idle_seconds, folder)
    least = starts["empty window"]
    lines = [f"| program | first paint, ms | to the empty window | CPU ms | CPU to the empty window | "
             f"system calls in {idle_seconds} s idle |", "|---|--:|--:|--:|--:|--:|"]
    for name, paint in starts.items():
        lines.append(f"| {name} | {paint.milliseconds:.1f} | {paint.milliseconds / least.milliseconds:.2f} | "
                     f"{paint.cpu:.1f} | {paint.cpu / least.cpu:.2f} | "
                     f"{idle.get(name, '-')} |")
    ratio = starts[f"{FEW} links"].milliseconds / least.milliseconds
    lines += ["", f"Target: {FEW} links in at most {START_TARGET} times the time of the empty window: "
                  + ("met." if ratio <= START_TARGET else f"**missed**, {ratio:.2f}.")]
    return "\n".join(lines) + "\n"
