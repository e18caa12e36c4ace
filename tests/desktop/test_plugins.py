# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Plug-ins that must not be loaded, beside the quick links, which work all the same."""

import os
import shutil
import signal
import subprocess
from pathlib import Path

from display import press
from links import INTERNET, link, save
from scenario import PROGRAM, TITLE, Scenario, main

HOSTILE = Path(os.environ["VELLUM_HOSTILE_PLUGIN"])
QUICK_LINKS = Path(os.environ["VELLUM_QUICK_LINKS"])
PORTAL = link(0, "Portal", INTERNET, "https://portal.example.org/")


class Plugins(Scenario):

    def setUp(self):
        super().setUp()
        self.plugins = self.folder / "plugins"
        self.hostile = self.add(HOSTILE, "Hostile")
        self.add(QUICK_LINKS, "QuickLinkUIPlugin")
        save(self.data, PORTAL)

    def add(self, built, name):
        path = self.plugins / name / f"lib{name}.so"
        path.parent.mkdir(parents=True)
        path.parent.chmod(0o755)
        shutil.copy(built, path)
        path.chmod(0o644)
        return path

    def crash(self, deed="Hostile/Init:abort"):
        """A start that the plug-in ends."""
        self.assertEqual(self.run_alone(DEED=deed).returncode, -signal.SIGABRT)

    def run_alone(self, *arguments, **environment):
        """A run that ends by itself, before there is a window."""
        return subprocess.run([PROGRAM, "--data-dir", self.data, "--plugin-dir", self.plugins, *arguments],
                              env={**os.environ, **environment}, stdin=subprocess.DEVNULL, capture_output=True,
                              text=True, timeout=60, check=False)

    def start_here(self):
        """A start at which nothing is said."""
        self.start("--plugin-dir", str(self.plugins))
        self.assertEqual(self.links_in_menu(), ["Portal"])
        self.assertEqual(len(self.application.windows()), 1)

    def start_with_message(self, text, button):
        """A start at which this is said, and nothing else."""
        self.launch("--plugin-dir", str(self.plugins))
        self.answer(text, button)
        self.window = self.application.main_window(TITLE)
        self.wait_for_log("notification 258 sent")
        self.assertEqual(self.links_in_menu(), ["Portal"])

    def quit(self):
        press("ctrl+q")
        self.assertEqual(self.program.exit_code(), 0)

    def answer(self, text, button):
        """Answers the message that says this, and is the only one."""
        window = self.application.window("Plug-ins")
        self.assertEqual(len(self.application.windows()), 2)
        self.assertIn(text, " ".join(window.names("label")))
        window.find("push button", button).click()
        self.application.wait_until_gone(window)

    def test_crash_and_another_chance(self):
        self.crash()
        self.start_with_message("The plug-in Hostile did not finish starting last time", "Load at the Next Start")
        self.assertIn("libHostile.so: it is left out, because it did not come back in Init", self.program.output())
        self.quit()
        self.start_here()
        self.assertNotIn("left out", self.program.output())

    def test_crash_and_left_out_until_the_user_says_otherwise(self):
        self.crash("Hostile/constructor:abort")
        self.start_with_message("The plug-in Hostile did not finish starting last time", "Leave Out")
        self.quit()
        self.start_here()
        self.assertIn("libHostile.so: it is left out", self.program.output())
        self.open_menu("Tools").find("menu item", "Plug-ins Left Out…").click()
        self.answer("The plug-in Hostile", "Load at the Next Start")
        self.quit()
        self.start_here()
        self.assertNotIn("left out", self.program.output())

    def test_crash_at_the_end(self):
        self.start("--plugin-dir", str(self.plugins), DEED="Hostile/OnDestroy:abort")
        press("ctrl+q")
        self.assertEqual(self.program.exit_code(), -signal.SIGABRT)
        self.start_with_message("The plug-in Hostile did not finish ending last time", "Leave Out")

    def test_file_that_others_may_write_to(self):
        self.hostile.chmod(0o666)
        self.start_with_message(f"other users may change {self.hostile}:", "OK")
        self.assertIn(f"{self.hostile}: other users may write to {self.hostile}", self.program.output())

    def test_kill_blames_nobody(self):
        self.start_here()
        os.kill(self.program.pid, signal.SIGKILL)
        self.program.exit_code()
        self.start_here()
        self.assertNotIn("left out", self.program.output())

    def test_list_of_links(self):
        self.crash()
        found = self.run_alone("--list-links")
        self.assertEqual(found.returncode, 0)
        self.assertIn("Portal", found.stdout)
        self.assertIn("libHostile.so: it is left out", found.stderr)


if __name__ == "__main__":
    main()
