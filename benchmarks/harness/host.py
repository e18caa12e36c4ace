# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""The application: from its start to the first painted window, and what it does while nobody does anything."""

import os
import re
import signal
import subprocess
import time
from collections import namedtuple
from contextlib import ExitStack, closing
from statistics import median

from harness.programs import LOGGING_OFF, Failed
from network import NetworkManager
from session import Program, Session

TURNS = 11
START_TARGET = 1.4 # times the empty window, with FEW links
FEW, MANY = 20, 500
UP = "a connection up"
REST = 5 # seconds until a started program has come to rest

Paint = namedtuple("Paint", "milliseconds cpu")


def _commands(programs, folders):
    """What starts each program, by its name in the table."""
    window = programs.path("bench_window")
    commands = {"empty window": [window], "empty window without OpenGL": [window, "raster"]}
    for count in FEW, MANY:
        commands[f"{count} links"] = [programs.application, "--data-dir", folders.fresh(count, "application")]
    return commands


def _first_paint(command):
    """From just before the process is made to the end of its first painting."""
    began = time.monotonic_ns()
    done = subprocess.run(command, env=dict(os.environ, QT_QPA_GENERIC_PLUGINS="firstpaint"),
                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True)
    painted = re.search(rb"first paint: (\d+) (\d+)", done.stdout)
    return Paint((int(painted.group(1)) - began) / 1e6, int(painted.group(2)) / 1e6)


def _starts(commands):
    """The median of each program's first paint."""
    paints = {name: [] for name in commands}
    for _ in range(TURNS):
        for name, command in commands.items():
            paints[name].append(_first_paint(command))
    return {name: Paint(*(median(values) for values in zip(*taken))) for name, taken in paints.items()}


def _with_a_service(commands, seconds, folder):
    """The same with a connection up, and with a service that says nothing, beside the empty window of that moment; and
    the idle time with the connection up."""
    starts = {}
    with closing(NetworkManager()) as network:
        network.activate("Plan")
        starts[UP] = _starts(commands)
        idle = _idle(commands, seconds, folder)
        network.stop()
        starts["the service hangs"] = _starts(commands)
    return starts, idle


def _trace(program, log):
    """Counts the system calls of a program and its threads from now on."""
    return subprocess.Popen(["strace", "-c", "-f", "-o", log, "-p", str(program.pid)], stderr=subprocess.DEVNULL)


def _calls(tracer, log):
    """How many system calls there were; strace stops, and the process goes on."""
    tracer.send_signal(signal.SIGINT)
    tracer.wait()
    with open(log, encoding="utf-8") as lines:
        totals = [line.split() for line in lines if line.rstrip().endswith("total")]
    # "% time, seconds, usecs/call, calls, errors, total"; where there is no call, there is no line.
    return int(totals[0][3]) if totals else 0


def _idle(commands, seconds, folder):
    """System calls of the empty window and of the application in the same seconds, in which nobody does anything."""
    with ExitStack() as stack:
        started = {name: stack.enter_context(Program(command, os.devnull)) for name, command in commands.items()}
        time.sleep(REST)
        logs = {name: os.path.join(folder, f"{name}.strace".replace(" ", "-")) for name in started}
        tracers = {name: _trace(program, logs[name]) for name, program in started.items()}
        time.sleep(seconds)
        calls = {name: _calls(tracer, logs[name]) for name, tracer in tracers.items()}
        for name, program in started.items():
            if not program.is_running():
                raise Failed(f"{name}: the program did not stay, it ended with {program.exit_code()}")
        return calls


def _fonts_of_one_folder(folder):
    """A setting of fontconfig: the default font and its family only. The more fonts a computer has, the longer the
    first letter takes, and the empty window has none."""
    font = subprocess.run(["fc-match", "--format", "%{file}", "sans"], stdout=subprocess.PIPE, check=True, text=True).stdout
    path = os.path.join(folder, "fonts.conf")
    with open(path, "w", encoding="utf-8") as setting:
        setting.write('<?xml version="1.0"?>\n<!DOCTYPE fontconfig SYSTEM "fonts.dtd">\n'
                      f"<fontconfig><dir>{os.path.dirname(font)}</dir><cachedir>{folder}/fonts</cachedir></fontconfig>\n")
    return path


def _ratio(paint, least):
    return paint.milliseconds / least.milliseconds


def _row(name, paint, least, calls):
    return (f"| {name} | {paint.milliseconds:.1f} | {_ratio(paint, least):.2f} | {paint.cpu:.1f} | "
            f"{paint.cpu / least.cpu:.2f} | {calls} |")


def host_table(programs, folders, folder, idle_seconds):
    """Markdown: the starts, and the system calls while idle. There is no window manager, which takes its own time."""
    with Session("1024x768") as session:
        session.start_buses()
        # Nobody reads the screen aloud.
        for name in "QT_ACCESSIBILITY", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON":
            del os.environ[name]
        os.environ.update(QT_LOGGING_RULES=LOGGING_OFF, QT_PLUGIN_PATH=programs.path("qtplugins"))
        commands = _commands(programs, folders)
        few = {name: commands[name] for name in ("empty window", f"{FEW} links")}
        starts = _starts(commands)
        with_a_service, idle = _with_a_service(few, idle_seconds, folder)
        os.environ["FONTCONFIG_FILE"] = _fonts_of_one_folder(folder)
        with_few_fonts = _starts(few)
    lines = [f"| program | first paint, ms | to the empty window | CPU ms | CPU to the empty window | "
             f"system calls in {idle_seconds} s idle |", "|---|--:|--:|--:|--:|--:|"]
    empty, name = "empty window", f"{FEW} links"
    lines += [_row(program, paint, starts[empty], idle[empty] if program == empty else "-")
              for program, paint in starts.items()]
    lines += [_row(f"{name}, {case}", paints[name], paints[empty], idle[name] if case == UP else "-")
              for case, paints in with_a_service.items()]
    lines.append(_row(f"{name}, one family of fonts", with_few_fonts[name], with_few_fonts[empty], "-"))
    worst = max(_ratio(paints[name], paints[empty]) for paints in (starts, *with_a_service.values()))
    lines += ["", f"Target: {name} in at most {START_TARGET} times the time of the empty window at that time: "
                  + ("met." if worst <= START_TARGET else f"**missed**, {worst:.2f}.")]
    return "\n".join(lines) + "\n"
