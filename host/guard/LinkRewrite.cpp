// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkRewrite.h"

#include <QXmlStreamWriter>

#include <algorithm>
#include <utility>

#include "LinkWalk.h"

namespace
{
// Laid out as the plug-in lays out what it writes.
const QString beforeLink = QStringLiteral("\n        ");
const QString beforeBlock = QStringLiteral("\n    ");
const char* const attributesOfLink[] = {"name", "type", "url", "para", "startconnect", "startmobile", "delete", "edit"};

/** Copies a file token by token, and does on the way what is to be done. */
class Copy
{
public:
    Copy(const QByteArray& content, const LinkRewrite& rewrite)
        : m_rewrite(rewrite)
        , m_walk(content, LinkWalk::EveryToken)
        , m_reader(m_walk.reader())
        , m_writer(&m_result)
    {
    }

    QByteArray made()
    {
        while (m_walk.next())
            copyToken();
        m_writer.writeEndDocument();
        const bool isWhole = !m_reader.hasError() && !m_walk.isTooLarge() && hasAllLinks();
        return isWhole ? m_result : QByteArray();
    }

private:
    bool hasAllLinks() const
    {
        const auto isThere = [this](int index) {
            return index >= 0 && index <= m_index;
        };
        const QList<int> changed = m_rewrite.changed.keys();
        return std::all_of(changed.begin(), changed.end(), isThere) &&
               std::all_of(m_rewrite.removed.begin(), m_rewrite.removed.end(), isThere);
    }

    void copyToken()
    {
        if (m_walk.isAtLink())
            ++m_index;
        if (m_removedDepth > 0)
            m_removedDepth += m_reader.isStartElement() ? 1 : m_reader.isEndElement() ? -1 : 0;
        else if (m_isInCounter && m_reader.isCharacters())
            m_counter += m_reader.text();
        else if (m_reader.isWhitespace() && !m_reader.isCDATA())
            m_blanks += m_reader.text();
        else if (m_walk.isAtLink() && m_rewrite.removed.contains(m_index))
            beginRemoval();
        else
            copyRest();
    }

    void copyRest()
    {
        if (m_reader.isStartDocument())
            writeDeclaration();
        else if (m_reader.isStartElement())
            copyStart();
        else if (m_reader.isEndElement())
            copyEnd();
        else
            copyThis();
    }

    /** The blanks before a link go with it. */
    void beginRemoval()
    {
        m_blanks.clear();
        m_removedDepth = 1;
    }

    /** The declaration, where there is one; the reader leaves out the end of its line. */
    void writeDeclaration()
    {
        if (m_reader.documentVersion().isEmpty())
            return;
        m_writer.writeCurrentToken(m_reader);
        m_writer.writeCharacters(QStringLiteral("\n"));
    }

    void copyStart()
    {
        ++m_depth;
        const bool isBeforeMenu = m_menuDepth == 0;
        if (isBeforeMenu && m_reader.name() == QLatin1String("menu")) {
            m_menuDepth = m_depth;
            // Beside the root there is no place for one.
            if (m_depth > 1)
                addCounter(m_blanks);
        }
        if (m_walk.isAtLink() && m_rewrite.changed.contains(m_index))
            copyLink(m_rewrite.changed.value(m_index));
        else
            copyThis();
        m_isInCounter = isBeforeMenu && isAdding() && m_reader.name() == QLatin1String("CurrentID");
    }

    void copyEnd()
    {
        if (m_isInCounter)
            advanceCounter();
        else if (m_depth == m_menuDepth && !std::exchange(m_isMenuDone, true))
            addLinks();
        else if (m_depth == 1 && m_menuDepth == 0)
            addMenu();
        copyThis();
        --m_depth;
    }

    void copyThis()
    {
        writeBlanks();
        m_writer.writeCurrentToken(m_reader);
    }

    void writeBlanks()
    {
        if (!m_blanks.isEmpty())
            m_writer.writeCharacters(std::exchange(m_blanks, QString()));
    }

    /** The start of a link whose attributes keep their order; new ones come last. */
    void copyLink(LinkItems::Fields fields)
    {
        writeBlanks();
        m_writer.writeStartElement(m_reader.qualifiedName().toString());
        const QXmlStreamAttributes attributes = m_reader.attributes();
        for (const QXmlStreamAttribute& attribute : attributes) {
            const QString name = attribute.qualifiedName().toString();
            const QString value = attribute.value().toString();
            m_writer.writeAttribute(name, fields.contains(name) ? fields.take(name) : value);
        }
        for (auto field = fields.cbegin(); field != fields.cend(); ++field)
            m_writer.writeAttribute(field.key(), field.value());
    }

    bool isAdding() const { return !m_rewrite.added.isEmpty(); }

    /** Each new link takes a number of the counter, as the plug-in's reader takes it: no number counts as 0. */
    void advanceCounter()
    {
        m_isInCounter = false;
        m_hasCounter = true;
        m_firstId = std::exchange(m_counter, QString()).toLongLong();
        m_writer.writeCharacters(QString::number(m_firstId + m_rewrite.added.size()));
    }

    void addCounter(const QString& blanks)
    {
        if (!isAdding() || m_hasCounter)
            return;
        m_writer.writeCharacters(blanks);
        m_writer.writeTextElement(QStringLiteral("CurrentID"), QString::number(m_rewrite.added.size()));
    }

    void addLinks()
    {
        qint64 id = m_firstId;
        for (const LinkItems::Fields& link : m_rewrite.added) {
            m_writer.writeCharacters(beforeLink);
            m_writer.writeEmptyElement(QStringLiteral("item"));
            m_writer.writeAttribute(QStringLiteral("id"), QString::number(id++));
            for (const char* const name : attributesOfLink)
                m_writer.writeAttribute(QLatin1String(name), link.value(QLatin1String(name)));
            m_writer.writeAttribute(QStringLiteral("visible"), QStringLiteral("1"));
        }
        if (isAdding() && m_blanks.isEmpty())
            m_blanks = beforeBlock;
    }

    /** Where the file ends without any. */
    void addMenu()
    {
        if (!isAdding())
            return;
        addCounter(beforeBlock);
        m_writer.writeCharacters(beforeBlock);
        m_writer.writeStartElement(QStringLiteral("menu"));
        m_writer.writeAttribute(QStringLiteral("parent"), QStringLiteral("quicklink"));
        addLinks();
        writeBlanks();
        m_writer.writeEndElement();
        m_blanks = QStringLiteral("\n");
    }

    const LinkRewrite& m_rewrite;
    LinkWalk m_walk;
    const QXmlStreamReader& m_reader; ///< the walk's
    QByteArray m_result;
    QXmlStreamWriter m_writer;
    QString m_blanks;  ///< not written yet
    QString m_counter; ///< the text of the element "CurrentID" so far
    qint64 m_firstId = 0;
    int m_index = -1; ///< of the last link
    int m_depth = 0;
    int m_menuDepth = 0;    ///< of the first "menu"; 0 before it
    int m_removedDepth = 0; ///< elements that are open in a link that goes, itself included
    bool m_isInCounter = false;
    bool m_hasCounter = false;
    bool m_isMenuDone = false;
};
} // namespace

QByteArray LinkRewrite::applied(const QByteArray& content) const
{
    return Copy(content, *this).made();
}
