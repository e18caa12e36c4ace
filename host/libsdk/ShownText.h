// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** Texts that others wrote (names, paths, addresses), which may hold anything, made fit to be shown. */
namespace ShownText
{

/**
 * With a blank for each line feed, tab or other control character, and for each sign that turns the direction of what
 * follows it (Unicode's embeddings, overrides and isolates), so that a text stays in its line and as it is read.
 */
QString onOneLine(const QString& text);

/** Characters of a single word that fit on a small screen. */
const int longestLine = 120;

/** onOneLine(), and where that is longer than so many characters its beginning and "…". */
QString shortLine(const QString& text, int longest = longestLine);

/**
 * Markup for a tool tip that shows text as it stands, whatever looks like markup in it, and breaks a word that is
 * longer than a tool tip is wide.
 */
QString toolTip(const QString& text);

/**
 * A path or an address fit to stand in a text of another direction: within Unicode's signs that keep its own order,
 * from left to right (UAX 9, "isolates"), without which a text from right to left moves its slashes about. As it stands
 * where nothing is written from right to left, neither the program's texts nor it itself.
 */
QString isolatedPath(const QString& path);

/** The same for a name, which has the direction of its first letter. */
QString isolatedName(const QString& name);

/** A text without such signs, fit to be opened. */
QString withoutIsolates(QString text);

/** message, an empty line, and what it speaks of, a path or an address, isolated, as its shortLine(). */
QString withSubject(const QString& message, const QString& subject);

/** What is to be unfolded below withSubject(): the whole subject, isolated, where it was shortened, else nothing. */
QString detailsOf(const QString& subject);

} // namespace ShownText
