// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkExchange.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QUrl>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include "DialogLengthLimits.h"
#include "InternetAddress.h"
#include "LinkAttributes.h"
#include "LinkPath.h"
#include "StoreText.h"

namespace
{
QByteArray asJson(const QuickLinkRecordList& links)
{
    QJsonArray array;
    for (const QuickLinkRecord& link : links) {
        QJsonObject object;
        for (const LinkAttributes::Attribute& attribute : LinkAttributes::all)
            object.insert(QLatin1String(attribute.name), link.*attribute.field);
        array.append(object);
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("links"), array}}).toJson();
}

QByteArray asHtml(const QuickLinkRecordList& links)
{
    QString html = QStringLiteral("<!DOCTYPE NETSCAPE-Bookmark-file-1>\n"
                                  "<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=UTF-8\">\n"
                                  "<TITLE>Bookmarks</TITLE>\n<H1>Bookmarks</H1>\n<DL><p>\n");
    for (const QuickLinkRecord& link : links)
        html += QStringLiteral("    <DT><A HREF=\"%1\">%2</A>\n")
                    .arg(LinkExchange::addressOf(link).toHtmlEscaped(), link.name.toHtmlEscaped());
    return (html + QStringLiteral("</DL><p>\n")).toUtf8();
}

QByteArray asXbel(const QuickLinkRecordList& links)
{
    QByteArray xbel;
    QXmlStreamWriter writer(&xbel);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeDTD(QStringLiteral("<!DOCTYPE xbel PUBLIC \"+//IDN python.org//DTD XML Bookmark Exchange Language 1.0"
                                   "//EN//XML\" \"http://www.python.org/topics/xml/dtds/xbel-1.0.dtd\">"));
    writer.writeStartElement(QStringLiteral("xbel"));
    writer.writeAttribute(QStringLiteral("version"), QStringLiteral("1.0"));
    for (const QuickLinkRecord& link : links) {
        writer.writeStartElement(QStringLiteral("bookmark"));
        writer.writeAttribute(QStringLiteral("href"), LinkExchange::addressOf(link));
        writer.writeTextElement(QStringLiteral("title"), link.name);
        writer.writeEndElement();
    }
    writer.writeEndDocument();
    return xbel;
}

/** The link that a bookmark is: its scheme says of which type. */
QuickLinkRecord ofBookmark(const QString& address, const QString& title)
{
    QuickLinkRecord link;
    const QUrl url(address);
    // A half of a character that the cut leaves goes as well.
    link.name = StoreText::writable((title.isEmpty() ? address : title).left(DialogLengthLimits::longestName));
    link.url = address;
    if (url.isLocalFile()) {
        link.type = LinkType::application();
        link.url = LinkPath::of(url);
    } else {
        link.type = url.scheme() == QLatin1String("mailto") ? LinkType::email() : LinkType::internet();
    }
    return link;
}

bool fromJson(const QByteArray& content, QuickLinkRecordList& links)
{
    const QJsonDocument document = QJsonDocument::fromJson(content);
    if (!document.object().value(QStringLiteral("links")).isArray())
        return false;
    const QJsonArray array = document.object().value(QStringLiteral("links")).toArray();
    for (const QJsonValue& value : array) {
        QuickLinkRecord link;
        for (const LinkAttributes::Attribute& attribute : LinkAttributes::all)
            link.*attribute.field =
                value.toObject().value(QLatin1String(attribute.name)).toString(link.*attribute.field);
        links.append(link);
    }
    return true;
}

bool fromXbel(const QByteArray& content, QuickLinkRecordList& links)
{
    QXmlStreamReader reader(content);
    while (!reader.isStartElement() && !reader.atEnd()) {
        reader.readNext();
        // A few kilobytes of them could stand for gigabytes, and no bookmark needs any.
        if (!reader.entityDeclarations().isEmpty())
            return false;
    }
    if (reader.name() != QLatin1String("xbel"))
        return false;
    QuickLinkRecordList read;
    QString address;
    QString title;
    while (!reader.atEnd()) {
        reader.readNext();
        const bool isBookmark = reader.name() == QLatin1String("bookmark");
        if (reader.isStartElement() && isBookmark) {
            address = reader.attributes().value(QLatin1String("href")).toString();
            title.clear(); // That of a folder may have gone before.
        } else if (reader.isStartElement() && reader.name() == QLatin1String("title")) {
            title = reader.readElementText(QXmlStreamReader::IncludeChildElements).simplified();
        } else if (reader.isEndElement() && isBookmark) {
            read.append(ofBookmark(address, title));
        }
    }
    links += read;
    return !reader.hasError();
}

/** Text of HTML with the references resolved that browsers write. */
QString withoutReferences(const QString& html)
{
    static const QRegularExpression reference(QStringLiteral("&(?:#(\\d{1,7})|#[xX]([0-9a-fA-F]{1,6})|(\\w+));"));
    static const struct {
        const char* name;
        char sign;
    } named[] = {{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}, {"nbsp", ' '}};
    QString text;
    int end = 0;
    QRegularExpressionMatchIterator matches = reference.globalMatch(html);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        text += html.mid(end, int(match.capturedStart()) - end);
        end = int(match.capturedEnd());
        const uint decimal = match.captured(1).toUInt();
        const uint number = decimal != 0 ? decimal : match.captured(2).toUInt(nullptr, 16);
        QString sign = match.captured();
        for (const auto& row : named) {
            if (match.captured(3) == QLatin1String(row.name))
                sign = QLatin1Char(row.sign);
        }
        if (number != 0 && number <= QChar::LastValidCodePoint) {
            const QChar units[] = {QChar(QChar::highSurrogate(number)), QChar(QChar::lowSurrogate(number))};
            sign = number > 0xffff ? QString(units, 2) : QString(QChar(ushort(number)));
        }
        text += sign;
    }
    return text + html.mid(end);
}

/** By the tags of the links alone: what is round them is no proper HTML, and differs from browser to browser. */
bool fromHtml(const QByteArray& content, QuickLinkRecordList& links)
{
    static const QRegularExpression startTag(QStringLiteral("<a((?:\\s+[\\w-]+\\s*=\\s*\"[^\"]*\")*+)\\s*>"),
                                             QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression address(QStringLiteral("\\shref\\s*=\\s*\"([^\"]*)\""),
                                            QRegularExpression::CaseInsensitiveOption);
    if (!content.contains("<!DOCTYPE NETSCAPE-Bookmark-file-1>"))
        return false;
    const QString html = QString::fromUtf8(content);
    QRegularExpressionMatchIterator matches = startTag.globalMatch(html);
    int end = 0; // of the link before
    // A pattern for the whole of a link would look for an end that is missing once from each beginning.
    while (matches.hasNext() && end >= 0) {
        const QRegularExpressionMatch match = matches.next();
        const int begin = int(match.capturedEnd());
        if (begin <= end)
            continue;
        end = int(html.indexOf(QLatin1String("</a>"), begin, Qt::CaseInsensitive));
        if (end >= 0)
            links.append(ofBookmark(withoutReferences(address.match(match.captured(1)).captured(1)),
                                    withoutReferences(html.mid(begin, end - begin)).simplified()));
    }
    return true;
}
} // namespace

QStringList LinkExchange::formats()
{
    return {QStringLiteral("json"), QStringLiteral("html"), QStringLiteral("xbel")};
}

QByteArray LinkExchange::to(const QuickLinkRecordList& links, const QString& format)
{
    if (format == QLatin1String("html"))
        return asHtml(links);
    return format == QLatin1String("xbel") ? asXbel(links) : asJson(links);
}

bool LinkExchange::from(const QByteArray& content, QuickLinkRecordList& links)
{
    return fromJson(content, links) || fromHtml(content, links) || fromXbel(content, links);
}

QString LinkExchange::addressOf(const QuickLinkRecord& link)
{
    const QUrl url(link.url);
    QUrl address = url;
    if (link.type == LinkType::internet())
        address = InternetAddress::completed(url.toString());
    else if (LinkPath::isPath(url) && !LinkPath::of(url).isEmpty())
        address = QUrl::fromLocalFile(LinkPath::of(url));
    return address.isEmpty() ? link.url : QString::fromLatin1(address.toEncoded());
}
