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
    const int from = std::max(0, int(m_reader.characterOffset()) - 2);
    m_reader.readNext();
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
    if (m_tag < 0)
        return m_place;
    const QString tag = m_text.mid(m_tag, int(m_reader.characterOffset()) - m_tag);
    int place = 0;
    while (place < tag.size() && !tag.at(place).isSpace())
        ++place;
    for (place = afterBlanks(tag, place); place < tag.size(); place = afterBlanks(tag, place)) {
        const int equals = int(tag.indexOf(QLatin1Char('='), place));
        const int quote = equals < 0 ? -1 : afterBlanks(tag, equals + 1);
        const int close = quote < 0 || quote >= tag.size() ? -1 : int(tag.indexOf(tag.at(quote), quote + 1));
        if (close < 0)
            break;
        if (tag.mid(place, equals - place).trimmed() == attribute) {
            const QString before = tag.left(place);
            const int lineStart = int(before.lastIndexOf(QLatin1Char('\n')));
            return {m_place.line + before.count(QLatin1Char('\n')),
                    lineStart < 0 ? m_place.column + place : place - lineStart};
        }
        place = close + 1;
    }
    return m_place;
}
