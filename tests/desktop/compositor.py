# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""A Wayland desktop without X, in memory."""

import os
import subprocess
import tempfile
from pathlib import Path

from session import Program
from waiting import wait_for

_SOCKET = "wayland-of-the-test"


class Compositor(Program):
    """A running one. `environment` leads programs to it; what leads them to X is to be taken away by whoever starts them."""

    environment = {"WAYLAND_DISPLAY": _SOCKET}

    def __init__(self, log):
        # By --debug it lets pictures be taken.
        super().__init__(["weston", "--backend=headless-backend.so", "--use-pixman", "--idle-time=0", "--debug",
                          "--width=1200", "--height=800", f"--socket={_SOCKET}"], log)
        wait_for(lambda: os.path.exists(os.path.join(os.environ["XDG_RUNTIME_DIR"], _SOCKET)), "the compositor")

    def save_screen_at_rest(self, path):
        """Its whole screen as a file of few colours, once it has come to rest."""
        pictures = []

        def is_at_rest():
            pictures.append(self._picture())
            return pictures[-2:-1] == pictures[-1:]

        wait_for(is_at_rest, "the picture to come to rest")
        subprocess.run(["convert", "png:-", "-strip", "+dither", "-colors", "64", f"png8:{path}"], input=pictures[-1],
                       check=True)

    def _picture(self):
        with tempfile.TemporaryDirectory(prefix="screen-") as folder:
            subprocess.run(["weston-screenshooter"], cwd=folder, env={**os.environ, **self.environment}, check=True,
                           capture_output=True)
            [picture] = Path(folder).glob("*.png")
            return picture.read_bytes()
