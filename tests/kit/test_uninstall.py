# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Uninstalling takes what was installed, and nothing of others."""

import os
import subprocess
import unittest
from pathlib import Path

ROOT = Path(os.environ["VELLUM_ROOT"])
CLOCK = "libClockPlugin.so"  # somebody else's, where it has been built


class Uninstall(unittest.TestCase):

    def test_nothing_is_left(self):
        self.assertTrue(list(ROOT.rglob("libcore.so")))
        others = list(ROOT.rglob(CLOCK))
        subprocess.run(["cmake", f"-DBUILD={os.environ['VELLUM_BUILD']}", "-P",
                        f"{os.environ['VELLUM_SOURCES']}/cmake/Uninstall.cmake"], env={**os.environ, "DESTDIR": str(ROOT)},
                       stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, check=True)
        left = [path for path in ROOT.rglob("*") if not path.is_dir()]
        self.assertEqual(left, others)
        folders = [path for path in ROOT.rglob("*") if path.is_dir() and path.name.lower() == "vellumconnect"]
        used = {parent for path in left for parent in path.parents}
        self.assertEqual([path for path in folders if path not in used], [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
