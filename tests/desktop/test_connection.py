# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Marked links open by themselves, once, when NetworkManager brings a connection up; the window shows the connection."""

from connection_scenario import ConnectionScenario
from network import Logind, ModemManager, NetworkManager
from scenario import main
from waiting import wait_for

ACTIVATED, DEACTIVATED = 2, 4


class Connection(ConnectionScenario):

    def test_up_and_down(self):
        network = self.play(NetworkManager())
        self.start_marked()
        self.expect_heading("Not connected")
        connection = network.activate("Mobile plan")
        self.expect_opened(1)
        self.expect_heading("Connected")
        network.take_down(connection)
        self.expect_heading("Not connected")
        self.wait_for_log("notification 1536 sent (connection down: down)")
        network.activate("Mobile plan")
        self.expect_opened(2)

    def test_service_starts_late_is_killed_and_restarted(self):
        self.start_marked()
        self.expect_heading("Not connected")
        self.window.find("label", "NetworkManager is not running")
        self.window.find("push button", "Connect")
        network = self.play(NetworkManager())
        wait_for(lambda: not self.window.all("push button", "Connect"), "the end of the button")
        network.activate("Mobile plan")
        self.expect_opened(1)
        network.kill()
        self.expect_heading("Not connected")
        self.window.find("label", "NetworkManager is not running")
        again = self.play(NetworkManager())
        self.wait_for_log("notification 1536 sent (connection down")
        again.activate("Mobile plan")
        self.expect_opened(2)

    def test_flickering_opens_once(self):
        network = self.play(NetworkManager())
        self.start_marked()
        connection = network.start_to_activate("Mobile plan")
        self.expect_heading("Connecting…")
        self.assertEqual(self.opened.calls(), [])
        network.set_state(connection, ACTIVATED)
        self.expect_opened(1)
        network.set_state(connection, ACTIVATED)
        network.set_state(connection, DEACTIVATED)
        self.expect_heading("Not connected")
        network.take_down(connection)
        network.activate("Roaming plan")
        self.expect_heading("Connected")
        self.wait_for_log("handed over")
        self.expect_opened(1)

    def test_sleep_and_resume_open_once(self):
        logind = self.play(Logind())
        network = self.play(NetworkManager())
        self.start_marked()
        connection = network.activate("Mobile plan")
        self.expect_opened(1)
        logind.prepare_for_sleep(True)
        self.wait_for_log("falling asleep")
        network.take_down(connection)
        self.expect_heading("Not connected")
        logind.prepare_for_sleep(False)
        self.wait_for_log("woke up")
        network.activate("Mobile plan")
        self.wait_for_log("was up before sleep")
        self.expect_opened(1)

    def test_up_before_the_program(self):
        network = self.play(NetworkManager())
        network.activate("Mobile plan")
        self.start_marked()
        self.expect_heading("Connected")
        self.wait_for_log("was up before the program was there")
        self.window.find("label", "Since: before this program started")
        network.set_reach(NetworkManager.LIMITED)
        self.window.find("label", "The Internet is out of reach.")
        network.set_reach(NetworkManager.FULL)
        wait_for(lambda: not self.window.all("label", "The Internet is out of reach."), "the end of the hint")
        self.assertNotIn("notification 1536", self.program.output())
        self.assertEqual(self.opened.calls(), [])

    def test_other_kinds_do_not_count(self):
        network = self.play(NetworkManager())
        self.start_marked()
        cable = network.activate("Cable", "802-3-ethernet")
        network.activate("Local network", "bluetooth", type="panu")
        network.activate("Mobile plan")
        self.expect_opened(1)
        network.take_down(cable, "802-3-ethernet")
        self.expect_heading("Connected")
        self.window.find("label", "Connection: Mobile plan")
        self.assertNotIn("took over", self.program.output())

    def test_any_connection_with_a_default_route(self):
        network = self.play(NetworkManager())
        self.start_marked("--connection", "any")
        network.activate("Cable", "802-3-ethernet")
        self.expect_opened(1)
        self.window.find("label", "Connection: Cable")

    def test_manual_does_not_listen_to_the_service(self):
        self.play(NetworkManager()).activate("Mobile plan")
        self.start_marked("--connection", "manual")
        self.expect_heading("Not connected")
        self.window.find("push button", "Connect")
        self.assertEqual(self.opened.calls(), [])

    def test_two_default_routes_open_once(self):
        network = self.play(NetworkManager())
        self.start_marked("--connection", "any")
        cable = network.activate("Cable", "802-3-ethernet")
        self.expect_opened(1)
        network.activate("Mobile plan")
        network.take_down(cable, "802-3-ethernet")
        self.window.find("label", "Connection: Mobile plan")
        self.wait_for_log("another connection took over")
        self.expect_opened(1)

    def test_shows_the_connection_that_the_traffic_takes(self):
        self.play(ModemManager("Northern Mobile"))
        network = self.play(NetworkManager())
        self.start_marked("--connection", "any")
        mobile = network.start_to_activate("Mobile plan")
        self.expect_heading("Connecting…")
        cable = network.activate("Cable", "802-3-ethernet")
        self.window.find("label", "Connection: Cable")
        network.set_state(mobile, ACTIVATED)
        network.set_primary(mobile)
        self.window.find("label", "Operator: Northern Mobile")
        network.set_primary(cable)
        self.window.find("label", "Connection: Cable")
        wait_for(lambda: not self.window.all("label", "Operator: Northern Mobile"), "the end of the operator")
        network.set_default_route(cable, False)
        self.window.find("label", "Connection: Mobile plan")

    def test_waits_for_the_internet(self):
        network = self.play(NetworkManager())
        network.set_reach(NetworkManager.LIMITED)
        self.start_marked()
        network.activate("Mobile plan")
        self.window.find("label", "The Internet is out of reach.")
        self.assertEqual(self.opened.calls(), [])
        network.set_reach(NetworkManager.FULL)
        self.expect_opened(1)
        wait_for(lambda: not self.window.all("label", "The Internet is out of reach."), "the end of the hint")

    def test_portal_opens_and_says_so(self):
        network = self.play(NetworkManager())
        network.set_reach(NetworkManager.PORTAL)
        self.start_marked()
        network.activate("Mobile plan")
        self.expect_opened(1)
        self.window.find("label", "This network asks for a login first.")
        self.wait_for_log("connection up: up, and a portal wants a login")

    def test_window_shows_the_connection(self):
        modems = self.play(ModemManager("Northern Mobile"))
        network = self.play(NetworkManager())
        self.start_marked()
        connection = network.activate("Mobile plan <b>&")
        for text in ("Connected", "Connection: Mobile plan <b>&", "Device: wwan0", "Operator: Northern Mobile"):
            self.window.find("label", text)
        since = wait_for(lambda: [name for name in self.window.names("label") if name.startswith("Since: ")], "a time")
        self.assertRegex(since[0], r"^Since: \d\d:\d\d(:\d\d)?$")
        modems.set_operator("Southern Mobile")
        self.window.find("label", "Operator: Southern Mobile")
        network.take_down(connection)
        self.expect_heading("Not connected")
        self.assertEqual([name for name in self.window.names("label") if ":" in name], [])


if __name__ == "__main__":
    main()
