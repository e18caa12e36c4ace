# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What scenarios with the real services share."""

from cable import Cable, make_outside
from connection_scenario import ConnectionScenario
from network_manager import NetworkManager


class ServiceScenario(ConnectionScenario):
    """As other scenarios of connections, with the real NetworkManager in place of the played one."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        make_outside()

    def start_network(self, **settings):
        self.network = self.play(NetworkManager(self.folder / "network", **settings))

    def add_cable(self, number, **settings):
        return self.play(Cable(number, **settings))

    def wait_for_down(self, times=1):
        """Waits until the program has told that the connection is gone."""
        self.wait_for_log("notification 1536 sent (connection down", times)
