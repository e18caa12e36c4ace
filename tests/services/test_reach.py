# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""How far the real NetworkManager finds that a cable goes: into the Internet, to a login page, or nowhere."""

from cable import Reach
from scenario import main
from service_scenario import ServiceScenario
from waiting import wait_for

OUT_OF_REACH = "The Internet is out of reach."
CHECKING = "Checking…"
LOGIN = "This network asks for a login first."


class Reaches(ServiceScenario):

    network_settings = {"connectivity": Reach.settings + "interval=1\n"}

    def setUp(self):
        super().setUp()
        self.reach = self.play(Reach(self.folder / "reach"))
        self.cable = self.add_cable(1)

    def expect_no_hint(self, hint):
        wait_for(lambda: not self.window.all("label", hint), f"the end of \"{hint}\"")

    def test_into_the_internet(self):
        self.start_marked()
        texts = self.watch_texts()
        self.cable.up()
        self.expect_opened(1)
        texts.wait_for("Connected")
        self.expect_opened_once(self.cable)
        self.assertNotIn(OUT_OF_REACH, texts.all())

    def test_first_check_hangs_for_a_while(self):
        self.reach.set_cables("hang")
        self.start_marked()
        texts = self.watch_texts()
        self.cable.up()
        self.window.find("label", CHECKING)
        self.assertEqual(self.opened.calls(), [])
        self.reach.set_cables("full")
        self.expect_opened(1)
        self.expect_no_hint(CHECKING)
        self.assertNotIn(OUT_OF_REACH, texts.all())
        self.expect_told("up")

    def test_first_check_hangs_for_long(self):
        self.reach.set_cables("hang")
        self.start_marked()
        texts = self.watch_texts()
        self.cable.up()
        self.window.find("label", CHECKING)
        # After ten seconds nobody waits any longer.
        self.expect_opened(1)
        self.window.find("label", OUT_OF_REACH)
        self.assertLess(texts.all().index(CHECKING), texts.all().index(OUT_OF_REACH))
        self.reach.set_cables("full")
        self.expect_no_hint(OUT_OF_REACH)
        self.expect_told("up")

    def test_portal(self):
        self.reach.set_cables("portal")
        self.start_and_bring_up(self.cable)
        self.window.find("label", LOGIN)
        self.wait_for_log("connection up: up, and a portal wants a login")
        self.reach.set_cables("full")
        self.expect_no_hint(LOGIN)
        self.expect_told("up")

    def test_limited_then_full(self):
        self.reach.set_cables("limited")
        self.start_marked()
        self.cable.up()
        self.window.find("label", OUT_OF_REACH)
        self.assertEqual(self.opened.calls(), [])
        self.reach.set_cables("full")
        self.expect_opened(1)
        self.expect_no_hint(OUT_OF_REACH)
        self.expect_told("up")


if __name__ == "__main__":
    main()
