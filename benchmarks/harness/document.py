# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""Putting measured sections into the document, between their marks."""

from harness.programs import Failed


def write_sections(path, sections):
    """Replaces what stands between "<!-- NAME -->" and "<!-- end of NAME -->" for each section."""
    with open(path, encoding="utf-8") as document:
        text = document.read()
    for name, content in sections.items():
        begin, end = f"<!-- {name} -->\n", f"<!-- end of {name} -->\n"
        if text.count(begin) != 1 or text.count(end) != 1:
            raise Failed(f"{path} has no place for \"{name}\"")
        text = text[:text.index(begin) + len(begin)] + content + text[text.index(end):]
    with open(path, "w", encoding="utf-8") as document:
        document.write(text)
