# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Runs a file of scenarios with a network and mounts of its own, where services of the system touch nothing of the system.

Usage: namespaces.py [--user] FILE [ARGUMENT...]
  --user  let root be no more inside than an ordinary user is
VELLUM_SERVICES is the folder of services that scripts/packages.sh unpacked."""

import os
import shutil
import subprocess
import sys
from pathlib import Path

FOLDER = Path(__file__).resolve().parent
DESKTOP = FOLDER.parent / "desktop"  # what all scenarios share
SKIPPED = 77  # for ctest


def run(*command):
    """What a command says; AssertionError with its words when it fails."""
    done = subprocess.run([*map(str, command)], stdin=subprocess.DEVNULL, capture_output=True, text=True, check=False)
    assert done.returncode == 0, f"{' '.join(map(str, command))}: {done.stderr or done.stdout}"
    return done.stdout


def _enter(services, as_user, command):
    """Becomes this program again, inside."""
    if not (services / "usr/sbin/NetworkManager").exists():
        sys.exit(f"{services} lacks the services; scripts/packages.sh test unpacks them")
    # An ordinary user becomes root inside, which is root of nothing else.
    user = ["--user", "--map-root-user"] if as_user or os.geteuid() != 0 else []
    unshare = ["unshare", *user, "--net", "--mount", "--uts", "--fork", "--kill-child"]
    probe = subprocess.run([*unshare, "true"], capture_output=True, text=True, check=False)
    if probe.returncode != 0:
        print("Skipped, since this system forbids namespaces:", probe.stderr.strip())
        sys.exit(SKIPPED)
    os.execvp(unshare[0], [*unshare, sys.executable, "-B", __file__, "--inside", *command])


def _furnish(services):
    """Makes the inside ready for the services."""
    # Without udev nobody tells that a device is ready; a service that cannot write to /sys does not wait for it.
    run("mount", "-t", "sysfs", "-o", "ro", "sysfs", "/sys")
    run("mount", "-t", "tmpfs", "tmpfs", "/run")
    # Switching radio off would switch off the computer's.
    if Path("/dev/rfkill").exists():
        run("mount", "--bind", "/dev/null", "/dev/rfkill")
    # The services lie where their packages put them, over what the system has; none of it can be written to. They are
    # copies, since plug-ins that are not root's are refused.
    ours = Path("/run/root")
    for folder in ("etc", "usr", "var/lib"):
        for origin in (services, FOLDER / "root"):
            if (origin / folder).is_dir():
                shutil.copytree(origin / folder, ours / folder, symlinks=True, dirs_exist_ok=True)
        run("mount", "-t", "overlay", "-o", f"lowerdir={ours}/{folder}:/{folder}", "overlay", f"/{folder}")
    run("mount", "-t", "tmpfs", "tmpfs", "/var/lib/NetworkManager")
    run("ip", "link", "set", "lo", "up")


def main():
    services = Path(os.environ["VELLUM_SERVICES"])
    option, *command = sys.argv[1:] if sys.argv[1].startswith("--") else ["", *sys.argv[1:]]
    if option != "--inside":
        _enter(services, option == "--user", command)
    _furnish(services)
    os.environ["PYTHONPATH"] = str(DESKTOP)
    os.execv(sys.executable, [sys.executable, "-B", *command])


if __name__ == "__main__":
    main()
