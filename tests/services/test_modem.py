# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What happens to the modem of a mobile connection, and to the real ModemManager."""

from at_modem import ROAMING
from namespaces import run
from scenario import main
from service_scenario import ServiceScenario


class Modems(ServiceScenario):

    kind = "mobile"

    def setUp(self):
        super().setUp()
        self.plan = self.add_modem()

    def test_operator_when_roaming(self):
        self.start_and_bring_up(self.plan)
        self.window.find("label", "Operator: Northern Mobile")
        self.modem.register("Southern Mobile", ROAMING)
        self.window.find("label", "Operator: Southern Mobile")
        self.expect_told("up")

    def test_radio_off_and_on(self):
        self.start_and_bring_up(self.plan)
        run("nmcli", "radio", "wwan", "off")
        self.wait_for_down()
        self.expect_heading("Not connected")
        run("nmcli", "radio", "wwan", "on")
        self.modems.wait_until_registered()
        self.plan.up()
        self.expect_opened(2)

    def test_modem_pulled_out(self):
        self.start_and_bring_up(self.plan)
        self.modems.take_out()
        self.wait_for_down()
        self.expect_heading("Not connected")
        self.modems.put_back()
        self.modems.wait_until_registered()
        self.plan.up()
        self.expect_opened(2)

    def test_modem_manager_killed(self):
        self.start_and_bring_up(self.plan)
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
