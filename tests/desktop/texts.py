# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What the program says in a language, from the catalogue of its sources."""

import os
from pathlib import Path
from xml.etree import ElementTree

FOLDER = Path(os.environ["VELLUM_CATALOGUES"])
PLUGIN = "QuickLinkUIPlugin"


def languages():
    return sorted(path.stem.partition("_")[2] for path in FOLDER.glob("vellumconnect_*.ts"))


class Texts:
    """Texts as a screen reader speaks them: without the ampersands before letters to press."""

    def __init__(self, language):
        self._texts = {}
        for context in ElementTree.parse(FOLDER / f"vellumconnect_{language}.ts").iter("context"):
            for message in context.iter("message"):
                source = message.findtext("source")
                # English shows what the sources say.
                self._texts[context.findtext("name"), source] = message.findtext("translation") or source

    def of(self, context, source):
        return self._texts[context, source].replace("&", "")

    def __getitem__(self, key):
        """A text of the plug-in."""
        return self.of(PLUGIN, "IDS_" + key)
