# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Documents of config.xml, written out by hand so that they can be compared byte by byte."""

from xml.etree import ElementTree
from xml.sax.saxutils import escape

APPLICATION = "IDS_LINK_TYPE_APPLICATION"
EMAIL = "IDS_LINK_TYPE_E-MAIL"
INTERNET = "IDS_LINK_TYPE_INTERNET"


def link(number, name, kind, url, para="", startconnect=0, startmobile=0, visible=1):
    """One line of the menu block."""
    name, url, para = (escape(text, {'"': "&quot;"}) for text in (name, url, para))
    return (f'        <item id="{number}" name="{name}" type="{kind}" url="{url}" para="{para}"'
            f' startconnect="{startconnect}" startmobile="{startmobile}" delete="1" edit="1" visible="{visible}"/>\n')


def document(current_id, *links):
    """The whole file as bytes."""
    menu = f'    <menu parent="quicklink">\n{"".join(links)}    </menu>\n' if links else \
        '    <menu parent="quicklink"/>\n'
    return f'''<?xml version="1.0" encoding="UTF-8"?>
<tovadoc type="config">
    <function>
        <Visible>1</Visible>
        <CurrentID>{current_id}</CurrentID>
    </function>
    <type>
        <item id=" 0" name="IDS_LINK_TYPE_APPLICATION"/>
        <item id=" 1" name="IDS_LINK_TYPE_E_MAIL"/>
        <item id=" 2" name="IDS_LINK_TYPE_INTERNET"/>
    </type>
{menu}</tovadoc>
'''.encode()


def visible_names(path):
    """The names of a file's visible links, in file order."""
    return [item.get("name") for item in ElementTree.parse(path).iterfind("menu/item") if item.get("visible") == "1"]
