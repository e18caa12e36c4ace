# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Marked links open by themselves when the user says that the connection is up, and when the program starts."""

from connection_scenario import ConnectionScenario
from links import APPLICATION, EMAIL, INTERNET, link
from scenario import main

MISSING_SERVICE = "NetworkManager is not running"


class AutomaticLaunch(ConnectionScenario):

    def test_manual(self):
        self.start_marked("--connection", "manual")
        self.expect_heading("Not connected")
        self.window.find("push button", "Connect").click()
        self.expect_opened(1)
        self.expect_heading("Connected")
        self.window.find("push button", "Disconnect").click()
        self.expect_heading("Not connected")
        self.assertEqual(self.window.all("label", MISSING_SERVICE), [])

    def test_manual_by_itself(self):
        """There is no NetworkManager on the bus."""
        self.start_marked()
        self.window.find("label", MISSING_SERVICE)
        self.window.find("push button", "Connect").click()
        self.expect_opened(1)

    def test_start_opens_links_once(self):
        self.start_with(link(0, "A", INTERNET, "http://a.example.org/", startmobile=1),
                        link(1, "Mail", EMAIL, "mailto:a@example.org", startmobile=1),
                        link(2, "B", INTERNET, "http://b.example.org/", startmobile=1),
                        link(3, "Other", EMAIL, "mailto:b@example.org", startconnect=1))
        self.expected = [["mailto:a@example.org"], ["http://b.example.org/"]]
        self.expect_opened(1)
        # The window is painted again, which is no start.
        self.links_in_menu()
        self.assertEqual(self.program.output().count("notification 258 sent"), 1)
        self.expect_opened(1)

    def test_failures_at_one_connection_are_told_in_one_window(self):
        self.start_with(*(link(i, f"Gone {i}", APPLICATION, f"/gone/{i}", startconnect=1) for i in range(20)),
                        arguments=("--connection", "manual"))
        self.window.find("push button", "Connect").click()
        message = self.message_about("/gone/0")
        self.assertTrue(any("and 10 more" in text for text in message.names("label")))
        self.assertEqual(len(self.application.windows()), 2)


if __name__ == "__main__":
    main()
