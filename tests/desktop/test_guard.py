# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What keeps links from being lost: damage, kills, a full disk, other programs; and what the user sees of it."""

import os
import resource
import signal

from display import press, xdotool
from links import EMAIL, INTERNET, document, link, save
from scenario import TITLE, main
from settings_dialog import LinkDialog, SettingsDialog
from settings_scenario import SettingsScenario
from waiting import wait_for

PORTAL = link(0, "Portal", INTERNET, "https://portal.example.org/")
MAIL = link(1, "Mail", EMAIL, "mailto:")
BOTH = document(2, PORTAL, MAIL)
THEIRS = document(3, PORTAL, link(2, "Theirs", INTERNET, "http://theirs.example.org/"))


class Guard(SettingsScenario):

    def setUp(self):
        super().setUp()
        self.start_with(PORTAL, MAIL)

    def quit(self):
        press("ctrl+q")
        self.assertEqual(self.program.exit_code(), 0)

    def kill(self):
        os.kill(self.program.pid, signal.SIGKILL)
        wait_for(lambda: not self.program.is_running(), "the end of the program")

    def start_with_message(self, *parts, button="OK"):
        """Starts the program, which says this before it is used."""
        self.launch()
        self.expect_message(*parts, button=button)
        self.window = self.application.main_window(TITLE)

    def message(self):
        """The message that is open: its window and text."""
        window = self.application.window("Quick Links")
        return window, " ".join(window.names("label"))

    def answer(self, window, button):
        window.find("push button", button).click()
        self.application.wait_until_gone(window)

    def expect_message(self, *parts, button="OK"):
        window, text = self.message()
        for part in parts:
            self.assertIn(part, text)
        self.answer(window, button)

    def expect_links(self, *names):
        self.expect_menu(*names)
        self.assertEqual(self.links_in_menu(), list(names) or ["No quick links"])

    def files_aside(self):
        return [path for path in self.config.parent.iterdir() if path != self.config]

    def test_damaged_file(self):
        self.quit()
        self.config.write_bytes(BOTH[:400])
        self.start_with_message("is damaged", "2 links", "are in place again", str(self.config.parent))
        self.expect_links("Portal", "Mail")
        self.assertEqual(self.config.read_bytes(), BOTH)
        self.assertEqual([path.read_bytes() for path in self.files_aside()], [BOTH[:400]])

    def test_pipe_in_place_of_the_file(self):
        self.quit()
        self.config.unlink()
        os.mkfifo(self.config)
        self.start_with_message("something that is no file", "2 links")
        self.expect_links("Portal", "Mail")

    def test_killed_in_the_middle_of_a_save(self):
        for left in (None, b"", BOTH[:300]):
            with self.subTest(left=left):
                self.kill()
                self.config.unlink()
                if left is not None:
                    self.config.write_bytes(left)
                self.start_with_message("are in place again")
                self.expect_links("Portal", "Mail")
                self.assertEqual(self.config.read_bytes(), BOTH)

    def test_removed_on_purpose(self):
        self.quit()
        self.config.unlink()
        self.start_with_message("is missing", "2 links", "can be brought back", button="Leave Out")
        self.expect_links()
        self.quit()
        # That is how things are now; nothing is said again.
        self.start()
        self.expect_links()
        self.assertFalse(self.config.exists())

    def test_removed_and_brought_back(self):
        self.quit()
        self.config.unlink()
        self.start_with_message("can be brought back", button="Bring Back")
        self.expect_links("Portal", "Mail")
        self.assertEqual(self.config.read_bytes(), BOTH)
        # The plug-in has them as well: it saves them with a new one.
        settings = self.open_settings()
        settings.wait_for_links("Portal", "Mail")
        settings.delete("Mail", "OK")
        settings.close()
        self.expect_file(2, PORTAL)

    def test_changed_by_another_program(self):
        self.config.write_bytes(THEIRS)
        self.expect_links("Portal", "Theirs")
        self.open_settings().wait_for_links("Portal", "Theirs")

    def test_changed_by_another_program_while_the_settings_are_open(self):
        for button, names in (("Keep Mine", ("Portal", "Mail")), ("Load Them", ("Portal", "Theirs"))):
            with self.subTest(button=button):
                settings = self.open_settings()
                save(self.data, PORTAL, MAIL)
                self.config.write_bytes(THEIRS)
                self.expect_message("changed by another program", button=button)
                settings = SettingsDialog(self.application)
                settings.wait_for_links(*names)
                settings.close()
                self.expect_links(*names)

    def test_saved_over_the_change_of_another_program(self):
        settings = self.open_settings()
        dialog = settings.new()
        dialog.choose_type("E-mail")
        dialog.field("Name:").type("Mine")
        self.config.write_bytes(THEIRS)
        dialog.close()
        self.expect_message("changed by another program", button="Load Them")
        settings = SettingsDialog(self.application)
        settings.wait_for_links("Portal", "Theirs")
        settings.close()
        self.assertEqual(self.config.read_bytes(), THEIRS)

    def test_question_stays_in_sight(self):
        settings = self.open_settings()
        self.config.write_bytes(THEIRS)
        question, _ = self.message()
        # A click beside it, which would bring the settings to the front.
        x, y, width, height = settings.button("Down").extents
        xdotool("mousemove", x + width // 2, y + height // 2, "click", 1)
        self.answer(question, "Keep Mine")
        SettingsDialog(self.application).wait_for_links("Portal", "Mail")
        self.expect_file(2, PORTAL, MAIL)

    def test_undo_and_redo(self):
        edit = self.open_menu("Edit")
        self.assertEqual([(item.name, item.is_enabled()) for item in edit.all("menu item")],
                         [("Undo", False), ("Redo", False), ("Find a Quick Link", False)])
        self.close_menu(edit)
        settings = self.open_settings()
        settings.delete("Portal", "OK")
        settings.close()
        self.expect_menu("Mail")
        self.open_menu("Edit").find("menu item", "Undo").click()
        self.expect_menu("Portal", "Mail")
        self.assertEqual(self.config.read_bytes(), BOTH)
        press("ctrl+shift+z")
        self.expect_menu("Mail")
        press("ctrl+z")
        self.expect_menu("Portal", "Mail")
        # What comes after it takes the place of what was undone.
        settings = self.open_settings()
        settings.delete("Mail", "OK")
        settings.close()
        press("ctrl+shift+z")
        press("ctrl+z")
        self.expect_menu("Portal", "Mail")

    def test_save_on_a_full_disk(self):
        self.quit()
        # A file at its limit is then an error like a full disk, and not the end of the program.
        self.launch(wrapper=("env", "--ignore-signal=XFSZ"))
        settings = self.open_settings()
        resource.prlimit(self.program.pid, resource.RLIMIT_FSIZE, (300, resource.RLIM_INFINITY))
        settings.delete("Mail", "OK")
        self.expect_message("could not be saved", "2 links", "are in place again")
        settings = SettingsDialog(self.application)
        settings.wait_for_links("Portal", "Mail")
        self.assertEqual(self.config.read_bytes(), BOTH)
        resource.prlimit(self.program.pid, resource.RLIMIT_FSIZE, (resource.RLIM_INFINITY, resource.RLIM_INFINITY))
        settings.delete("Mail", "OK")
        settings.wait_for_links("Portal")
        settings.close()
        self.expect_file(2, PORTAL)

    def set_largest_file(self, limit):
        """Lets no file of the program grow beyond limit bytes from now on, which is an error like a full disk."""
        resource.prlimit(self.program.pid, resource.RLIMIT_FSIZE, (limit, resource.RLIM_INFINITY))

    def start_on_a_full_disk(self):
        """Starts the program anew and opens its settings; then no file can be saved."""
        self.quit()
        self.launch(wrapper=("env", "--ignore-signal=XFSZ"))
        settings = self.open_settings()
        self.set_largest_file(300)
        return settings

    def test_failed_new_is_offered_again(self):
        dialog = self.start_on_a_full_disk().new()
        dialog.choose_type("Internet")
        dialog.field("Name:").type("News")
        dialog.field("Address:").type("http://news.example.org/")
        dialog.tick("Open when connected")
        for _ in range(2):
            dialog.close()
            self.expect_message("could not be saved", "2 links", button="Try Again")
            dialog = LinkDialog(self.application, LinkDialog.new_title)
            self.assertEqual(dialog.field("Name:").text, "News")
            self.assertEqual(dialog.field("Address:").text, "http://news.example.org/")
        self.set_largest_file(resource.RLIM_INFINITY)
        dialog.close()
        SettingsDialog(self.application).wait_for_links("Portal", "Mail", "News")
        self.expect_file(3, PORTAL, MAIL, link(2, "News", INTERNET, "http://news.example.org/", startconnect=1))

    def test_failed_edit_is_offered_again(self):
        dialog = self.start_on_a_full_disk().edit("Mail")
        dialog.field("Name:").type("Post")
        dialog.close()
        self.set_largest_file(resource.RLIM_INFINITY)
        self.expect_message("could not be saved", button="Try Again")
        dialog = LinkDialog(self.application, LinkDialog.edit_title)
        self.assertEqual(dialog.field("Name:").text, "Post")
        dialog.close()
        SettingsDialog(self.application).wait_for_links("Portal", "Post")

    def test_failed_move_is_made_again(self):
        settings = self.start_on_a_full_disk()
        settings.select("Mail")
        settings.press("Up")
        self.set_largest_file(resource.RLIM_INFINITY)
        self.expect_message("could not be saved", button="Try Again")
        settings = SettingsDialog(self.application)
        settings.wait_for_links("Mail", "Portal")
        self.assertEqual(settings.selected(), "Mail")
        self.expect_file(2, MAIL, PORTAL)

    def test_failed_deletion_is_asked_about_again(self):
        settings = self.start_on_a_full_disk()
        settings.delete("Portal", "OK")
        self.expect_message("could not be saved", button="OK")
        SettingsDialog(self.application).close()
        settings = self.open_settings()
        settings.delete("Portal", "OK")
        self.set_largest_file(resource.RLIM_INFINITY)
        self.expect_message("could not be saved", button="Try Again")
        self.answer(self.application.window("Quick Links"), "OK")
        SettingsDialog(self.application).wait_for_links("Mail")

    def rename(self, settings, old, new):
        dialog = settings.edit(old)
        dialog.field("Name:").type(new)
        dialog.close()
        return SettingsDialog(self.application)

    def test_marks_that_an_edit_drops_are_offered(self):
        for place in ("settings", "main window"):
            with self.subTest(place=place):
                self.quit()
                self.start_with(PORTAL, link(1, "News", INTERNET, "http://n.example.org/", startconnect=1))
                settings = self.rename(self.open_settings(), "News", "Late News")
                window = settings.window
                if place == "main window":
                    settings.close()
                    window = self.application.main_window(TITLE)
                wait_for(lambda: '"Late News" no longer opens when connected.' in window.names("label"), "the offer")
                window.find("push button", "Put Back").click()
                self.expect_file(2, PORTAL, link(1, "Late News", INTERNET, "http://n.example.org/", startconnect=1))
                wait_for(lambda: "Put Back" not in window.names("push button"), "the end of the offer")
                if place == "settings":
                    settings = SettingsDialog(self.application)
                    settings.wait_for_links("Portal", "Late News")
                    settings.close()

    def test_operators_rights_come_back_unasked(self):
        self.quit()
        self.start_with(PORTAL, link(1, "Help", INTERNET, "http://h.example.org/").replace('delete="1"', 'delete="0"'))
        settings = self.rename(self.open_settings(), "Help", "My Help")
        settings.wait_for_links("Portal", "My Help")
        right = link(1, "My Help", INTERNET, "http://h.example.org/").replace('delete="1"', 'delete="0"')
        wait_for(lambda: self.config.read_bytes() == document(2, PORTAL, right), "the operator's rights")
        settings.select("My Help")
        self.assertNotIn("Delete", settings.enabled_buttons())
        settings.close()
        # One step, and back again.
        press("ctrl+z")
        self.expect_menu("Portal", "Help")
        press("ctrl+shift+z")
        self.expect_menu("Portal", "My Help")
        self.assertEqual(self.config.read_bytes(), document(2, PORTAL, right))

    def test_going_back_in_history(self):
        settings = self.open_settings()
        settings.delete("Portal", "OK")
        settings.wait_for_links("Mail")
        settings.window.find("list item", "History").click()
        texts = wait_for(lambda: settings.window.find("tree").names("table cell"), "the states")
        self.assertIn("Removed: Portal", texts)
        button = settings.window.find("push button", "Go Back to This")
        self.assertFalse(button.is_enabled())
        settings.window.find("tree").all("table cell")[-2].click()
        wait_for(button.is_enabled, "a state to go back to")
        button.click()
        self.expect_menu("Portal", "Mail")
        wait_for(lambda: self.config.read_bytes() == BOTH, "the links as they were")
        self.assertIn("Added: Portal", settings.window.find("tree").names("table cell"))
        settings.close()
        press("ctrl+z")
        self.expect_menu("Mail")

    def test_folder_is_closed_to_other_users(self):
        self.quit()
        self.data.chmod(0o755)
        self.start()
        self.wait_for_log(f"{self.data} was open to other users")
        self.assertEqual(self.data.stat().st_mode & 0o777, 0o700)
        self.expect_links("Portal", "Mail")


if __name__ == "__main__":
    main()
