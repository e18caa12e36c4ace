// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "SeedRecord.h"

#include <QXmlStreamWriter>

#include "DurableFile.h"
#include "LayersLog.h"
#include "LinkFile.h"
#include "LinkWalk.h"

static const QString layerName = QStringLiteral("layer");
static const QString usersName = QStringLiteral("users");

static GivenLink linkOf(const QXmlStreamAttributes& attributes)
{
    GivenLink link;
    link.layer = attributes.value(layerName).toString();
    link.isUsers = attributes.value(usersName) == QLatin1String("1");
    const QStringList names = LayerLink::names();
    for (const QString& name : names) {
        if (attributes.hasAttribute(name))
            link.fields.insert(name, attributes.value(name).toString());
    }
    return link;
}

QList<GivenLink> SeedRecord::read(const QString& file)
{
    QList<GivenLink> given;
    const LinkFile found = LinkFile::read(file);
    if (found.condition == LinkFile::Missing)
        return given;
    LinkWalk walk(found.content, LinkWalk::EveryToken);
    while (walk.next()) {
        if (walk.reader().isStartElement() && walk.reader().name() == QLatin1String("link"))
            given.append(linkOf(walk.reader().attributes()));
    }
    if (found.isGood() && !walk.reader().hasError() && !walk.isTooLarge())
        return given;
    qCWarning(layersLog, "%s is no good; the operator's links count as new", qUtf8Printable(file));
    return {};
}

bool SeedRecord::write(const QString& file, const QList<GivenLink>& given)
{
    QByteArray content;
    QXmlStreamWriter writer(&content);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral("seeded"));
    for (const GivenLink& link : given) {
        writer.writeEmptyElement(QStringLiteral("link"));
        writer.writeAttribute(layerName, link.layer);
        const QStringList names = LayerLink::names();
        for (const QString& name : names) {
            if (link.fields.contains(name))
                writer.writeAttribute(name, link.fields.value(name));
        }
        if (link.isUsers)
            writer.writeAttribute(usersName, QStringLiteral("1"));
    }
    writer.writeEndDocument();
    return DurableFile::write(file, content);
}
