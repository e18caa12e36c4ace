# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What is installed, for developers and for software centres."""

import os
import re
import subprocess
import unittest
from pathlib import Path
from xml.etree import ElementTree

PREFIX = Path(os.environ["VELLUM_PREFIX"])
SOURCES = Path(os.environ["VELLUM_SOURCES"])


class Installed(unittest.TestCase):

    def test_every_header_of_the_contract(self):
        names = sorted(path.name for path in (SOURCES / "include").iterdir())
        self.assertGreater(len(names), 10)
        self.assertEqual(sorted(path.name for path in (PREFIX / "include/vellumconnect").glob("*.h")), names)

    def test_installation_may_be_moved(self):
        """No text names a folder of the build, nor the one of this installation."""
        texts = [path for path in PREFIX.rglob("*") if path.suffix in (".h", ".cmake")]
        self.assertGreater(len(texts), 15)
        for path in texts:
            text = path.read_text(encoding="utf-8")
            for folder in (SOURCES, Path(os.environ["VELLUM_BUILD"]), PREFIX):
                self.assertNotIn(str(folder) + "/", text, path)

    @unittest.skipIf(os.environ["VELLUM_QT"] == "4", "there is no program for Qt 4")
    def test_tool_finds_the_schema(self):
        answer = subprocess.run([PREFIX / "bin/vellumconnect-links", "check", SOURCES / "samples/config.xml"],
                                capture_output=True, text=True, timeout=60, check=False)
        self.assertEqual(answer.stderr, "")
        self.assertNotIn("schema", answer.stdout)

    @unittest.skipIf(os.environ["VELLUM_QT"] == "4", "there is no program for Qt 4")
    def test_summary_in_every_language(self):
        entry = (PREFIX / "share/applications/com.norvik.vellumconnect.desktop").read_text(encoding="utf-8")
        comments = dict(re.findall(r"^Comment(?:\[(\w+)\])?=(.*)$", entry, re.MULTILINE))
        self.assertGreater(len(comments), 12)
        component = ElementTree.parse(PREFIX / "share/metainfo/com.norvik.vellumconnect.metainfo.xml").getroot()
        language = "{http://www.w3.org/XML/1998/namespace}lang"
        self.assertEqual({summary.get(language, ""): summary.text for summary in component.iterfind("summary")}, comments)


if __name__ == "__main__":
    unittest.main(verbosity=2)
