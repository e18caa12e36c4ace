# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What stands on the screen, found by the names that a screen reader speaks; touched by mouse and keyboard only."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

from display import active_window_title, press, xdotool  # noqa: E402
from waiting import wait_for  # noqa: E402


def start_accessibility():
    """Before the programs that are to be seen: Qt 5 does not notice an accessibility bus that comes later."""
    Atspi.init()
    desktop = Atspi.get_desktop(0)
    # Answers kept from before are of no use while the program changes.
    desktop.set_cache_mask(Atspi.Cache.NONE)
    desktop.get_child_count()


class Widget:
    """Something on the screen. It may vanish at any time; then it has no states and no children."""

    scale = 1  # pixels of the display for one of the program

    def __init__(self, accessible):
        self._accessible = accessible

    @property
    def name(self):
        return self._ask(self._accessible.get_name) or ""

    @property
    def label(self):
        """What a screen reader says first: the name; for a combo box, whose name is its choice, its label."""
        if self.role != "combo box":
            return self.name
        relations = self._ask(self._accessible.get_relation_set) or []
        labels = [relation.get_target(0) for relation in relations
                  if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY]
        return Widget(labels[0]).name if labels else ""

    @property
    def description(self):
        return self._ask(self._accessible.get_description) or ""

    @property
    def role(self):
        return self._ask(self._accessible.get_role_name) or ""

    @property
    def text(self):
        """The text in a field."""
        return self._ask(lambda: Atspi.Text.get_text(self._accessible, 0, -1)) or ""

    @property
    def extents(self):
        """(x, y, width, height) on the screen, in pixels."""
        found = self._ask(lambda: self._accessible.get_extents(Atspi.CoordType.SCREEN))
        return (found.x, found.y, found.width, found.height) if found else (0, 0, 0, 0)

    def has_state(self, state):
        states = self._ask(self._accessible.get_state_set)
        return bool(states) and states.contains(getattr(Atspi.StateType, state.upper()))

    def is_showing(self):
        return self.has_state("showing")

    def is_enabled(self):
        return self.has_state("enabled")

    def is_checked(self):
        return self.has_state("checked")

    def children(self):
        count = self._ask(self._accessible.get_child_count) or 0
        found = (self._ask(lambda i=i: self._accessible.get_child_at_index(i)) for i in range(count))
        return [Widget(child) for child in found if child]

    def all(self, role, label=None):
        """Everything inside, in order, that shows and has this role and label."""
        found = []
        for child in self.children():
            if child.role == role and label in (None, child.label) and child.is_showing():
                found.append(child)
            found += child.all(role, label)
        return found

    def find(self, role, label=None):
        """Waits for it to show."""
        return wait_for(lambda: self.all(role, label), f"{role} \"{label}\" in {self}")[0]

    def names(self, role):
        return [widget.name for widget in self.all(role)]

    def click(self):
        """Clicks its middle by mouse, once it is enabled and has come to rest."""
        wait_for(lambda: self.is_showing() and self.is_enabled(), f"{self} to be enabled")
        x, y, width, height = wait_for(self._place_at_rest, f"{self} to come to rest")
        self._click_at(x + width // 2, y + height // 2)

    def press_close_button(self):
        """Clicks the button in the corner of a window's frame, which is where openbox's own theme has it."""
        x, y, width, _ = wait_for(self._place_at_rest, f"{self} to come to rest")
        self._click_at(x + width - 12, y - 10)

    def type(self, text):
        """Clicks a field, replaces what is in it by typing, and waits until the text stands there."""
        self.click()
        wait_for(lambda: self.has_state("focused"), f"the focus in {self}")
        press("ctrl+a", "Delete")
        if text:
            xdotool("type", "--delay", 1, "--", text)
        wait_for(lambda: self.text == text, f"\"{text}\" in {self}, which shows \"{self.text}\"")

    def type_against_completion(self, text):
        """As `type`, for a field whose completion may replace what is typed while it still looks for matches."""
        for _ in range(2):
            try:
                return self.type(text)
            except AssertionError:
                pass
        return self.type(text)

    def choose(self, item):
        """Opens a combo box and clicks an item."""
        self.click()
        items = self.find("list")
        # A closed list has items that show, but no size.
        wait_for(lambda: items.extents[2] > 0, f"the list of {self}")
        items.find("list item", item).click()
        wait_for(lambda: self.name == item and items.extents[2] == 0, f"\"{item}\" in {self}")

    @staticmethod
    def _click_at(x, y):
        xdotool("mousemove", x * Widget.scale, y * Widget.scale, "click", 1)

    def _place_at_rest(self):
        before = self.extents
        return before if before[2] > 0 and before[3] > 0 and before == self.extents else None

    @staticmethod
    def _ask(question):
        try:
            return question()
        except GLib.Error:
            return None

    def __eq__(self, other):
        return isinstance(other, Widget) and self._accessible.path == other._accessible.path

    def __str__(self):
        return f"{self.role} \"{self.name}\""


class Application(Widget):
    """A running program as the screen reader sees it."""

    def __init__(self, program):
        desktop = Atspi.get_desktop(0)
        super().__init__(wait_for(lambda: self._with_pid(desktop, program), "the program in the accessibility tree"))

    @staticmethod
    def _with_pid(desktop, program):
        assert program.is_running(), "the program ended: " + program.output()
        for i in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(i)
            if child and Widget._ask(child.get_process_id) == program.pid:
                return child
        return None

    def windows(self):
        return [window for window in self.children() if window.is_showing()]

    def window(self, title):
        """Waits for a window with this title to be the active one."""
        return self._active(lambda window: window.name == title, title)

    def main_window(self, title):
        return self._active(lambda window: window.role == "frame", title)

    def _active(self, is_wanted, title):
        def is_there():
            found = [window for window in self.windows() if is_wanted(window)]
            # The toolkit puts the program's name behind the title.
            return found if found and active_window_title().startswith(title) else None

        return wait_for(is_there, f"the active window \"{title}\"")[0]

    def wait_until_gone(self, window):
        # A window that was deleted may go on answering as it last did: ask the program which windows it has.
        wait_for(lambda: window not in self.windows(), f"the end of {window}")
