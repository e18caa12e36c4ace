# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Cables of the real NetworkManager: marked links open once whenever a person would say that a connection came up."""

import os
import re
import unittest

from namespaces import run
from network_manager import Connection
from scenario import main
from service_scenario import ServiceScenario
from waiting import wait_for

# A device that waits for the other network to tell it an address, which never happens.
SLOW = {"ipv6_method": "auto", "ipv6_may__fail": "no", "ipv6_ra__timeout": "8", "ipv4_route__metric": "50"}
LOCAL = {"ipv4_method": "manual", "ipv4_addresses": "10.0.3.1/24", "ipv6_method": "disabled"}


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
        self.start_marked()
        cable.up()
        self.expect_opened(1)
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
        self.start_marked()
        cable.up()
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
        cable.change(ipv4_method="manual", ipv4_addresses="10.0.1.2/24", ipv4_gateway="10.0.1.1")
        cable.up()
        self.expect_opened(1)

    def test_switch_never_looks_like_a_gap(self):
        first, second = self.add_cable(1), self.add_cable(2)
        self.start_marked()
        texts = self.watch_texts()
        first.up()
        self.expect_opened(1)
        texts.wait_for("Connected")
        for here, there in ((first, second), (second, first)) * 10:
            there.up()
            here.down()
            self.window.find("label", f"Connection: {there.name}")
        shown = texts.all()
        self.assertNotIn("Not connected", shown[shown.index("Connected"):])
        # Nobody checks.
        self.assertNotIn("The Internet is out of reach.", shown)
        self.expect_told("up")

    def test_second_default_route_is_better(self):
        self.expect_hand_over(100, 50)

    def test_second_default_route_is_worse(self):
        self.expect_hand_over(50, 100)

    def expect_hand_over(self, *metrics):
        first, second = (self.add_cable(number, ipv4_route__metric=str(metric))
                         for number, metric in enumerate(metrics, start=1))
        self.start_marked()
        first.up()
        self.expect_opened(1)
        second.up()
        first.down()
        self.window.find("label", "Connection: Cable 2")
        self.expect_told("up")

    def test_slow_second_device(self):
        cable, slow = self.add_cable(1), self.add_cable(2, **SLOW)
        self.start_marked()
        cable.up()
        self.expect_opened(1)
        slow.start_up()
        wait_for(lambda: slow.state() == "activating", "the second device to begin")
        wait_for(lambda: slow.state() == "", "the second device to give up")
        self.expect_heading("Connected")
        self.expect_opened(1)
        self.expect_told("up")

    def test_device_with_a_slow_vpn(self):
        cable, slow = self.add_cable(1), self.add_cable(2, ipv4_route__metric="50")
        Connection("Work", "vpn", "*", vpn_service__type="com.example.slow")
        slow.change(connection_secondaries="Work")
        self.start_marked()
        cable.up()
        self.expect_opened(1)
        slow.start_up()
        wait_for(lambda: slow.state() == "activating", "the second device to begin")
        self.wait_until_active(slow)
        self.window.find("label", "Connection: Cable 2")
        self.expect_opened(1)
        self.expect_told("up")

    def test_ipv6_only(self):
        cable = self.add_cable(1, ipv4_method="disabled", ipv4_addresses="", ipv4_gateway="", ipv6_method="manual",
                               ipv6_addresses="fd00:1::2/64", ipv6_gateway="fd00:1::1")
        self.start_marked()
        cable.up()
        self.expect_opened(1)
        self.expect_told("up")

    def test_what_has_no_default_route_does_not_count(self):
        cable = self.add_cable(1)
        local = self.add_cable(2, ipv4_never__default="yes")
        self.start_marked()
        texts = self.watch_texts()
        local.up()
        Connection("Inner bridge", "bridge", "inner", **LOCAL).up()
        # As other programs make them.
        run("ip", "link", "add", "outer", "type", "bridge")
        run("ip", "address", "add", "10.0.9.1/24", "dev", "outer")
        run("ip", "link", "set", "outer", "up")
        wait_for(lambda: "outer" in run("nmcli", "--get-values", "NAME", "connection", "show", "--active"), "the bridge")
        self.expect_only(cable, texts)

    @unittest.skipUnless(os.access("/dev/net/tun", os.R_OK | os.W_OK), "This system lets this user make no tun device.")
    def test_tun_does_not_count(self):
        cable = self.add_cable(1)
        self.start_marked()
        texts = self.watch_texts()
        Connection("Tunnel", "tun", "tun0", **LOCAL).up()
        self.expect_only(cable, texts)

    def expect_only(self, cable, texts):
        """This cable counts when it comes up, and no connection that is up did."""
        cable.up()
        self.expect_opened(1)
        texts.wait_for("Connection: Cable 1")
        self.assertEqual({text for text in texts.all() if re.match("Connection: .", text)}, {"Connection: Cable 1"})


if __name__ == "__main__":
    main()
