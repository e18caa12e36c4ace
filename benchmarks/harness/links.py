# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Made-up links, the same ones in the format of the plug-in and in that of KDE's bookmarks."""

import os
import shutil
import threading
from xml.sax.saxutils import quoteattr

HEAD = """<?xml version="1.0" encoding="UTF-8"?>
<tovadoc type="config">
    <function>
        <Visible>1</Visible>
        <CurrentID>{count}</CurrentID>
    </function>
    <type>
        <item id=" 0" name="IDS_LINK_TYPE_APPLICATION"/>
        <item id=" 1" name="IDS_LINK_TYPE_E_MAIL"/>
        <item id=" 2" name="IDS_LINK_TYPE_INTERNET"/>
    </type>
    <menu parent="quicklink">
"""
ITEM = ('        <item id="{id}" name={name} type="{type}" url={url} para="" startconnect="{connect}" startmobile="0"'
        ' delete="1" edit="1" visible="1"/>\n')
TAIL = "    </menu>\n</tovadoc>\n"

XBEL_HEAD = """<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE xbel>
<xbel xmlns:bookmark="http://www.freedesktop.org/standards/desktop-bookmarks">
"""
XBEL_ITEM = """ <bookmark href={url}>
  <title>{name}</title>
  <info>
   <metadata owner="http://freedesktop.org">
    <bookmark:icon name="text-html"/>
   </metadata>
  </info>
 </bookmark>
"""


def link(number):
    """Name, type and address of a link: of ten, seven are Internet addresses, two applications, one mail."""
    kind = number % 10
    if kind < 7:
        return f"Portal {number} & more", "IDS_LINK_TYPE_INTERNET", f"http://www.example.org/portal/{number}/"
    if kind < 9:
        return f"Program {number}", "IDS_LINK_TYPE_APPLICATION", f"/usr/lib/programs/program{number}"
    return f"Mail {number}", "IDS_LINK_TYPE_E-MAIL", "mailto:"


def config_path(folder):
    return os.path.join(folder, "plugins", "QuickLinkUIPlugin", "config.xml")


def write_links(folder, count):
    """Writes both files into the folder, config.xml byte by byte as the plug-in saves it."""
    os.makedirs(os.path.dirname(config_path(folder)))
    with open(config_path(folder), "w", encoding="utf-8") as config:
        config.write(HEAD.format(count=count))
        for number in range(count):
            name, kind, url = link(number)
            config.write(ITEM.format(id=number, name=quoteattr(name), type=kind, url=quoteattr(url),
                                     connect=int(number % 50 == 0)))
        config.write(TAIL)
    with open(os.path.join(folder, "bookmarks.xbel"), "w", encoding="utf-8") as bookmarks:
        bookmarks.write(XBEL_HEAD)
        for number in range(count):
            name, _, url = link(number)
            bookmarks.write(XBEL_ITEM.format(url=quoteattr(url), name=name.replace("&", "&amp;")))
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
