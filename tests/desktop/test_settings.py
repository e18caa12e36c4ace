# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Links are added, edited, moved and deleted on the settings page; file and menu follow."""

from links import APPLICATION, EMAIL, INTERNET, link
from scenario import main
from settings_dialog import TYPES
from settings_scenario import SettingsScenario

PORTAL = ("Portal", INTERNET, "https://portal.example.org/")
MAIL = ("Mail", EMAIL, "mailto:")


class Settings(SettingsScenario):

    def test_whole_story(self):
        """Every kind added, one edited, two moved, one deleted, two refused; the file compared after each step."""
        application = self.make_application("My programs", "note pad")
        self.start_with(link(0, *PORTAL), link(1, *MAIL))
        settings = self.open_settings()
        settings.wait_for_links("Portal", "Mail")

        # New application, chosen in the file dialog.
        dialog = settings.new()
        dialog.field("Name:").type("Notes")
        dialog.browse(application)
        self.assertEqual(dialog.field("Program file:").text, str(application))
        dialog.field("Parameters:").type("--new window")
        dialog.tick("Open when Vellum Connect starts")
        dialog.close()
        notes = link(2, "Notes", APPLICATION, str(application), para="--new window", startmobile=1)
        self.expect_file(3, link(0, *PORTAL), link(1, *MAIL), notes)
        self.assertEqual(settings.rows()[-1], ("Notes", TYPES[0]))

        # New e-mail.
        dialog = settings.new()
        dialog.field("Name:").type("Write")
        dialog.choose_type(TYPES[1])
        dialog.tick("Open when connected")
        dialog.close()
        write = link(3, "Write", EMAIL, "mailto:", startconnect=1)
        self.expect_file(4, link(0, *PORTAL), link(1, *MAIL), notes, write)

        # New Internet address.
        dialog = settings.new()
        dialog.choose_type(TYPES[2])
        dialog.field("Name:").type('News & "more" <daily>')
        dialog.field("Address:").type("http://news.example.org/?a=1&b=2")
        dialog.close()
        news = link(4, 'News & "more" <daily>', INTERNET, "http://news.example.org/?a=1&b=2")
        self.expect_file(5, link(0, *PORTAL), link(1, *MAIL), notes, write, news)
        self.expect_menu("Portal", "Mail", "Notes", "Write", 'News & "more" <daily>')

        # Duplicate name.
        dialog = settings.new()
        dialog.choose_type(TYPES[1])
        dialog.field("Name:").type("Portal")
        self.assertIn("Another quick link has this name", dialog.refused())
        self.assertEqual(dialog.field("Name:").text, "Portal")
        dialog.close("Cancel")

        # Missing file.
        dialog = settings.new()
        dialog.field("Name:").type("Ghost")
        dialog.field("Program file:").type(str(self.folder / "no such file"))
        self.assertIn("There is no such program file", dialog.refused())
        dialog.close("Cancel")
        self.expect_file(5, link(0, *PORTAL), link(1, *MAIL), notes, write, news)

        # Edit.
        dialog = settings.edit("Portal")
        self.assertEqual(dialog.field("Address:").text, PORTAL[2])
        dialog.field("Name:").type("Company portal")
        dialog.field("Address:").type("https://portal.example.org/home")
        dialog.close()
        # An edited link is written with the id of the link added last.
        company = link(4, "Company portal", INTERNET, "https://portal.example.org/home")
        self.expect_file(5, company, link(1, *MAIL), notes, write, news)
        self.expect_menu("Company portal", "Mail", "Notes", "Write", 'News & "more" <daily>')

        # Up and down, which leave the menu alone.
        settings.select("Notes")
        settings.press("Up")
        settings.wait_for_links("Company portal", "Notes", "Mail", "Write", 'News & "more" <daily>')
        self.assertEqual(settings.selected(), "Notes")
        settings.select("Company portal")
        self.assertEqual(settings.enabled_buttons(), ["New…", "Edit…", "Delete", "Down"])
        settings.press("Down")
        settings.wait_for_links("Notes", "Company portal", "Mail", "Write", 'News & "more" <daily>')
        self.expect_file(5, notes, company, link(1, *MAIL), write, news)
        self.expect_menu("Company portal", "Mail", "Notes", "Write", 'News & "more" <daily>')

        # Delete.
        settings.delete("Write", "OK")
        settings.wait_for_links("Notes", "Company portal", "Mail", 'News & "more" <daily>')
        self.expect_file(5, notes, company, link(1, *MAIL), news)
        self.expect_menu("Notes", "Company portal", "Mail", 'News & "more" <daily>')

        settings.close()
        self.assertEqual(self.links_in_menu(), ["Notes", "Company portal", "Mail", 'News & "more" <daily>'])
        self.window.press_close_button()
        self.program.exit_code()
        self.expect_file(5, notes, company, link(1, *MAIL), news)

    def test_first_link_of_all(self):
        self.start()
        settings = self.open_settings()
        self.assertEqual(settings.enabled_buttons(), ["New…"])
        dialog = settings.new()
        dialog.choose_type(TYPES[1])
        dialog.field("Name:").type("Mail")
        dialog.close()
        self.expect_file(1, link(0, *MAIL))
        self.expect_menu("Mail")

    def test_order_reaches_the_menu_when_the_settings_close(self):
        self.start_with(link(0, *PORTAL), link(1, *MAIL))
        settings = self.open_settings()
        settings.select("Mail")
        settings.press("Up")
        settings.wait_for_links("Mail", "Portal")
        self.expect_file(2, link(1, *MAIL), link(0, *PORTAL))
        # The plug-in tells the menu of no change of order.
        self.assertEqual(self.names_on_buttons(), ["Portal", "Mail"])
        settings.close()
        self.expect_menu("Mail", "Portal")
        self.assertEqual(self.links_in_menu(), ["Mail", "Portal"])

    def test_delete_is_asked_first(self):
        self.start_with(link(0, *PORTAL), link(1, *MAIL))
        settings = self.open_settings()
        settings.delete("Portal", "Cancel")
        self.assertEqual(settings.links(), ["Portal", "Mail"])
        self.expect_file(2, link(0, *PORTAL), link(1, *MAIL))
        settings.delete("Portal", "OK")
        settings.wait_for_links("Mail")
        settings.delete("Mail", "OK")
        settings.wait_for_links()
        self.assertEqual(settings.enabled_buttons(), ["New…"])
        self.expect_file(2)


if __name__ == "__main__":
    main()
