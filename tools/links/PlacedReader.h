// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QXmlStreamReader>

#include "Finding.h"

/** Reads XML as the plug-in's reader gets it, and knows where each tag and attribute begins. */
class PlacedReader
{
public:
    explicit PlacedReader(const QByteArray& content);

    PlacedReader(const PlacedReader&) = delete;
    PlacedReader& operator=(const PlacedReader&) = delete;

    /** Goes on by one token; false at the end and at an error. */
    bool next();

    /** What the reader is at; after an error it says which. */
    const QXmlStreamReader& reader() const { return m_reader; }

    /** Where the token begins. */
    Place place() const { return m_place; }

    /** Where the reader stopped. */
    Place end() const;

    /** Where an attribute of the start tag begins; the tag's own place where that is not known, as in UTF-16. */
    Place placeOf(const QString& attribute) const;

private:
    void placeTag(int from);
    void placeAttributes() const;

    QString m_text; ///< what is read; empty where it is not UTF-8
    QXmlStreamReader m_reader;
    Place m_place;
    mutable QHash<QString, Place> m_attributes; ///< of the start tag; filled when one is first asked for
    int m_tag = -1;                             ///< where the start tag begins in m_text
    int m_counted = 0;                          ///< so far are the lines of m_text counted
    int m_lineStart = 0;
    qint64 m_line = 1;
};
