# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Cables of the real NetworkManager: marked links open once whenever a person would say that a connection came up."""

import signal

from scenario import main
from service_scenario import ServiceScenario


class Cables(ServiceScenario):

    def setUp(self):
        super().setUp()
        self.start_network()

    def test_up_down_and_up(self):
        cable = self.add_cable(1)
        self.start_marked("--connection", "any")
        self.expect_heading("Not connected")
        cable.up()
        self.expect_opened(1)
        self.expect_heading("Connected")
        self.window.find("label", "Connection: Cable 1")
        self.window.find("label", "Device: eth1")
        cable.down()
        self.wait_for_down()
        self.expect_heading("Not connected")
        cable.up()
        self.expect_opened(2)


if __name__ == "__main__":
    main()
