// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>

#include "Finding.h"

class PlacedReader;
class QuickLinkRecord;

/** Looks at the links of a file, one after the other: at what each says, and at what it has in common with another. */
class LinkItemCheck
{
public:
    /** Links that reader comes to are looked at, and findings added to found. Both must outlive this. */
    LinkItemCheck(const PlacedReader& reader, FindingsInFile& found);

    /** Looks at the link at whose start tag the reader is. Which attributes it has is not told. */
    void look();

    /** The largest id so far of a link that is shown; -1 for none. */
    qlonglong largestId() const { return m_largestId; }

    /** Whether text is a decimal number as docs/config.rng has it, which cannot say "what fits into 64 bits". */
    static bool isNumber(const QString& text);

private:
    bool has(const char* attribute) const;
    Place placeOf(const char* attribute) const;
    void checkFields(const QuickLinkRecord& link);
    void checkTwin(FindingCode code, const char* attribute, const QString& text, QHash<QString, qint64>& lines);

    const PlacedReader& m_reader;
    FindingsInFile& m_found;
    QHash<QString, qint64> m_ids; ///< and the line of the first link that has each
    QHash<QString, qint64> m_names;
    qlonglong m_largestId = -1;
};
