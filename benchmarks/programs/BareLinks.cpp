// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "BareLinks.h"

#include <QFile>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

QString bareConfigPath(const QString& folder)
{
    return folder + QLatin1String("/plugins/QuickLinkUIPlugin/config.xml");
}

static void readItems(QXmlStreamReader& reader, QVector<BareLink>& links)
{
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != QLatin1String("item"))
            continue;
        const QXmlStreamAttributes values = reader.attributes();
        if (values.size() < 10 || values.at(9).value() != QLatin1String("1"))
            continue;
        BareLink link;
        link.id = values.at(0).value().toString();
        link.name = values.at(1).value().toString();
        link.type = values.at(2).value().toString();
        link.url = values.at(3).value().toString();
        link.para = values.at(4).value().toString();
        link.startconnect = values.at(5).value().toString();
        link.startmobile = values.at(6).value().toString();
        link.mayDelete = values.at(7).value().toString();
        link.mayEdit = values.at(8).value().toString();
        link.visible = values.at(9).value().toString();
        links.append(link);
    }
}

BareLinks bareLoad(const QString& folder)
{
    BareLinks read;
    QFile file(bareConfigPath(folder));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return read;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QLatin1String("Visible"))
            read.visible = reader.readElementText();
        else if (reader.name() == QLatin1String("CurrentID"))
            read.currentId = reader.readElementText();
        else if (reader.name() == QLatin1String("menu"))
            readItems(reader, read.links);
    }
    return read;
}

static void writeType(QXmlStreamWriter& writer, const QString& id, const QString& name)
{
    writer.writeEmptyElement(QStringLiteral("item"));
    writer.writeAttribute(QStringLiteral("id"), id);
    writer.writeAttribute(QStringLiteral("name"), name);
}

static void writeHeader(QXmlStreamWriter& writer, const QString& currentId)
{
    writer.writeStartElement(QStringLiteral("function"));
    writer.writeTextElement(QStringLiteral("Visible"), QStringLiteral("1"));
    writer.writeTextElement(QStringLiteral("CurrentID"), currentId);
    writer.writeEndElement();
    writer.writeStartElement(QStringLiteral("type"));
    writeType(writer, QStringLiteral(" 0"), QStringLiteral("IDS_LINK_TYPE_APPLICATION"));
    writeType(writer, QStringLiteral(" 1"), QStringLiteral("IDS_LINK_TYPE_E_MAIL"));
    writeType(writer, QStringLiteral(" 2"), QStringLiteral("IDS_LINK_TYPE_INTERNET"));
    writer.writeEndElement();
}

void bareSave(const QString& folder, const BareLinks& links)
{
    QFile file(bareConfigPath(folder));
    file.remove();
    if (!file.open(QIODevice::ReadWrite | QIODevice::Text))
        return;
    QXmlStreamWriter writer(&file);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral("tovadoc"));
    writer.writeAttribute(QStringLiteral("type"), QStringLiteral("config"));
    writeHeader(writer, links.currentId);
    writer.writeStartElement(QStringLiteral("menu"));
    writer.writeAttribute(QStringLiteral("parent"), QStringLiteral("quicklink"));
    for (const BareLink& link : links.links) {
        writer.writeEmptyElement(QStringLiteral("item"));
        writer.writeAttribute(QStringLiteral("id"), link.id);
        writer.writeAttribute(QStringLiteral("name"), link.name);
        writer.writeAttribute(QStringLiteral("type"), link.type);
        writer.writeAttribute(QStringLiteral("url"), link.url);
        writer.writeAttribute(QStringLiteral("para"), link.para);
        writer.writeAttribute(QStringLiteral("startconnect"), link.startconnect);
        writer.writeAttribute(QStringLiteral("startmobile"), link.startmobile);
        writer.writeAttribute(QStringLiteral("delete"), link.mayDelete);
        writer.writeAttribute(QStringLiteral("edit"), link.mayEdit);
        writer.writeAttribute(QStringLiteral("visible"), link.visible);
    }
    writer.writeEndElement();
    writer.writeEndElement();
    writer.writeEndDocument();
}
