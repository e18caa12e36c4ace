// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/**
 * A text of others as one line of a terminal: signs that would move the cursor, change colours or turn the direction
 * around are a question mark.
 */
inline QString plainLine(QString text)
{
    for (QChar& sign : text) {
        if (sign.category() == QChar::Other_Control || sign.category() == QChar::Other_Format ||
            sign.category() == QChar::Separator_Line || sign.category() == QChar::Separator_Paragraph)
            sign = QLatin1Char('?');
    }
    return text;
}

/** The text between the quotation marks of a sentence. */
inline QString quoted(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}
