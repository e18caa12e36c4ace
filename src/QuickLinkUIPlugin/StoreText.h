// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/**
 * What text config.xml can hold: the characters of XML 1.0 (https://www.w3.org/TR/xml/#charsets). Left out are halves
 * of surrogate pairs, control characters but tab, line feed and carriage return, and U+FFFE and U+FFFF.
 *
 * The writers of Qt 5 and 6 stop writing text at half a pair, so that every link from there on would be lost, and leave
 * the others out by themselves. That of Qt 4.8 drops what follows a half, writes "?" for U+FFFE, and writes control
 * characters as they are, at which other readers stop.
 */
namespace StoreText
{
/** Whether the file can hold every character of text. */
bool isWritable(const QString& text);

/** The text less the characters that the file cannot hold. */
QString writable(const QString& text);
} // namespace StoreText
