# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Documents of config.xml, written out by hand so that they can be compared byte by byte."""

from pathlib import Path
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


def config_path(data):
    """Where the file lies below a user's data folder."""
    return Path(data) / "plugins/QuickLinkUIPlugin/config.xml"


def save(data, *links):
    """Writes the file with these links into a data folder, which is made when it is not there."""
    path = config_path(data)
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(document(len(links), *links))


def visible_links(data):
    """The attributes of the visible links in a data folder, in file order."""
    items = ElementTree.parse(config_path(data)).iterfind("menu/item")
    return [item.attrib for item in items if item.get("visible") == "1"]
