# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What the scenarios around the settings share."""

from display import press
from links import document
from scenario import TITLE, Scenario
from settings_dialog import SettingsDialog
from waiting import wait_for


class SettingsScenario(Scenario):

    def open_settings(self):
        self.application.main_window(TITLE)
        press("ctrl+comma")
        return SettingsDialog(self.application)

    def expect_file(self, current_id, *links):
        """Waits for the file to be saved whole, then compares every byte."""
        expected = document(current_id, *links)
        wait_for(lambda: self.config.exists() and self.config.read_bytes().endswith(b"</tovadoc>\n"), "a saved file")
        if self.config.read_bytes() != expected:
            self.assertEqual(self.config.read_text(encoding="utf-8"), expected.decode())

    def expect_menu(self, *names):
        """What the window offers while the settings may be open: the buttons, which show what the menu does."""
        wait_for(lambda: self.names_on_buttons() == list(names),
                 f"buttons {names}; there are {self.names_on_buttons()}")
