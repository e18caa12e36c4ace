# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""A screen reader has something to say about everything that a user can operate."""

from links import EMAIL, INTERNET, link
from scenario import TITLE, main
from settings_dialog import TYPES
from settings_scenario import SettingsScenario

OPERABLE = ("push button", "text", "check box", "radio button", "combo box", "menu item", "page tab")


class Accessibility(SettingsScenario):

    def setUp(self):
        super().setUp()
        self.start_with(link(0, "News & weather", INTERNET, "http://news.example.org/"),
                        link(1, "Mail", EMAIL, "mailto:"))

    def labels(self, window):
        """{role: labels} of what the window shows; fails for one without a label, or with one that repeats."""
        found = {role: [widget.label for widget in window.all(role)] for role in OPERABLE}
        for role, labels in found.items():
            with self.subTest(window=window.name, role=role):
                self.assertNotIn("", labels)
                self.assertEqual(len(labels), len(set(labels)), labels)
                self.assertFalse([label for label in labels if "IDS_" in label])
        return {role: labels for role, labels in found.items() if labels}

    def test_main_window(self):
        self.assertEqual(self.labels(self.window), {
            "push button": ["Connect", "News & weather", "Mail"],
            "menu item": ["Connection", "Quick Links", "Edit", "Tools", "View", "Help"]})
        self.assertEqual(self.window.name, TITLE)

    def test_descriptions_are_plain_text(self):
        self.assertEqual([button.description for button in self.link_buttons()],
                         ["Open News & weather", "Open Mail"])

    def test_settings_page(self):
        settings = self.open_settings()
        self.assertEqual(self.labels(settings.window), {
            "push button": ["Up", "Down", "New…", "Edit…", "Delete", "OK", "Cancel"],
            "page tab": ["Quick Links"]})
        self.assertEqual(settings.window.names("list"), ["Pages"])

    def test_pages_of_the_program(self):
        settings = self.open_settings()
        settings.window.find("list item", "History").click()
        settings.window.find("push button", "Go Back to This")
        self.assertEqual(self.labels(settings.window), {"push button": ["Go Back to This", "OK", "Cancel"]})
        settings.window.find("list item", "Connection").click()
        settings.window.find("check box")
        self.assertEqual(self.labels(settings.window), {"check box": ["Not while roaming"],
                                                        "radio button": ["Mobile broadband", "Any plan",
                                                                         "Only the plans ticked here", "Any connection",
                                                                         "My own button"],
                                                        "push button": ["OK", "Cancel"]})
        settings.window.find("list item", "General").click()
        settings.window.find("check box")
        self.assertEqual(self.labels(settings.window), {"check box": ["Start with the session"],
                                                        "push button": ["OK", "Cancel"]})

    def test_many_links(self):
        self.program.close()
        self.start_with(*(link(i, f"Link {i}", EMAIL, "mailto:") for i in range(12)))
        self.assertEqual(self.labels(self.window)["text"], ["Find a quick link"])

    def test_link_dialog(self):
        dialog = self.open_settings().new()
        fields = {TYPES[0]: ["Program file:", "Parameters:", "Name:"], TYPES[1]: ["Name:"],
                  TYPES[2]: ["Address:", "Name:"]}
        for kind in TYPES:
            dialog.choose_type(kind)
            with self.subTest(kind):
                shown = self.labels(dialog.window)
                self.assertEqual(shown["text"], fields[kind])
                self.assertEqual(shown["combo box"], ["Type:"])
                self.assertEqual(shown["check box"], ["Open when Vellum Connect starts", "Open when connected"])
                self.assertEqual(shown["page tab"], [kind])
                buttons = ["Browse…", "OK", "Cancel"] if kind == TYPES[0] else ["OK", "Cancel"]
                self.assertEqual(shown["push button"], buttons)

    def test_question(self):
        settings = self.open_settings()
        settings.select("Mail")
        settings.press("Delete")
        question = self.application.window("Quick Links")
        self.assertEqual(self.labels(question), {"push button": ["OK", "Cancel"]})
        self.assertEqual(question.description, "Delete the selected quick link?")


if __name__ == "__main__":
    main()
