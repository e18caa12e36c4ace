// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class QByteArray;

/** Which schemes the user's links have. */
namespace LinkSchemes
{

/**
 * The schemes of the addresses of all links in a file of links (docs/config-xml.md), in lower case, sorted, each once.
 * A path has none. What is no such file has no links; of a damaged one, those before the damage count.
 */
QStringList of(const QByteArray& file);

} // namespace LinkSchemes
