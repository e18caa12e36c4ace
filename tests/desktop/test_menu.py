# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Quick links open from the menu and from the window's buttons."""

from pathlib import Path

from display import press
from links import APPLICATION, EMAIL, INTERNET, link, visible_links
from scenario import TITLE, Scenario, main
from waiting import wait_for


class Menu(Scenario):

    def pick(self, name):
        self.open_menu("Quick Links").find("menu item", name).click()

    def expect_calls(self, *calls):
        wait_for(lambda: len(self.opened.calls()) >= len(calls), f"a call of xdg-open; so far {self.opened.calls()}")
        self.assertEqual(self.opened.calls(), list(calls))

    def test_sample_links_in_file_order(self):
        self.use_sample()
        expected = [attributes["name"] for attributes in visible_links(self.data)]
        self.assertEqual(len(expected), 8)
        self.start()
        self.assertEqual(self.links_in_menu(), expected)
        self.assertEqual(self.names_on_buttons(), expected)

    def test_hidden_link_is_not_shown(self):
        self.start_with(link(0, "Here", INTERNET, "http://a.example/"),
                        link(1, "Hidden", INTERNET, "http://b.example/", visible=0),
                        link(2, "There", EMAIL, "mailto:"))
        self.assertEqual(self.links_in_menu(), ["Here", "There"])
        self.assertEqual(self.names_on_buttons(), ["Here", "There"])

    def test_internet_address(self):
        address = "https://portal.example.org/search?q=a%20b&x=%C3%A9#top"
        self.start_with(link(0, "Portal", INTERNET, address), link(1, "Short", INTERNET, "www.example.org/a"))
        self.pick("Portal")
        self.expect_calls([address])
        self.pick("Short")
        self.expect_calls([address], ["http://www.example.org/a"])

    def test_email(self):
        self.start_with(link(0, "Write", EMAIL, "mailto:"))
        self.pick("Write")
        self.expect_calls(["mailto:"])

    def test_document(self):
        path = self.folder / "My papers/100% of it & more.txt"
        path.parent.mkdir()
        path.write_text("paper\n", encoding="ascii")
        # A path is read as a URL, so a percent sign in it must be written as one.
        self.start_with(link(0, "Paper", APPLICATION, str(path).replace("%", "%25")))
        self.pick("Paper")
        self.expect_calls([str(path)])

    def test_application(self):
        application = self.make_application("My programs", "note pad")
        self.start_with(link(0, "Notes", APPLICATION, str(application), para="--not --passed"))
        self.pick("Notes")
        _, folder, path, arguments = self.started(application)
        self.assertEqual(folder, str(application.parent))
        self.assertEqual(path, str(application))
        self.assertEqual(arguments, [])
        self.assertEqual(self.opened.calls(), [])

    def test_button_opens_with_one_click(self):
        self.start_with(link(0, "Portal", INTERNET, "http://portal.example.org/"))
        self.window.find("push button", "Portal").click()
        self.expect_calls(["http://portal.example.org/"])

    def test_address_without_scheme_is_refused(self):
        self.start_with(link(0, "Bare", INTERNET, "portal.example.org"))
        self.pick("Bare")
        message = self.application.window("Not opened")
        self.assertTrue(any("This address needs" in text for text in message.names("label")))
        self.assertEqual(message.names("push button"), ["OK", "Edit Link…"])
        press("Return")
        self.application.wait_until_gone(message)
        self.application.main_window(TITLE)
        self.assertEqual(self.opened.calls(), [])

    def test_failure_of_the_desktop_is_told_without_blocking(self):
        address = "https://nowhere.example.org/page"
        self.start_with(link(0, "Nowhere", INTERNET, address), link(1, "Write", EMAIL, "mailto:"))
        self.opened.let_answer(3)
        self.pick("Nowhere")
        message = self.message_about(address)
        self.opened.let_answer(0)
        self.pick("Write")
        self.expect_calls([address], ["mailto:"])
        self.assertTrue(message.is_showing())
        message.find("push button", "OK").click()
        self.application.wait_until_gone(message)

    def test_missing_application_is_told(self):
        path = str(self.folder / "no such program")
        self.start_with(link(0, "Gone", APPLICATION, path))
        self.pick("Gone")
        self.message_about(path)
        self.assertEqual(self.opened.calls(), [])

    def test_unusual_address_is_asked_about_once(self):
        address = "sms:+4930123"
        self.start_with(link(0, "Text", EMAIL, address), link(1, "Write", EMAIL, "mailto:"))
        self.pick("Text")
        question = self.message_about(address)
        self.pick("Write")
        self.expect_calls(["mailto:"])
        self.assertTrue(question.is_showing())
        question.find("push button", "Yes").click()
        self.application.wait_until_gone(question)
        self.expect_calls(["mailto:"], [address])
        self.pick("Text")
        self.expect_calls(["mailto:"], [address], [address])

    def test_script_is_refused(self):
        self.start_with(link(0, "Script", EMAIL, "javascript:alert(1)"))
        self.pick("Script")
        message = self.message_about("javascript:alert(1)")
        self.assertTrue(any("never opened" in text for text in message.names("label")))
        self.assertEqual(self.opened.calls(), [])

    def test_ampersand_shows(self):
        self.start_with(link(0, "News & Weather", INTERNET, "http://news.example.org/"),
                        link(1, "Q&A", INTERNET, "http://qa.example.org/"))
        self.assertEqual(self.links_in_menu(), ["News & Weather", "Q&A"])
        self.assertEqual(self.names_on_buttons(), ["News & Weather", "Q&A"])
        self.pick("Q&A")
        self.expect_calls(["http://qa.example.org/"])

    def test_hundreds_of_links_are_within_reach(self):
        self.start_with(*(link(i, f"Link {i}", EMAIL, f"mailto:{i}@example.org") for i in range(500)))
        menu = self.open_menu("Quick Links")
        press("End")
        last = menu.find("menu item", "Link 499")
        width, height = map(int, self.screen_size.split("x"))

        def is_on_screen():
            x, y, item_width, item_height = last.extents
            return 0 <= x <= width - item_width and 0 <= y <= height - item_height

        wait_for(is_on_screen, f"the last entry on the screen; it is at {last.extents}")
        press("Return")
        self.expect_calls(["mailto:499@example.org"])

    def test_empty_list_shows_one_disabled_entry(self):
        self.start_with()
        entries = self.open_menu("Quick Links").all("menu item")
        self.assertEqual([entry.name for entry in entries], ["No quick links"])
        self.assertFalse(entries[0].is_enabled())

    def test_what_was_opened_outlives_the_program(self):
        application = self.make_application("My programs", "note pad")
        self.start_with(link(0, "Notes", APPLICATION, str(application)),
                        link(1, "Portal", INTERNET, "http://portal.example.org/"))
        self.opened.let_stay()
        self.pick("Notes")
        self.pick("Portal")
        opened = [self.started(application)[0], *self.staying_calls(1)]
        self.window.press_close_button()
        self.assertEqual(self.program.exit_code(), 0)
        for pid in opened:
            with self.subTest(pid=pid):
                self.assertTrue(Path(f"/proc/{pid}/exe").exists())


if __name__ == "__main__":
    main()
