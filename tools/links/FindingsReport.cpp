// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "FindingsReport.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#include "LinkTexts.h"

namespace
{
QString word(FindingCode code)
{
    return QLatin1String(FindingCodes::of(code).word);
}

QByteArray asText(const Findings& findings)
{
    QString text;
    for (const Finding& finding : findings)
        text += plainLine(QStringLiteral("%1:%2:%3: %4 [%5]")
                              .arg(finding.file, QString::number(finding.place.line),
                                   QString::number(finding.place.column), finding.sentence, word(finding.code))) +
                QLatin1Char('\n');
    return text.toLocal8Bit();
}

QByteArray asJson(const Findings& findings)
{
    QJsonArray array;
    for (const Finding& finding : findings)
        array.append(QJsonObject{{QStringLiteral("file"), finding.file},
                                 {QStringLiteral("line"), finding.place.line},
                                 {QStringLiteral("column"), finding.place.column},
                                 {QStringLiteral("code"), word(finding.code)},
                                 {QStringLiteral("sentence"), finding.sentence}});
    return QJsonDocument(QJsonObject{{QStringLiteral("findings"), array}}).toJson();
}

QJsonObject textObject(const QString& text)
{
    return {{QStringLiteral("text"), text}};
}

/** A file as an address, relative where it was named so. */
QString addressOf(const QString& file)
{
    const QUrl address = QDir::isAbsolutePath(file) ? QUrl::fromLocalFile(file) : QUrl();
    return QString::fromLatin1(address.isEmpty() ? QUrl::toPercentEncoding(file, "/") : address.toEncoded());
}

QJsonObject placeOf(const Finding& finding)
{
    const QJsonObject artifact{{QStringLiteral("uri"), addressOf(finding.file)}};
    const QJsonObject region{{QStringLiteral("startLine"), finding.place.line},
                             {QStringLiteral("startColumn"), finding.place.column}};
    return {{QStringLiteral("physicalLocation"),
             QJsonObject{{QStringLiteral("artifactLocation"), artifact}, {QStringLiteral("region"), region}}}};
}

/** The program, and all that it can find. */
QJsonObject tool()
{
    QJsonArray sarifRules;
    for (const FindingCodes::Row& row : FindingCodes::all())
        sarifRules.append(
            QJsonObject{{QStringLiteral("id"), QLatin1String(row.word)},
                        {QStringLiteral("shortDescription"), textObject(QString::fromLatin1(row.meaning))}});
    const QJsonObject driver{{QStringLiteral("name"), QStringLiteral("vellumconnect-links")},
                             {QStringLiteral("version"), QStringLiteral(VELLUM_VERSION)},
                             {QStringLiteral("rules"), sarifRules}};
    return {{QStringLiteral("driver"), driver}};
}

QByteArray asSarif(const Findings& findings)
{
    QJsonArray results;
    for (const Finding& finding : findings)
        results.append(QJsonObject{{QStringLiteral("ruleId"), word(finding.code)},
                                   {QStringLiteral("ruleIndex"), static_cast<int>(finding.code)},
                                   {QStringLiteral("level"), QStringLiteral("error")},
                                   {QStringLiteral("message"), textObject(finding.sentence)},
                                   {QStringLiteral("locations"), QJsonArray{placeOf(finding)}}});
    const QJsonObject run{{QStringLiteral("tool"), tool()},
                          {QStringLiteral("columnKind"), QStringLiteral("utf16CodeUnits")},
                          {QStringLiteral("results"), results}};
    return QJsonDocument(
               QJsonObject{{QStringLiteral("$schema"), QStringLiteral("https://json.schemastore.org/sarif-2.1.0.json")},
                           {QStringLiteral("version"), QStringLiteral("2.1.0")},
                           {QStringLiteral("runs"), QJsonArray{run}}})
        .toJson();
}
} // namespace

QStringList FindingsReport::formats()
{
    return {QStringLiteral("text"), QStringLiteral("json"), QStringLiteral("sarif")};
}

QByteArray FindingsReport::of(const Findings& findings, const QString& format)
{
    if (format == QLatin1String("sarif"))
        return asSarif(findings);
    return format == QLatin1String("json") ? asJson(findings) : asText(findings);
}
