# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Several connections of the real NetworkManager at once, of which those count that have a default route."""

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


class DefaultRoutes(ServiceScenario):

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
        self.start_and_bring_up(first)
        second.up()
        first.down()
        self.window.find("label", "Connection: Cable 2")
        self.expect_told("up")

    def test_slow_second_device(self):
        cable, slow = self.add_cable(1), self.add_cable(2, **SLOW)
        self.start_and_bring_up(cable)
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
        self.start_and_bring_up(cable)
        slow.start_up()
        wait_for(lambda: slow.state() == "activating", "the second device to begin")
        self.wait_until_active(slow)
        self.window.find("label", "Connection: Cable 2")
        self.expect_opened(1)
        self.expect_told("up")

    def test_ipv6_only(self):
        cable = self.add_cable(1, ipv4_method="disabled", ipv4_addresses="", ipv4_gateway="", ipv6_method="manual",
                               ipv6_addresses="fd00:1::2/64", ipv6_gateway="fd00:1::1")
        self.start_and_bring_up(cable)
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
