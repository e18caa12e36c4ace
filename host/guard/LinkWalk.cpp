// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkWalk.h"

// The toolkit lets each reference to an entity stand for 4096 signs at most, but the references may be many: these are
// as much as the largest file.
static const int mostReferences = 4096;

LinkWalk::LinkWalk(const QByteArray& content, Manner manner)
    : m_manner(manner)
{
    m_buffer.setData(content);
    // In text mode, which takes the carriage returns out before anybody knows of the encoding.
    m_buffer.open(QIODevice::ReadOnly | QIODevice::Text);
    m_reader.setDevice(&m_buffer);
}

bool LinkWalk::next()
{
    m_reader.readNext();
    if (m_reader.isStartElement()) {
        const bool isText = !m_isInMenu && (m_reader.name() == QLatin1String("Visible") ||
                                            m_reader.name() == QLatin1String("CurrentID"));
        // An element in such a text is an error for whoever reads the text.
        if (isText && m_manner == AsThePlugin)
            m_reader.readElementText();
        m_isInMenu = m_isInMenu || m_reader.name() == QLatin1String("menu");
    }
    m_isTooLarge =
        m_reader.isDTD() && !m_reader.entityDeclarations().isEmpty() && m_buffer.data().count('&') > mostReferences;
    return !m_reader.atEnd() && !m_isTooLarge;
}

bool LinkWalk::isAtLink() const
{
    return m_isInMenu && m_reader.isStartElement() && m_reader.name() == QLatin1String("item") &&
           m_reader.attributes().value(QLatin1String("visible")) == QLatin1String("1");
}

LinkItems::Fields LinkWalk::link() const
{
    LinkItems::Fields fields;
    const QXmlStreamAttributes attributes = m_reader.attributes();
    for (const QXmlStreamAttribute& attribute : attributes)
        fields.insert(attribute.qualifiedName().toString(), attribute.value().toString());
    return fields;
}
