# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""The settings and the New/Edit dialog, as a user works with them."""

from display import press
from waiting import wait_for

TYPES = ("Application", "E-mail", "Internet")


class _Dialog:
    """An open dialog."""

    def __init__(self, application, title):
        self._application = application
        self.window = application.window(title)

    def button(self, name):
        return self.window.find("push button", name)

    def press(self, name):
        self.button(name).click()

    def close(self, button="OK"):
        self.press(button)
        self.wait_until_gone()

    def wait_until_gone(self):
        self._application.wait_until_gone(self.window)


class SettingsDialog(_Dialog):
    """Open settings with the quick-link page."""

    title = "Settings"

    def __init__(self, application):
        super().__init__(application, self.title)
        # They open on the page of last time.
        if not self.window.all("table"):
            self.window.find("list item", "Quick Links").click()
        self.table = self.window.find("table")

    def rows(self):
        """[(name, type)] from top to bottom."""
        cells = self.table.names("table cell")
        return list(zip(cells[0::2], cells[1::2]))

    def links(self):
        return [name for name, _ in self.rows()]

    def wait_for_links(self, *names):
        wait_for(lambda: self.links() == list(names), f"rows {names}; there are {self.links()}")

    def select(self, name):
        self.table.find("table cell", name).click()
        wait_for(lambda: self.selected() == name, f"the selection on \"{name}\"")

    def selected(self):
        names = [cell.name for cell in self.table.all("table cell") if cell.has_state("selected")]
        return names[0] if names else None

    def enabled_buttons(self):
        return [name for name in ("New…", "Edit…", "Delete", "Up", "Down") if self.button(name).is_enabled()]

    def new(self):
        self.press("New…")
        return LinkDialog(self._application, LinkDialog.new_title)

    def edit(self, name):
        self.select(name)
        self.press("Edit…")
        return LinkDialog(self._application, LinkDialog.edit_title)

    def delete(self, name, answer):
        self.select(name)
        self.press("Delete")
        question = self._application.window("Quick Links")
        assert question.names("push button") == ["OK", "Cancel"], question.names("push button")
        question.find("push button", answer).click()
        self._application.wait_until_gone(question)


class LinkDialog(_Dialog):
    """An open New or Edit dialog."""

    new_title = "New Quick Link"
    edit_title = "Edit Quick Link"

    def field(self, label):
        return self.window.find("text", label)

    def choose_type(self, name):
        self.window.find("combo box", "Type:").choose(name)

    def tick(self, name):
        box = self.window.find("check box", name)
        before = box.is_checked()
        box.click()
        wait_for(lambda: box.is_checked() != before, f"a change of {box}")

    def browse(self, path):
        """Picks a file in the file dialog by typing its path."""
        self.press("Browse…")
        chooser = self._application.window("Open")
        chooser.find("text", "File name:").type_against_completion(str(path))
        press("Return")
        self._application.wait_until_gone(chooser)

    def refused(self):
        """Presses OK, which a message must answer; closes it by Enter and returns its text."""
        self.press("OK")
        message = self._application.window("Quick Links")
        text = " ".join(message.names("label"))
        press("Return")
        self._application.wait_until_gone(message)
        return text
