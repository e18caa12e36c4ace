# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What the user is told of a link that does not open, and where."""

from display import active_window, click_in_window, press, windows_of_class
from links import APPLICATION, EMAIL, INTERNET, link
from notifications import Notifications
from scenario import TITLE, main
from settings_dialog import SettingsDialog
from settings_scenario import SettingsScenario
from waiting import wait_for


class Failures(SettingsScenario):

    def make_program(self, name, command):
        """A program that is this shell command; returns its path."""
        path = self.folder / name
        path.write_text(f"#!/bin/sh\n{command}\n", encoding="utf-8")
        path.chmod(0o755)
        return str(path)

    def pick(self, name):
        self.open_menu("Quick Links").find("menu item", name).click()

    def message_with(self, *texts):
        """Waits for a message with all of these in it."""
        message = self.message_about(texts[0])
        wait_for(lambda: all(any(text in label for label in message.names("label")) for text in texts),
                 f"{texts} in {message.names('label')}")
        return message

    def hide_in_tray(self):
        """Closes the window, which goes on in a tray."""
        self.start_tray()
        self.main = active_window()
        self.icon = wait_for(lambda: [window for window in windows_of_class("vellumconnect") if window != self.main],
                             "the icon in the tray")[0]
        self.window.press_close_button()
        wait_for(lambda: windows_of_class("vellumconnect") == [self.icon], "the end of the window")

    def pick_from_tray(self, place):
        """Picks the link in this place, from 1 on, from the menu of the icon."""
        before = set(windows_of_class("vellumconnect"))

        def menus():
            return set(windows_of_class("vellumconnect")) - before

        # Not where the last click was, with which it would make a double click.
        click_in_window(self.icon, 16 * (place % 2) + 4, 4, button=3)
        wait_for(lambda: len(menus()) == 1, "the menu of the icon")
        press("Down", "Right")
        opened = wait_for(lambda: len(menus()) == 2 and menus(), "the menu of the links")
        press(*["Down"] * (place - 1), "Return")
        wait_for(lambda: not menus() & opened, "the end of both menus")

    def test_failing_program_leads_to_its_link(self):
        path = self.make_program("failing", "exit 3")
        self.start_with(link(0, "Portal", INTERNET, "http://portal.example.org/"), link(1, "Notes", APPLICATION, path))
        self.pick("Notes")
        message = self.message_with("Notes", path, "error code 3")
        message.find("push button", "Edit Link…").click()
        settings = SettingsDialog(self.application)
        wait_for(lambda: settings.selected() == "Notes", "the link in the settings")
        self.application.wait_until_gone(message)
        settings.close()

    def test_crash_is_told_by_keyboard(self):
        path = self.make_program("crashing", "kill -SEGV $$")
        self.start_with(link(0, "Notes", APPLICATION, path))
        self.application.main_window(TITLE)
        press("ctrl+1")
        message = self.message_with("Notes", path, "crashed (signal 11")
        self.application.window("Not opened")
        press("alt+e")
        settings = SettingsDialog(self.application)
        wait_for(lambda: settings.selected() == "Notes", "the link in the settings")
        self.application.wait_until_gone(message)

    def test_failures_of_one_event_are_one_notice(self):
        failing = self.make_program("failing", "exit 3")
        self.start_with(link(0, "Gone", APPLICATION, "/gone", startconnect=1),
                        link(1, "Failing", APPLICATION, failing, startconnect=1),
                        link(2, "Script", EMAIL, "javascript:1", startconnect=1),
                        arguments=("--connection", "manual"))
        self.window.find("push button", "Connect").click()
        message = self.message_with("Gone: /gone", f"Failing: {failing}", "Script: javascript:1")
        self.assertEqual(len(self.application.windows()), 2)
        message.find("push button", "Edit Links…").click()
        settings = SettingsDialog(self.application)
        wait_for(lambda: settings.selected() == "Gone", "the first link in the settings")

    def test_hidden_window_tells_by_notification(self):
        notifications = self.play(Notifications())
        self.start_with(link(0, "Gone & away", APPLICATION, "/gone/<b>1"), link(1, "Lost", APPLICATION, "/lost"))
        self.hide_in_tray()
        self.pick_from_tray(1)
        replaced, title, text, actions = notifications.wait_for("/gone/")
        self.assertEqual((replaced, title), (0, "Not opened"))
        self.assertIn("Gone &amp; away: /gone/&lt;b&gt;1", text)
        self.assertEqual(actions, {"default": TITLE, "edit": "Edit Link…"})
        self.assertEqual(self.application.windows(), [])
        # What fails while it stands is added to it.
        self.pick_from_tray(2)
        replaced, _, text, actions = notifications.wait_for("/lost")
        self.assertEqual(replaced, 1)
        self.assertIn("/gone/", text)
        self.assertEqual(actions["edit"], "Edit Links…")
        # A stranger's notification is nobody's business.
        notifications.act(99, "default")
        notifications.act(1, "edit")
        settings = SettingsDialog(self.application)
        wait_for(lambda: settings.selected() == "Gone & away", "the link in the settings")
        settings.close()

    def test_closed_notification_is_done_with(self):
        notifications = self.play(Notifications("body"))
        self.start_with(link(0, "Gone", APPLICATION, "/gone/<b>1"), link(1, "Lost", APPLICATION, "/lost"))
        self.hide_in_tray()
        self.pick_from_tray(1)
        _, _, text, actions = notifications.wait_for("/gone/")
        self.assertIn("/gone/<b>1", text)
        self.assertEqual(actions, {})
        notifications.close_notification(1)
        self.pick_from_tray(2)
        replaced, _, text, _ = notifications.wait_for("/lost")
        self.assertEqual(replaced, 0)
        self.assertNotIn("/gone/", text)

    def test_click_on_the_notification_shows_it_in_the_window(self):
        notifications = self.play(Notifications())
        self.start_with(link(0, "Gone", APPLICATION, "/gone"))
        self.hide_in_tray()
        self.pick_from_tray(1)
        notifications.wait_for("/gone")
        notifications.act(1, "default")
        self.message_with("Gone: /gone")
        wait_for(self.window.is_showing, "the window")

    def test_without_notifications_there_is_a_window(self):
        self.start_with(link(0, "Gone", APPLICATION, "/gone"))
        self.hide_in_tray()
        self.pick_from_tray(1)
        self.message_with("Gone: /gone")

    def test_refusal_stands_on_the_window_and_says_why(self):
        addresses = {"Capitals": ("HTTP://EXAMPLE.ORG", "small letters"), "Blanks": ("  http://x ", "blanks"),
                     "Bare": ("portal.example.org", "\"http://\", \"https://\", \"ftp://\" or \"www.\"")}
        self.start_with(*(link(i, name, INTERNET, address) for i, (name, (address, _)) in enumerate(addresses.items())))
        # The page that the message would belong to.
        self.open_settings().close()
        for name, (address, reason) in addresses.items():
            with self.subTest(name=name):
                self.application.main_window(TITLE)
                self.pick(name)
                message = self.message_with(f"{name}: {address.rstrip()}", reason)
                self.application.window("Not opened")
                x, y, width, height = message.extents
                left, top, window_width, window_height = self.window.extents
                self.assertTrue(left < x + width // 2 < left + window_width, (message.extents, self.window.extents))
                self.assertTrue(top < y + height // 2 < top + window_height, (message.extents, self.window.extents))
                message.find("push button", "OK").click()
                self.application.wait_until_gone(message)
        self.assertEqual(self.opened.calls(), [])
        self.pick("Capitals")
        self.message_with("Capitals: HTTP://EXAMPLE.ORG").find("push button", "Edit Link…").click()
        settings = SettingsDialog(self.application)
        wait_for(lambda: settings.selected() == "Capitals", "the link in the settings")

    def test_desktop_entry_and_folder(self):
        application = self.make_application("My programs", "note pad")
        entry = self.folder / "notes.desktop"
        entry.write_text(f"[Desktop Entry]\nType=Application\nName=Notes\nExec=\"{application}\" --new %U\n",
                         encoding="utf-8")
        broken = self.folder / "broken.desktop"
        broken.write_text("[Desktop Entry]\nType=Application\nName=Broken\nExec=/no/such/program\n", encoding="utf-8")
        papers = self.folder / "papers"
        papers.mkdir()
        self.start_with(link(0, "Notes", APPLICATION, str(entry)), link(1, "Papers", APPLICATION, str(papers)),
                        link(2, "Broken", APPLICATION, str(broken)))
        self.pick("Notes")
        _, _, path, arguments = self.started(application)
        self.assertEqual((path, arguments), (str(application), ["--new"]))
        self.pick("Papers")
        wait_for(self.opened.calls, "a call of xdg-open")
        self.assertEqual(self.opened.calls(), [[str(papers)]])
        self.pick("Broken")
        self.message_with("Broken", str(broken), "could not be started")

    def test_settings_say_that_parameters_stay_behind(self):
        said = "Programs start without the parameters that a link has for them."
        self.start_with(link(0, "Notes", APPLICATION, "/usr/bin/env", para="--new"),
                        link(1, "Portal", INTERNET, "http://portal.example.org/"))
        settings = self.open_settings()
        settings.window.find("label", said)
        settings.delete("Notes", "OK")
        settings.wait_for_links("Portal")
        wait_for(lambda: not settings.window.all("label", said), "the end of the line")
        settings.close()


if __name__ == "__main__":
    main()
