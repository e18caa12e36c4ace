// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkItems.h"

#include <QXmlStreamWriter>

#include "LinkWalk.h"

namespace
{
LinkItems::Fields fieldsOf(const QXmlStreamAttributes& attributes)
{
    LinkItems::Fields fields;
    for (const QXmlStreamAttribute& attribute : attributes)
        fields.insert(attribute.qualifiedName().toString(), attribute.value().toString());
    return fields;
}

/** The start of a link whose attributes keep their order; new ones come last. */
void writeLink(QXmlStreamWriter& writer, const QXmlStreamReader& reader, LinkItems::Fields fields)
{
    writer.writeStartElement(reader.qualifiedName().toString());
    const QXmlStreamAttributes attributes = reader.attributes();
    for (const QXmlStreamAttribute& attribute : attributes) {
        const QString name = attribute.qualifiedName().toString();
        const QString value = attribute.value().toString();
        writer.writeAttribute(name, fields.contains(name) ? fields.take(name) : value);
    }
    for (auto field = fields.cbegin(); field != fields.cend(); ++field)
        writer.writeAttribute(field.key(), field.value());
}
} // namespace

/** The declaration, where there is one; the reader leaves out the end of its line. */
static void writeDeclaration(QXmlStreamWriter& writer, const QXmlStreamReader& reader)
{
    if (reader.documentVersion().isEmpty())
        return;
    writer.writeCurrentToken(reader);
    writer.writeCharacters(QStringLiteral("\n"));
}

QList<LinkItems::Fields> LinkItems::of(const QByteArray& content)
{
    QList<Fields> items;
    LinkWalk walk(content, LinkWalk::AsThePlugin);
    while (walk.next()) {
        if (walk.isAtLink())
            items.append(fieldsOf(walk.reader().attributes()));
    }
    return items;
}

bool LinkItems::isSame(Fields one, Fields other)
{
    one.remove(QStringLiteral("id"));
    other.remove(QStringLiteral("id"));
    return one == other;
}

QByteArray LinkItems::with(const QByteArray& content, int index, const Fields& fields)
{
    QByteArray changed;
    QXmlStreamWriter writer(&changed);
    int current = -1;
    LinkWalk walk(content, LinkWalk::EveryToken);
    while (walk.next()) {
        if (walk.isAtLink() && ++current == index)
            writeLink(writer, walk.reader(), fields);
        else if (walk.reader().isStartDocument())
            writeDeclaration(writer, walk.reader());
        else
            writer.writeCurrentToken(walk.reader());
    }
    writer.writeEndDocument();
    return walk.reader().hasError() || index < 0 || index > current ? QByteArray() : changed;
}
