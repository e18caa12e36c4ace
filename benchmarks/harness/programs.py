# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Building the subjects and running one of them once."""

import os
import subprocess
from collections import namedtuple

from links import config_path

# CPU time of the task in milliseconds, and the bytes of heap that it kept.
Result = namedtuple("Result", "milliseconds heap")

# One run: a program of the build, its task, and whether the plug-in's trace lines are written.
Subject = namedtuple("Subject", "program task traces", defaults=(False,))

# How the trace lines of the plug-in are written and not.
LOGGING_ON, LOGGING_OFF = "default.debug=true", "default.debug=false"


class Failed(Exception):
    """Something that ought to work does not; the text says what."""


def logged(command, log, **options):
    """Runs a command with its output in a file, which the exception names when it fails."""
    with open(log, "w", encoding="utf-8") as output:
        status = subprocess.run(command, stdout=output, stderr=subprocess.STDOUT, check=False, **options).returncode
    if status:
        raise Failed(f"{command[0]} failed, see {log}")


def build(root, folder, qt_major, targets):
    """Builds what is measured: the same flags for every subject, those of the presets."""
    if subprocess.run([os.path.join(root, "scripts", "packages.sh"), "benchmark"], check=False).returncode:
        raise Failed("some packages are missing")
    os.makedirs(folder, exist_ok=True)
    preset = "default" if qt_major == 5 else f"qt{qt_major}"
    logged(["cmake", "--preset", preset, "-B", folder, "-DBUILD_BENCHMARKS=ON", "-DBUILD_TESTING=OFF"],
           os.path.join(folder, "configure.log"), cwd=root)
    logged(["cmake", "--build", folder, "--target", *targets], os.path.join(folder, "build.log"), cwd=root)


def environment(traces=False):
    """What every program runs in: the same on every machine, as far as that goes."""
    result = {name: value for name, value in os.environ.items() if name != "TZ" and not name.startswith("QT_")}
    result.update(LC_ALL="C.UTF-8", QT_QPA_PLATFORM="offscreen",
                  QT_LOGGING_RULES=LOGGING_ON if traces else LOGGING_OFF)
    return result


class Programs:
    """Runs subjects of one build on folders of links."""

    def __init__(self, build, folders):
        self._build = build
        self._folders = folders

    @property
    def application(self):
        return os.path.join(self._build, "stage", "bin", "vellumconnect")

    def has(self, program):
        return os.path.exists(self.path(program))

    def path(self, *names):
        return os.path.join(self._build, "benchmarks", *names)

    def run(self, subject, count, use=""):
        """One process with the task on its own copy of so many links; use keeps runs at the same time apart."""
        links = self._folders.fresh(count, f"{subject.program}-{subject.task}-{subject.traces}-{use}")
        output = self._start([self.path(subject.program), subject.task, links], subject)
        nanoseconds, heap = output.split()[-2:]
        return Result(int(nanoseconds) / 1e6, int(heap))

    def instructions(self, subject, count):
        """The instructions of the task alone, as callgrind counts them."""
        links = self._folders.fresh(count, f"{subject.program}-{subject.task}-callgrind-{subject.traces}")
        counts = os.path.join(links, "callgrind.out")
        self._start(["valgrind", "--tool=callgrind", "--toggle-collect=measuredWork",
                     "--callgrind-out-file=" + counts, self.path(subject.program), subject.task, links], subject)
        with open(counts, encoding="utf-8") as lines:
            for line in lines:
                if line.startswith("totals:"):
                    return int(line.split()[1])
        raise Failed(f"callgrind counted nothing for {subject.program} {subject.task}")

    def written(self, subject, count):
        """What config.xml holds after the task."""
        links = self._folders.fresh(count, f"{subject.program}-{subject.task}-written")
        self._start([self.path(subject.program), subject.task, links], subject)
        with open(config_path(links), "rb") as config:
            return config.read()

    @staticmethod
    def _start(command, subject):
        # Trace lines are written, as to a log, and thrown away.
        done = subprocess.run(command, env=environment(subject.traces), stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False)
        if done.returncode:
            raise Failed(f"\"{' '.join(command)}\" ended with {done.returncode}")
        return done.stdout.decode()
