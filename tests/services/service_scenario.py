# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What scenarios with the real services share."""

import re

from bus_calls import BusCalls
from cable import Cable, make_outside
from connection_scenario import ConnectionScenario
from modem_manager import ModemManager, Plan, Polkit
from network_manager import NetworkManager
from shown_texts import ShownTexts
from waiting import wait_for


class ServiceScenario(ConnectionScenario):
    """As other scenarios of connections, with the real NetworkManager in place of the played one."""

    kind = "any"  # of connections that count
    network_settings = {}

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        make_outside()

    def setUp(self):
        super().setUp()
        self.network = self.play(NetworkManager(self.folder / "network", **self.network_settings))

    def said(self):
        logs = {name: self.folder / name / "log" for name in ("network", "modems")}
        return super().said() | {f"At last the service in {name}": "\n".join(log.read_text("utf-8").splitlines()[-80:])
                                 for name, log in logs.items() if log.exists()}

    def start_marked(self, *arguments):
        super().start_marked("--connection", self.kind, *arguments)

    def start_and_bring_up(self, connection):
        """Starts the program, then brings a connection up that counts."""
        self.start_marked()
        connection.up()
        self.expect_opened(1)

    def add_cable(self, number, **settings):
        return self.play(Cable(number, **settings))

    def add_modem(self):
        """A modem, its service and its stored connection, which is down."""
        self.play(Polkit())
        self.modems = self.play(ModemManager(self.folder / "modems"))
        self.modem = self.play(self.modems.add("Northern Mobile"))
        return Plan()

    def watch_texts(self):
        """The texts that the window shows from now on; see there."""
        return self.play(ShownTexts(self.program, self.folder / "texts"))

    def watch_bus(self):
        return self.play(BusCalls(self.folder / "calls"))

    def wait_until_active(self, connection):
        """Until NetworkManager itself says that it is up."""
        wait_for(lambda: connection.state() == "activated", f"{connection.name} to be up")

    def wait_for_down(self, times=1):
        """Waits until the program has told that the connection is gone."""
        self.wait_for_log("notification 1536 sent (connection down", times)

    def expect_told(self, *told):
        """The plug-ins were told "up" or "down" so far, in this order."""
        said = re.findall(r"notification 1536 sent \(connection (\w+)", self.program.output())
        self.assertEqual(said, list(told))

    def expect_opened_once(self, connection):
        """The links were opened when the connection, which is up, came up, and not since; nothing else is on its way."""
        self.expect_told("up")
        connection.down()
        self.wait_for_down()
        connection.up()
        self.expect_opened(2)
        self.expect_told("up", "down", "up")
