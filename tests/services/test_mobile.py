# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""A modem of the real ModemManager under the real NetworkManager: marked links open once for mobile broadband."""

from at_modem import ROAMING
from modem_manager import ModemManager, Plan, Polkit
from scenario import main
from service_scenario import ServiceScenario
from waiting import wait_for


class Mobile(ServiceScenario):

    kind = "mobile"

    def setUp(self):
        super().setUp()
        self.play(Polkit())
        self.modems = self.play(ModemManager(self.folder / "modems"))
        self.modem = self.modems.add("Northern Mobile")
        self.addCleanup(self.modem.close)
        self.plan = Plan()

    def test_up_down_and_up(self):
        self.start_marked()
        self.expect_heading("Not connected")
        self.plan.up()
        self.expect_opened(1)
        for text in ("Connected", "Connection: Mobile plan", "Operator: Northern Mobile"):
            self.window.find("label", text)
        self.expect_opened_once(self.plan)


if __name__ == "__main__":
    main()
