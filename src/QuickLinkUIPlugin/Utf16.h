// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** A QString is a row of UTF-16 units: most characters are one unit, those beyond U+FFFF a pair of surrogates. */
namespace Utf16
{
/** How many units the character has that begins at place: 1, or 2 for a pair; 0 where half a pair stands alone. */
inline int unitsAt(const QString& text, int place)
{
    const QChar unit = text.at(place);
    if (unit.isHighSurrogate())
        return place + 1 < text.size() && text.at(place + 1).isLowSurrogate() ? 2 : 0;
    return unit.isLowSurrogate() ? 0 : 1;
}
} // namespace Utf16
