// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QUrl;

/** The file that a link's address leads to. */
namespace LinkPath
{

/** Whether address has no scheme or the scheme "file". */
bool isPath(const QUrl& address);

/** What such an address says, decoded, with what an address without scheme takes for query or fragment. */
QString typed(const QUrl& address);

/**
 * The file that such an address leads to: decoded, as files are named ("/music/C#/1.ogg"), without ".", ".." and a
 * slash at the end. An address does not tell a blank from a "%20" that was typed, so where no "a b" exists, an "a%20b"
 * is taken. The file need not exist. Empty where the address does not begin at the root: what a path without a
 * beginning or one with
 * "~" would lead to depends on where this program was started.
 */
QString of(const QUrl& address);

} // namespace LinkPath
