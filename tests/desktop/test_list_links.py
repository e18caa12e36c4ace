# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""The command line, on a machine that has no display."""

import os
import subprocess
import tempfile
import unittest
from pathlib import Path

from links import APPLICATION, EMAIL, INTERNET, link, save
from session import SANITIZER_OPTIONS

PROGRAM = os.environ["VELLUM_PROGRAM"]


class CommandLine(unittest.TestCase):

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="scenario-")
        self.addCleanup(folder.cleanup)
        self.home = Path(folder.name)
        (self.home / "runtime").mkdir(0o700)
        save(self.home / "data", link(0, "Portal & more", INTERNET, "https://portal.example.org/"),
             link(1, "Hidden", INTERNET, "http://hidden.example.org/", visible=0), link(2, "Write", EMAIL, "mailto:"),
             link(3, "Notes", APPLICATION, "/opt/My programs/note pad"))

    def run_program(self, *arguments):
        """With nothing that leads to a display."""
        environment = {"PATH": os.environ["PATH"], "HOME": str(self.home), "LC_ALL": "C.UTF-8",
                       "XDG_RUNTIME_DIR": str(self.home / "runtime"),
                       **{name: os.environ[name] for name in SANITIZER_OPTIONS if name in os.environ}}
        return subprocess.run([PROGRAM, *arguments], env=environment, stdin=subprocess.DEVNULL, capture_output=True,
                              text=True, timeout=60, check=False)

    def test_list_links(self):
        answer = self.run_program("--data-dir", str(self.home / "data"), "--list-links")
        self.assertEqual((answer.returncode, answer.stderr), (0, ""))
        lines = answer.stdout.splitlines()
        self.assertEqual([line.split() for line in lines], [
            ["#", "Name", "Plug-in"], ["1", "Portal", "&", "more", "QuickLinkUIPlugin"],
            ["2", "Write", "QuickLinkUIPlugin"], ["3", "Notes", "QuickLinkUIPlugin"]])
        # A table: what stands in one column begins at one place.
        self.assertEqual({line.index(word) for line, word in zip(lines, ("Name", "Portal", "Write", "Notes"))}, {3})
        self.assertEqual(len({line.index("QuickLinkUIPlugin") for line in lines[1:]} | {lines[0].index("Plug-in")}), 1)

    def test_list_links_of_a_new_user(self):
        answer = self.run_program("--list-links")
        self.assertEqual((answer.returncode, answer.stderr), (0, ""))
        self.assertEqual(answer.stdout, "No quick links\n")

    def test_why_without_a_bus(self):
        before = self.files()
        answer = self.run_program("--data-dir", str(self.home / "data"), "--why")
        self.assertEqual((answer.returncode, answer.stdout), (1, ""))
        self.assertEqual(len(answer.stderr.splitlines()), 1, answer.stderr)
        self.assertIn(str(self.home / "data"), answer.stderr)
        self.assertEqual(self.files(), before)

    def files(self):
        return sorted(str(path.relative_to(self.home)) for path in self.home.rglob("*"))

    def test_list_links_makes_nothing(self):
        before = self.files()
        for arguments in ([], ["--data-dir", str(self.home / "data")], ["--data-dir", str(self.home / "new")]):
            with self.subTest(arguments=arguments):
                self.assertEqual(self.run_program("--list-links", *arguments).returncode, 0)
                self.assertEqual(self.files(), before)

    def test_missing_folder_of_plugins(self):
        before = self.files()
        missing = str(self.home / "no plug-ins")
        for arguments in (["--list-links"], []):
            with self.subTest(arguments=arguments):
                answer = self.run_program("--plugin-dir", missing, *arguments)
                self.assertEqual((answer.returncode, answer.stdout), (2, ""))
                self.assertEqual(answer.stderr, f"vellumconnect: There is no folder \"{missing}\". Try --help.\n")
        self.assertEqual(self.files(), before)

    def test_folder_without_plugins(self):
        folder = self.home / "no plug-ins"
        (folder / "Something").mkdir(parents=True)
        answer = self.run_program("--plugin-dir", str(folder), "--list-links")
        self.assertEqual((answer.returncode, answer.stdout), (0, "No quick links\n"))
        self.assertEqual(answer.stderr, f"vellumconnect: There is no plug-in in the folder \"{folder}\".\n")

    def test_folder_with_a_broken_plugin(self):
        folder = self.home / "no plug-ins"
        (folder / "Broken").mkdir(parents=True)
        (folder / "Broken/libBroken.so").write_text("no library", encoding="ascii")
        answer = self.run_program("--plugin-dir", str(folder), "--list-links")
        self.assertRegex(answer.stderr, "^Plug-in refused: .*/libBroken.so: [^\n]*\n$")

    def test_help(self):
        answer = self.run_program("--help")
        self.assertEqual((answer.returncode, answer.stderr), (0, ""))
        for option in ("--help", "--version", "--data-dir", "--plugin-dir", "--language", "--list-links", "--why"):
            self.assertIn(option, answer.stdout)

    def test_version(self):
        answer = self.run_program("--version")
        self.assertEqual((answer.returncode, answer.stderr), (0, ""))
        self.assertIn(os.environ["VELLUM_VERSION"], answer.stdout)
        self.assertEqual(len(answer.stdout.splitlines()), 1)

    def test_wrong_usage(self):
        for arguments in (["--no-such-option"], ["surplus"], ["--data-dir"], ["--list-links", "surplus"]):
            with self.subTest(arguments=arguments):
                answer = self.run_program(*arguments)
                self.assertEqual(answer.returncode, 2)
                self.assertEqual(answer.stdout, "")
                self.assertEqual(len(answer.stderr.splitlines()), 1, answer.stderr)
                self.assertIn(arguments[-1].lstrip("-"), answer.stderr)


if __name__ == "__main__":
    unittest.main(verbosity=2)
