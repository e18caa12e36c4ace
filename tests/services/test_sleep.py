# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""The computer sleeps, its modem loses its power, and the real services bring the connection back some time after.

Only logind is played: a test cannot send the computer to sleep."""

import time

from at_modem import HOME, SEARCHING
from network import Logind
from scenario import main
from service_scenario import ServiceScenario
from waiting import wait_for


class Sleep(ServiceScenario):

    kind = "mobile"

    def setUp(self):
        super().setUp()
        self.logind = self.play(Logind())
        self.plan = self.add_modem()

    def sleep_and_wake(self):
        self.start_and_bring_up(self.plan)
        self.plan.change(connection_autoconnect="yes")
        self.logind.prepare_for_sleep(True)
        self.wait_for_log("falling asleep")
        self.expect_heading("Not connected")
        # ModemManager itself lets go of what may have lost its power when the computer wakes up.
        self.modems.wait_until_gone()
        self.modem.register("Northern Mobile", SEARCHING)
        self.logind.prepare_for_sleep(False)
        self.wait_for_log("woke up")
        self.modems.find(self.modem)

    def expect_same_connection_after(self, seconds):
        """The modem, which was searching for its network since the computer woke up, finds it so many seconds later."""
        self.sleep_and_wake()
        end = time.monotonic() + seconds
        wait_for(lambda: time.monotonic() > end, "the time of searching", patience=seconds + 1)
        self.modem.register("Northern Mobile", HOME)
        self.expect_heading("Connected")
        self.wait_for_log("was up before sleep")
        self.expect_opened(1)
        self.expect_told("up")

    def test_back_after_3_seconds(self):
        self.expect_same_connection_after(3)

    def test_back_after_12_seconds(self):
        self.expect_same_connection_after(12)

    def test_back_before_the_minute_ends(self):
        # The services then begin to bring it up, and are ready when the minute is over.
        self.expect_same_connection_after(58)


if __name__ == "__main__":
    main()
