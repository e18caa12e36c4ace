// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "PlacedReader.h"

#include <algorithm>

/** The plug-in opens its file in text mode, which takes out all of these before anybody knows of the encoding. */
static QByteArray withoutCarriageReturns(QByteArray content)
{
    return content.replace('\r', QByteArray());
}

/** The index of the first character of text from place on that is no blank; the end where there is none. */
static int afterBlanks(const QString& text, int place)
{
    while (place < text.size() && text.at(place).isSpace())
        ++place;
    return place;
}

/** Whether a declared encoding is the usual one. */
static bool isUtf8(const QString& encoding)
{
    return encoding.isEmpty() || encoding.compare(QLatin1String("UTF-8"), Qt::CaseInsensitive) == 0;
}

PlacedReader::PlacedReader(const QByteArray& content)
    : m_reader(withoutCarriageReturns(content))
{
    // No text of UTF-8 has a zero; one of UTF-16 does, and its places stay those that the reader knows.
    if (!content.contains('\0'))
        m_text = QString::fromUtf8(withoutCarriageReturns(content));
}

bool PlacedReader::next()
{
    m_place = end();
    m_attributes.clear();
    const int from = std::max(0, int(m_reader.characterOffset()) - 2);
    m_reader.readNext();
    if (m_reader.isStartDocument() && !isUtf8(m_reader.documentEncoding().toString()))
        m_text.clear();
    if (m_reader.isStartElement())
        placeTag(from);
    return !m_reader.atEnd();
}

/**
 * The reader has looked at up to two signs of what comes next, and skips the blanks before the root: the tag begins at
 * the next sign for it.
 */
void PlacedReader::placeTag(int from)
{
    m_tag = int(m_text.indexOf(QLatin1Char('<'), from));
    if (m_tag < 0)
        return;
    for (; m_counted < m_tag; ++m_counted) {
        if (m_text.at(m_counted) == QLatin1Char('\n')) {
            ++m_line;
            m_lineStart = m_counted + 1;
        }
    }
    m_place = {m_line, m_tag - m_lineStart + 1};
}

Place PlacedReader::end() const
{
    return {m_reader.lineNumber(), m_reader.columnNumber() + 1};
}

Place PlacedReader::placeOf(const QString& attribute) const
{
    if (m_attributes.isEmpty() && m_tag >= 0)
        placeAttributes();
    return m_attributes.value(attribute, m_place);
}

/** The reader has found the tag well-formed, so names, equals signs and quotation marks take turns. */
void PlacedReader::placeAttributes() const
{
    const int end = std::min(int(m_reader.characterOffset()), int(m_text.size()));
    Place place = m_place;
    int counted = m_tag;
    int at = m_tag;
    while (at < end && !m_text.at(at).isSpace())
        ++at;
    for (at = afterBlanks(m_text, at); at < end; at = afterBlanks(m_text, at)) {
        for (; counted < at; ++counted) {
            const bool isLineEnd = m_text.at(counted) == QLatin1Char('\n');
            place = isLineEnd ? Place{place.line + 1, 1} : Place{place.line, place.column + 1};
        }
        const int equals = int(m_text.indexOf(QLatin1Char('='), at));
        const int quote = equals < 0 ? -1 : afterBlanks(m_text, equals + 1);
        const int close = quote < 0 || quote >= end ? -1 : int(m_text.indexOf(m_text.at(quote), quote + 1));
        if (close < 0)
            break;
        m_attributes.insert(m_text.mid(at, equals - at).trimmed(), place);
        at = close + 1;
    }
}
