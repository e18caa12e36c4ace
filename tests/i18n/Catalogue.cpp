// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Catalogue.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <QXmlStreamReader>

namespace
{
const char prefix[] = "vellumconnect_";
const char suffix[] = ".ts";

QStringList readTranslation(QXmlStreamReader& xml, bool isPlural)
{
    if (!isPlural)
        return {xml.readElementText()};
    QStringList forms;
    while (xml.readNextStartElement())
        forms.append(xml.readElementText());
    return forms;
}

CatalogueText readMessage(QXmlStreamReader& xml, const QString& context)
{
    CatalogueText text{context, {}, {}, {}, false, false};
    text.isPlural = xml.attributes().value("numerus") == QLatin1String("yes");
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            text.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("comment")) {
            text.comment = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            // Anything said about a translation is that it is unfinished or that its text is gone.
            text.isFinished = !xml.attributes().hasAttribute("type");
            text.translations = readTranslation(xml, text.isPlural);
        } else {
            xml.skipCurrentElement();
        }
    }
    return text;
}
} // namespace

QString CatalogueText::id() const
{
    const QString name = context + ": " + source;
    return comment.isEmpty() ? name : name + " (" + comment + ')';
}

QList<CatalogueText> readCatalogue(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&file);
    QList<CatalogueText> texts;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("message"))
            texts.append(readMessage(xml, context));
    }
    return xml.hasError() ? QList<CatalogueText>() : texts;
}

QString cataloguePath(const QString& language)
{
    return QString(CATALOGUES "/") + QLatin1String(prefix) + language + QLatin1String(suffix);
}

QStringList catalogueLanguages()
{
    QStringList languages;
    const QStringList files =
        QDir(QString(CATALOGUES))
            .entryList({QLatin1String(prefix) + '*' + QLatin1String(suffix)}, QDir::Files, QDir::Name);
    for (const QString& file : files)
        languages.append(file.mid(int(qstrlen(prefix)), file.size() - int(qstrlen(prefix) + qstrlen(suffix))));
    return languages;
}

void addLanguageRows()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = catalogueLanguages();
    for (const QString& language : languages)
        QTest::newRow(qPrintable(language)) << language;
}
