# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Mobile broadband by the real ModemManager, beside cables of the real NetworkManager, which do not count."""

from cable import Reach
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

    def test_up_down_and_up(self):
        self.start_and_bring_up(self.plan)
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


if __name__ == "__main__":
    main()
