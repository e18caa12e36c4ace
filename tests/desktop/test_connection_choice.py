# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""The user chooses in the settings which connections count; the window follows, and no link opens for it."""

from connection_scenario import ConnectionScenario
from display import press
from network import ModemManager, NetworkManager
from scenario import main
from settings_scenario import SettingsScenario
from waiting import wait_for

CABLE = "802-3-ethernet"
BY_CABLE = "Online by Ethernet; waiting for mobile broadband."


class ConnectionChoice(ConnectionScenario, SettingsScenario):

    def open_page(self):
        settings = self.open_settings()
        settings.window.find("list item", "Connection").click()
        settings.window.find("radio button", "Mobile broadband")
        return settings

    @staticmethod
    def choose(settings, role, name):
        """Clicks what is not chosen yet."""
        button = settings.window.find(role, name)
        assert not button.is_checked(), button
        button.click()
        wait_for(button.is_checked, f"{button} to be chosen")

    def start_again(self):
        press("ctrl+q")
        self.assertEqual(self.program.exit_code(), 0)
        self.start_marked()

    def test_any_connection(self):
        network = self.play(NetworkManager())
        cable = network.activate("Cable", CABLE)
        self.start_marked()
        self.expect_heading("Not connected")
        self.window.find("label", BY_CABLE)
        settings = self.open_page()
        self.choose(settings, "radio button", "Any connection")
        self.expect_heading("Connected")
        self.window.find("label", "Connection: Cable")
        settings.close()
        # It was up before: nothing opens, and nobody knows since when.
        self.assertEqual(self.opened.calls(), [])
        self.assertEqual([name for name in self.window.names("label") if name.startswith("Since")], [])
        network.take_down(cable, CABLE)
        self.wait_for_log("connection down: down")
        cable = network.activate("Cable", CABLE)
        self.expect_opened(1)
        # The choice is kept.
        self.start_again()
        self.expect_heading("Connected")
        self.wait_for_log("was up before the program was there")
        settings = self.open_page()
        self.assertTrue(settings.window.find("radio button", "Any connection").is_checked())
        self.choose(settings, "radio button", "Mobile broadband")
        self.expect_heading("Not connected")
        self.window.find("label", BY_CABLE)
        self.expect_opened(1)

    def test_own_button(self):
        self.play(NetworkManager()).activate("Mobile plan")
        self.start_marked()
        self.expect_heading("Connected")
        settings = self.open_page()
        self.choose(settings, "radio button", "My own button")
        self.expect_heading("Not connected")
        settings.close()
        self.assertEqual(self.opened.calls(), [])
        self.window.find("push button", "Connect").click()
        self.expect_opened(1)

    def test_ticked_plans(self):
        network = self.play(NetworkManager())
        network.store("Company plan")
        network.store("Office", CABLE)
        private = network.activate("Private plan")
        self.start_marked()
        self.expect_heading("Connected")
        settings = self.open_page()
        self.choose(settings, "radio button", "Only the plans ticked here")
        wait_for(lambda: settings.window.names("check box") == ["Company plan", "Private plan", "Not while roaming"],
                 "the plans")
        self.choose(settings, "check box", "Company plan")
        self.expect_heading("Not connected")
        self.window.find("label", "Online by another connection; waiting for mobile broadband.")
        settings.close()
        self.assertEqual(self.opened.calls(), [])
        network.take_down(private)
        network.activate("Company plan")
        self.expect_opened(1)
        self.window.find("label", "Connection: Company plan")
        # One that is gone can still be unticked.
        network.forget("Company plan")
        self.start_again()
        settings = self.open_page()
        settings.window.find("check box", "Company plan (not there now)").click()
        settings.close()
        self.start_again()
        settings = self.open_page()
        self.assertTrue(settings.window.find("radio button", "Any plan").is_checked())
        self.assertEqual(settings.window.names("check box"), ["Private plan", "Not while roaming"])

    def test_not_while_roaming(self):
        modems = self.play(ModemManager("Southern Mobile"))
        network = self.play(NetworkManager())
        modems.set_roaming(True)
        self.start_marked()
        settings = self.open_page()
        self.choose(settings, "check box", "Not while roaming")
        settings.close()
        network.activate("Mobile plan")
        self.window.find("label", "Roaming; waiting for your own network.")
        self.expect_heading("Not connected")
        self.assertEqual(self.opened.calls(), [])
        modems.set_roaming(False)
        self.expect_opened(1)
        self.expect_heading("Connected")

    def test_command_line_wins_for_the_run(self):
        network = self.play(NetworkManager())
        network.activate("Cable", CABLE)
        self.start_marked("--connection", "mobile")
        settings = self.open_page()
        settings.window.find("label", "In this run the command line says which connections count. What you choose here "
                                      "counts from the next start on.")
        self.choose(settings, "radio button", "Any connection")
        settings.close()
        self.window.find("label", BY_CABLE)
        self.start_again()
        self.expect_heading("Connected")

    def test_without_a_service(self):
        self.start_marked()
        settings = self.open_page()
        settings.window.find("label", "NetworkManager does not say which plans there are.")
        self.assertEqual(settings.window.names("check box"), ["Not while roaming"])


if __name__ == "__main__":
    main()
