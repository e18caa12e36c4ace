# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Runs a file of scenarios with a network and mounts of its own, where services of the system touch nothing of the system.

Usage: namespaces.py FILE [ARGUMENT...]; VELLUM_SERVICES is the folder of services that scripts/packages.sh unpacked."""

import os
import subprocess
import sys
from pathlib import Path

FOLDER = Path(__file__).resolve().parent
DESKTOP = FOLDER.parent / "desktop"  # what all scenarios share
SKIPPED = 77  # for ctest
# An ordinary user becomes root inside, which is root of nothing else.
UNSHARE = ["unshare", *([] if os.geteuid() == 0 else ["--user", "--map-root-user"]), "--net", "--mount", "--fork",
           "--kill-child"]


def run(*command):
    """What a command says; AssertionError with its words when it fails."""
    done = subprocess.run([*map(str, command)], stdin=subprocess.DEVNULL, capture_output=True, text=True, check=False)
    assert done.returncode == 0, f"{' '.join(map(str, command))}: {done.stderr or done.stdout}"
    return done.stdout


def _enter(services, *command):
    """Becomes this program again, inside."""
    if not (services / "usr/sbin/NetworkManager").exists():
        sys.exit(f"{services} lacks the services; scripts/packages.sh test unpacks them")
    probe = subprocess.run([*UNSHARE, "true"], capture_output=True, text=True, check=False)
    if probe.returncode != 0:
        print("Skipped, since this system forbids namespaces:", probe.stderr.strip())
        sys.exit(SKIPPED)
    os.execvp(UNSHARE[0], [*UNSHARE, sys.executable, "-B", __file__, "--inside", *command])


def _furnish(services):
    """Makes the inside ready for the services."""
    # Without udev nobody tells that a device is ready; a service that cannot write to /sys does not wait for it.
    run("mount", "-t", "sysfs", "-o", "ro", "sysfs", "/sys")
    run("mount", "-t", "tmpfs", "tmpfs", "/run")
    # The services lie where their packages put them, over what the system has; none of it can be written to.
    for folder in ("etc", "usr", "var/lib"):
        layers = [str(layer / folder) for layer in (FOLDER / "root", services, Path("/")) if (layer / folder).is_dir()]
        run("mount", "-t", "overlay", "-o", f"lowerdir={':'.join(layers)}", "overlay", f"/{folder}")
    run("mount", "-t", "tmpfs", "tmpfs", "/var/lib/NetworkManager")
    run("ip", "link", "set", "lo", "up")


def main():
    services = Path(os.environ["VELLUM_SERVICES"])
    if sys.argv[1] != "--inside":
        _enter(services, *sys.argv[1:])
    _furnish(services)
    os.environ["PYTHONPATH"] = str(DESKTOP)
    os.execv(sys.executable, [sys.executable, "-B", *sys.argv[2:]])


if __name__ == "__main__":
    main()
