# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Made-up links, the same ones in the format of the plug-in and in that of KDE's bookmarks."""

import os
import shutil
import threading
from xml.sax.saxutils import escape

from links import APPLICATION, EMAIL, INTERNET, config_path, link, save

XBEL_HEAD = """<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE xbel>
<xbel xmlns:bookmark="http://www.freedesktop.org/standards/desktop-bookmarks">
"""
XBEL_ITEM = """ <bookmark href="{url}">
  <title>{name}</title>
  <info>
   <metadata owner="http://freedesktop.org">
    <bookmark:icon name="text-html"/>
   </metadata>
  </info>
 </bookmark>
"""


def sample(number):
    """Name, type and address of a link: of ten, seven are Internet addresses, two applications, one mail."""
    kind = number % 10
    if kind < 7:
        return f"Portal {number} & more", INTERNET, f"http://www.example.org/portal/{number}/"
    if kind < 9:
        return f"Program {number}", APPLICATION, f"/usr/lib/programs/program{number}"
    return f"Mail {number}", EMAIL, "mailto:"


def write_links(folder, count):
    """Writes both files into the folder, config.xml byte by byte as the plug-in saves it."""
    save(folder, *(link(number, *sample(number), startconnect=int(number % 50 == 0)) for number in range(count)))
    with open(os.path.join(folder, "bookmarks.xbel"), "w", encoding="utf-8") as bookmarks:
        bookmarks.write(XBEL_HEAD)
        for number in range(count):
            name, _, url = sample(number)
            bookmarks.write(XBEL_ITEM.format(url=url, name=escape(name)))
        bookmarks.write("</xbel>\n")


class Folders:
    """One untouched folder a number of links, and fresh copies of it for programs that change it."""

    def __init__(self, root):
        self._root = root
        self._lock = threading.Lock()

    def of(self, count):
        """The untouched folder: for comparison only."""
        folder = os.path.join(self._root, f"links-{count}")
        with self._lock:
            if not os.path.isdir(folder):
                write_links(folder, count)
        return folder

    def fresh(self, count, name):
        """A copy for the one use called name; the copy of an earlier use of that name is gone."""
        folder = os.path.join(self._root, f"{name}-{count}")
        shutil.rmtree(folder, ignore_errors=True)
        return shutil.copytree(self.of(count), folder)

    def config_of(self, count):
        """The path of the untouched config.xml."""
        return config_path(self.of(count))
