# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""A modem of the real ModemManager under the real NetworkManager: marked links open once for mobile broadband."""

from at_modem import ROAMING
from cable import Reach
from namespaces import run
from scenario import main
from service_scenario import ServiceScenario
from waiting import wait_for

OUT_OF_REACH = "The Internet is out of reach."


class Mobile(ServiceScenario):

    kind = "mobile"
    network_settings = {"connectivity": Reach.settings + "interval=1\n"}

    def setUp(self):
        super().setUp()
        self.reach = self.play(Reach(self.folder / "reach"))
        self.plan = self.add_modem()

    def start_with_plan(self):
        self.start_marked()
        self.plan.up()
        self.expect_opened(1)
        self.window.find("label", "Connection: Mobile plan")

    def test_up_down_and_up(self):
        self.start_with_plan()
        self.expect_heading("Connected")
        self.window.find("label", "Operator: Northern Mobile")
        self.expect_opened_once(self.plan)

    def test_cable_does_not_count(self):
        cable = self.add_cable(1)
        self.start_marked()
        cable.up()
        self.expect_heading("Not connected")
        self.plan.up()
        self.expect_opened(1)
        cable.down()
        self.window.find("label", "Connection: Mobile plan")
        self.expect_told("up")

    def test_plan_lets_nobody_out_beside_a_cable_that_does(self):
        self.add_cable(1).up()
        self.reach.set_plan("limited")
        self.start_marked()
        self.plan.up()
        self.window.find("label", OUT_OF_REACH)
        self.assertEqual(self.opened.calls(), [])
        self.reach.set_plan("full")
        self.expect_opened(1)
        wait_for(lambda: not self.window.all("label", OUT_OF_REACH), "the end of the hint")
        self.expect_told("up")

    def test_operator_when_roaming(self):
        self.start_with_plan()
        self.window.find("label", "Operator: Northern Mobile")
        self.modem.register("Southern Mobile", ROAMING)
        self.window.find("label", "Operator: Southern Mobile")
        self.expect_told("up")

    def test_radio_off_and_on(self):
        self.start_with_plan()
        run("nmcli", "radio", "wwan", "off")
        self.wait_for_down()
        self.expect_heading("Not connected")
        run("nmcli", "radio", "wwan", "on")
        self.modems.wait_until_registered()
        self.plan.up()
        self.expect_opened(2)

    def test_modem_pulled_out(self):
        self.start_with_plan()
        self.modems.take_out()
        self.wait_for_down()
        self.expect_heading("Not connected")
        self.modems.put_back()
        self.modems.wait_until_registered()
        self.plan.up()
        self.expect_opened(2)

    def test_modem_manager_killed(self):
        self.start_with_plan()
        self.modems.kill()
        self.wait_for_down()
        self.expect_heading("Not connected")
        self.modems.start()
        self.modems.find(self.modem)
        self.modems.wait_until_registered()
        self.plan.up()
        self.expect_opened(2)
        self.window.find("label", "Operator: Northern Mobile")

    def test_modem_manager_hangs_at_the_start(self):
        self.plan.up()
        self.modems.stop()
        self.start_marked()
        self.expect_heading("Connected")
        self.expect_answers()
        self.modems.go_on()
        self.window.find("label", "Operator: Northern Mobile")


if __name__ == "__main__":
    main()
