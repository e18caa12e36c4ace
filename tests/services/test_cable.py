# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Cables of the real NetworkManager: marked links open once whenever a person would say that a connection came up."""

from scenario import main
from service_scenario import ServiceScenario
from waiting import wait_for


class Cables(ServiceScenario):

    def test_up_down_and_up(self):
        cable = self.add_cable(1)
        self.start_marked()
        self.expect_heading("Not connected")
        cable.up()
        self.expect_opened(1)
        self.expect_heading("Connected")
        self.window.find("label", "Connection: Cable 1")
        self.window.find("label", "Device: eth1")
        self.expect_opened_once(cable)

    def test_unplugged_and_plugged_in_again(self):
        self.start_marked()
        cable = self.add_cable(1, connection_autoconnect="yes")
        self.expect_opened(1)
        cable.unplug()
        self.wait_for_down()
        cable.plug_in()
        self.expect_opened(2)

    def test_device_removed(self):
        cable = self.add_cable(1)
        self.start_and_bring_up(cable)
        cable.remove()
        self.wait_for_down()
        self.expect_heading("Not connected")
        self.add_cable(2).up()
        self.expect_opened(2)

    def test_fifty_times_in_a_few_seconds(self):
        cable = self.add_cable(1)
        self.start_marked()
        for _ in range(50):
            cable.up()
            cable.down()
        cable.up()
        self.expect_opened(1)
        self.expect_heading("Connected")
        self.expect_told("up")

    def test_renamed(self):
        cable = self.add_cable(1)
        self.start_and_bring_up(cable)
        self.window.find("label", "Connection: Cable 1")
        cable.change(connection_id="Desk")
        wait_for(lambda: self.window.all("label", "Connection: Desk"), "the new name", patience=1)
        self.expect_told("up")

    def test_waits_for_an_address(self):
        cable = self.add_cable(1, ipv4_method="auto", ipv4_addresses="", ipv4_gateway="")
        self.start_marked()
        cable.start_up()
        self.expect_heading("Connecting…")
        self.assertEqual(self.opened.calls(), [])
        cable.down()
        self.expect_heading("Not connected")
        cable.change(ipv4_addresses="10.0.1.2/24", ipv4_gateway="10.0.1.1", ipv4_method="manual")
        cable.up()
        self.expect_opened(1)


if __name__ == "__main__":
    main()
