# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""One of many links is found and opened by typing."""

from display import press, xdotool
from links import EMAIL, link
from scenario import Scenario, main
from waiting import wait_for

NAMES = [f"Customer {number}" for number in range(1, 31)] + ["Shop in Århus", "Shop & more"]


class Find(Scenario):

    def setUp(self):
        super().setUp()
        self.start_with(*(link(i, name, EMAIL, f"mailto:{i}@example.org") for i, name in enumerate(NAMES)))

    def expect(self, *names):
        wait_for(lambda: self.names_on_buttons() == list(names), f"{names}; there are {self.names_on_buttons()}")

    def test_typing_finds_and_return_opens(self):
        xdotool("type", "shop")
        self.expect("Shop in Århus", "Shop & more")
        self.assertEqual(self.window.find("text", "Find a quick link").text, "shop")
        press("Return")
        wait_for(self.opened.calls, "a call of xdg-open")
        press("Escape")
        self.expect(*NAMES)
        xdotool("type", "customer 3")
        self.expect("Customer 3", "Customer 13", "Customer 23", "Customer 30")
        self.assertEqual(self.opened.calls(), [["mailto:30@example.org"]])

    def test_keys_of_an_open_menu_find_nothing(self):
        menu = self.open_menu("Edit")
        xdotool("type", "3")
        self.close_menu(menu)
        self.expect(*NAMES)
        self.assertEqual(self.window.find("text", "Find a quick link").text, "")

    def test_control_and_f(self):
        menu = self.open_menu("Edit")
        self.assertIn("Find a Quick Link", menu.names("menu item"))
        self.close_menu(menu)
        press("ctrl+f")
        field = self.window.find("text", "Find a quick link")
        wait_for(lambda: field.has_state("focused"), "the focus in the field")
        xdotool("type", "& more")
        self.expect("Shop & more")
        press("Tab", "Return")
        wait_for(self.opened.calls, "a call of xdg-open")
        self.assertEqual(self.opened.calls(), [["mailto:31@example.org"]])


if __name__ == "__main__":
    main()
