# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What scenarios of connections share: links that are marked to open by themselves."""

from links import APPLICATION, EMAIL, INTERNET, link
from scenario import Scenario
from waiting import wait_for


class ConnectionScenario(Scenario):

    def setUp(self):
        super().setUp()
        self.paper = self.folder / "paper.txt"
        self.paper.write_text("paper\n", encoding="ascii")
        self.expected = [[str(self.paper)], ["mailto:one@example.org"], ["mailto:two@example.org"],
                         ["http://last.example.org/"]]

    def start_marked(self, *arguments):
        """Starts the program with links that are marked for a connection, and others."""
        self.start_with(
            link(0, "First", INTERNET, "http://first.example.org/", startconnect=1),
            link(1, "Paper", APPLICATION, str(self.paper), startconnect=1),
            link(2, "One", EMAIL, "mailto:one@example.org", startconnect=1),
            link(3, "Not marked", EMAIL, "mailto:none@example.org"),
            link(4, "Last", INTERNET, "http://last.example.org/", startconnect=1),
            link(5, "Two", EMAIL, "mailto:two@example.org", startconnect=1),
            link(6, "Oddly marked", EMAIL, "mailto:odd@example.org", startconnect="true"),
            arguments=arguments)

    def expect_opened(self, times):
        """The marked links were opened this many times: all in order, only the last of the Internet links, and last."""
        wait_for(lambda: len(self.opened.calls()) >= times * len(self.expected),
                 f"the links; so far {self.opened.calls()}")
        self.assertEqual(self.opened.calls(), times * self.expected)

    def expect_heading(self, text):
        self.window.find("label", text)

    def expect_answers(self):
        """The window is used: a menu opens and closes. Whoever waits for the bus shows none."""
        self.assertIn("First", self.links_in_menu())
