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

/**
 * The absolute path behind such an address: decoded, as files are named, and with what an address without scheme takes
 * for query or fragment ("/music/C#/1.ogg"). An address does not tell a blank from a "%20" that was typed, so where no
 * "a b" exists, an "a%20b" is taken. The file need not exist.
 */
QString of(const QUrl& address);

} // namespace LinkPath
