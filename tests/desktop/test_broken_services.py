# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Services of the system bus that stop, say far too much, or say nonsense: the window answers all the same."""

import dbus

from connection_scenario import ConnectionScenario
from network import MANAGER, ModemManager, NetworkManager
from scenario import main
from waiting import wait_for


class BrokenServices(ConnectionScenario):

    def test_stopped_before_the_program(self):
        network = self.play(NetworkManager())
        network.activate("Mobile plan")
        network.stop()
        self.start_marked()
        self.expect_answers()
        self.window.find("push button", "Connect")
        network.go_on()
        self.expect_heading("Connected")
        wait_for(lambda: not self.window.all("push button", "Connect"), "the end of the button")
        self.expect_answers()

    def test_stopped_while_it_is_looked_at(self):
        network = self.play(NetworkManager())
        self.start_marked()
        connection = network.activate("Mobile plan")
        self.expect_opened(1)
        network.flood(100)
        network.stop()
        for _ in range(3):
            self.expect_answers()
        self.expect_heading("Connected")
        network.go_on()
        network.take_down(connection)
        self.expect_heading("Not connected")
        self.expect_opened(1)

    def test_stopped_modem_service(self):
        modems = self.play(ModemManager("Northern Mobile"))
        network = self.play(NetworkManager())
        self.start_marked()
        modems.stop()
        network.activate("Mobile plan")
        self.expect_opened(1)
        self.expect_heading("Connected")
        self.expect_answers()
        modems.go_on()
        self.window.find("label", "Operator: Northern Mobile")

    def test_flood(self):
        network = self.play(NetworkManager())
        self.start_marked()
        connection = network.activate("Mobile plan")
        self.expect_opened(1)
        network.flood(50000)
        self.expect_answers()
        # The last word of a flood is heard.
        network.take_down(connection)
        self.expect_heading("Not connected")
        self.expect_opened(1)

    def test_nonsense(self):
        network = self.play(NetworkManager())
        self.start_marked()
        network.activate("Mobile plan")
        self.expect_heading("Connected")
        connections = network.at(MANAGER, dbus.PROPERTIES_IFACE).Get(network.name, "ActiveConnections")
        for nonsense in ("text", dbus.UInt32(7), dbus.Array([], signature="s"), dbus.Struct((1, "a")), -1,
                         dbus.Array([dbus.ObjectPath("/nowhere")], signature="o")):
            with self.subTest(nonsense=nonsense):
                network.say("ActiveConnections", nonsense)
                self.expect_heading("Not connected")
                self.expect_answers()
                network.say("ActiveConnections", connections)
                self.expect_heading("Connected")


if __name__ == "__main__":
    main()
