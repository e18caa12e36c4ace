# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""The user asks why something opened or did not, in a window and on a terminal; no file learns of it."""

import os
import subprocess
from pathlib import Path

from display import press
from links import APPLICATION, EMAIL, INTERNET, link
from network import NetworkManager
from scenario import PROGRAM, Scenario, main
from waiting import wait_for

WINDOW = "What Opened, and Why"
PLAN = "Mobile \033[31mplan"
PLAN_SHOWN = "Mobile  [31mplan"
UP = (PLAN_SHOWN, "Up and in the Internet", "Links marked for a connection open")
DOWN = (PLAN_SHOWN, "Down, waiting whether it comes back", "No links opened")
OPENED = ("Quetzal", "A connection came up", "Opened")
FAILED = ("Axolotl", "You picked it",
          "Not opened: There is no such file or folder, or you are not allowed to see it")


class Why(Scenario):

    def start_linked(self, network, *arguments):
        """With a marked link and one that leads nowhere; returns a connection that comes up and opens the first."""
        self.start_with(link(0, "Quetzal", EMAIL, "mailto:one@example.org", startconnect=1),
                        link(1, "Axolotl", APPLICATION, "/no/such/program"), arguments=arguments)
        connection = network.activate(PLAN)
        wait_for(lambda: self.opened.calls() == [["mailto:one@example.org"]], "the link")
        return connection

    def open_window(self):
        self.open_menu("Connection").find("menu item", "Why…").click()
        return self.application.window(WINDOW)

    @staticmethod
    def rows(window):
        """(name, cause, outcome) of each row."""
        cells = window.find("tree").names("table cell")
        return [tuple(cells[i + 1:i + 4]) for i in range(0, len(cells), 4)]

    def ask(self):
        """vellumconnect --why, for the folder of the test."""
        return subprocess.run([PROGRAM, "--data-dir", str(self.data), "--why"], capture_output=True, text=True, timeout=60,
                              check=False)

    def asked_rows(self):
        answer = self.ask()
        self.assertEqual((answer.returncode, answer.stderr), (0, ""))
        return [tuple(line.split("\t")[1:]) for line in answer.stdout.splitlines()]

    def pick(self, name):
        [button] = [button for button in self.link_buttons() if button.name == name]
        button.click()

    def test_window_follows_what_is_decided(self):
        network = self.play(NetworkManager())
        connection = self.start_linked(network)
        window = self.open_window()
        wait_for(lambda: self.rows(window) == [OPENED, UP], f"the decisions; there are {self.rows(window)}")
        network.take_down(connection)
        wait_for(lambda: self.rows(window) == [DOWN, OPENED, UP], f"one more; there are {self.rows(window)}")
        press("Escape")
        self.application.wait_until_gone(window)

    def test_terminal_says_the_same(self):
        self.start_linked(self.play(NetworkManager()))
        self.pick("Axolotl")
        self.message_about("/no/such/program")
        wait_for(lambda: self.asked_rows() == [FAILED, OPENED, UP], f"the decisions; there are {self.asked_rows()}")

    def test_connection_that_is_no_news(self):
        network = self.play(NetworkManager())
        network.activate(PLAN)
        self.start()
        wait_for(lambda: self.asked_rows() == [
            (PLAN_SHOWN, "Was up before the program was there", "No links opened")], "the decision")

    def test_terminal_before_anything_was_decided(self):
        self.start("--connection", "manual")
        wait_for(lambda: self.ask().returncode == 0, "an answer")
        self.assertEqual(self.ask().stdout, "Nothing was decided yet\n")

    def test_terminal_without_a_program(self):
        answer = self.ask()
        self.assertEqual((answer.returncode, answer.stdout), (1, ""))
        self.assertEqual(answer.stderr,
                         f"vellumconnect: No running program with the folder {self.data} can be asked.\n")
        # Nothing was started, and nothing made.
        self.assertEqual(list(self.data.rglob("config.xml")), [])
        self.assertEqual(self.ask().returncode, 1)

    def test_only_the_lowest_web_address_opens(self):
        for mark, cause in (("startmobile", "The program started"), ("startconnect", "A connection came up")):
            with self.subTest(mark):
                self.start_with(link(0, "Upper", INTERNET, "http://upper.example.org/", **{mark: 1}),
                                link(1, "Lower", INTERNET, "http://lower.example.org/", **{mark: 1}),
                                arguments=("--connection", "manual"))
                if mark == "startconnect":
                    self.window.find("push button", "Connect").click()
                rows = [("Lower", cause, "Opened"),
                        ("Upper", cause, "Not opened: of several marked web addresses only the lowest opens")]
                wait_for(lambda rows=rows: set(rows) <= set(self.asked_rows()), f"both; there are {self.asked_rows()}")
                self.program.close()

    def test_names_are_in_no_file(self):
        self.start_linked(self.play(NetworkManager()))
        self.pick("Axolotl")
        self.message_about("/no/such/program")
        wait_for(lambda: FAILED in self.asked_rows(), "the decisions")
        press("Return")
        self.application.main_window("Vellum Connect")
        press("ctrl+q")
        self.assertEqual(self.program.exit_code(), 0)
        own = [self.config, *(self.data / "history").iterdir()]
        files = [path for folder in (self.data, Path(os.environ["HOME"])) for path in folder.rglob("*")
                 if path.is_file() and path not in own]
        self.assertIn(self.data / "vellumconnect.ini", files)
        for name in (b"Quetzal", b"Axolotl", b"[31mplan"):
            self.assertEqual([path for path in files if name in path.read_bytes()], [])
            self.assertNotIn(name.decode(), self.program.output())
        self.assertIn(b"Axolotl", self.config.read_bytes())


if __name__ == "__main__":
    main()
