# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What a start leaves alone, because it takes long and nobody needs it."""

import re
from pathlib import Path

from links import EMAIL, link
from scenario import Scenario, main

# Some builds of the toolkit are linked to libGL itself; the drivers come with the first window that may draw by them.
OPENGL = re.compile(r"/(libGLX_\w+|libEGL_\w+|libLLVM|\w+_dri\.so)[^/\n]*$", re.MULTILINE)


class Start(Scenario):

    def drivers(self):
        maps = Path(f"/proc/{self.program.pid}/maps").read_text(encoding="utf-8")
        self.assertIn("libQt", maps)
        return sorted({found.group() for found in OPENGL.finditer(maps)})

    def test_no_driver_of_opengl_is_loaded(self):
        self.start_with(link(1, "Mail", EMAIL, "mailto:a@example.org"))
        self.assertEqual(self.drivers(), [])
        menu = self.open_menu("Edit")
        self.assertIn("Undo", menu.names("menu item"))
        self.close_menu(menu)
        self.assertEqual(self.drivers(), [])


if __name__ == "__main__":
    main()
