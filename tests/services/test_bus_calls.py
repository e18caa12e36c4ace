# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""The program calls no more on the system bus than NetworkManager's own "nmcli monitor", and nobody while nothing happens."""

import time

from scenario import main
from service_scenario import ServiceScenario
from session import Program
from waiting import wait_for

IDLE = 60  # seconds


class BusCalls(ServiceScenario):

    calls_for_the_modem = 0  # at the start

    def add_connection(self):
        return self.add_cable(1)

    def setUp(self):
        super().setUp()
        self.connection = self.add_connection()
        self.calls = self.watch_bus()
        self.monitor = self.play(Program(["nmcli", "monitor"], self.folder / "monitor"))
        wait_for(self.monitor.output, "nmcli monitor")
        self.start_marked()

    def expect_no_more_calls_than_the_monitor(self, known=((), ()), more=0):
        """After the calls known before, but for so many more."""
        ours, theirs = (calls[len(before):] for calls, before in zip(self.all_calls(), known))
        print(f"{len(ours)} calls, {len(theirs)} of nmcli monitor")
        self.assertLessEqual(len(ours), len(theirs) + more, f"\n{ours}\n{theirs}")

    def all_calls(self):
        return self.calls.of(self.program), self.calls.of(self.monitor)

    def test_start(self):
        self.expect_heading("Not connected")
        self.expect_no_more_calls_than_the_monitor(more=self.calls_for_the_modem)

    def test_changes(self):
        self.expect_heading("Not connected")
        known = self.all_calls()
        self.connection.up()
        self.expect_opened(1)
        self.connection.change(connection_id="Desk")
        self.window.find("label", "Connection: Desk")
        self.connection.down()
        self.wait_for_down()
        self.expect_no_more_calls_than_the_monitor(known)

    def test_idle(self):
        self.connection.up()
        self.expect_opened(1)
        self.expect_heading("Connected")
        known = self.calls.of(self.program)
        end = time.monotonic() + IDLE
        wait_for(lambda: time.monotonic() > end, "the end of nothing", patience=2 * IDLE)
        self.assertEqual(self.calls.of(self.program), known)


if __name__ == "__main__":
    main()
