# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""The real NetworkManager ends, comes back and hangs, while the cable stays plugged in."""

import signal
import time

from scenario import main
from service_scenario import ServiceScenario
from waiting import wait_for

LONGEST_CALL = 25  # seconds that a call on the bus waits for an answer where nobody says otherwise


class Restart(ServiceScenario):

    def setUp(self):
        super().setUp()
        self.cable = self.add_cable(1)

    def expect_right_at_once(self, heading):
        wait_for(lambda: self.window.all("label", heading), f"\"{heading}\" at once", patience=1)

    def test_keeps_the_connection(self):
        self.start_and_bring_up(self.cable)
        for number in (signal.SIGTERM, signal.SIGKILL) * 3:
            with self.subTest(number):
                self.network.kill(number)
                self.network.start()
                self.wait_until_active(self.cable)
                self.expect_heading("Connected")
                self.window.find("label", "Connection: Cable 1")
                self.expect_told("up")
        self.expect_opened_once(self.cable)

    def test_comes_back_without_the_connection(self):
        self.start_and_bring_up(self.cable)
        self.network.kill()
        self.cable.remove()
        self.network.start()
        self.wait_for_down()
        self.expect_heading("Not connected")
        self.add_cable(2).up()
        self.expect_opened(2)

    def test_comes_after_the_program(self):
        self.network.kill()
        self.start_marked()
        self.window.find("label", "NetworkManager is not running")
        self.network.start()
        self.cable.up()
        self.expect_opened(1)
        self.expect_told("up")

    def test_hangs_at_the_start(self):
        self.cable.up()
        self.network.stop()
        self.start_marked()
        self.expect_answers()
        self.network.go_on()
        self.expect_right_at_once("Connected")
        self.assertEqual(self.opened.calls(), [])

    def test_hangs_while_the_program_runs(self):
        self.start_and_bring_up(self.cable)
        other = self.add_cable(2)
        other.start_up()
        self.network.stop()
        end = time.monotonic() + LONGEST_CALL + 5
        while time.monotonic() < end:
            self.expect_answers()
        self.network.go_on()
        self.expect_right_at_once("Connected")
        self.cable.down()
        self.window.find("label", "Connection: Cable 2")
        self.expect_opened_once(other)


if __name__ == "__main__":
    main()
