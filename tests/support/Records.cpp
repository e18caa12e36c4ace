// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Records.h"

#include <cstring>

namespace
{
struct Field {
    const char* name;
    QString QuickLinkRecord::*value;
};

// In the order of the file's attributes.
const Field fields[] = {{"id", &QuickLinkRecord::id},
                        {"name", &QuickLinkRecord::name},
                        {"type", &QuickLinkRecord::type},
                        {"url", &QuickLinkRecord::url},
                        {"para", &QuickLinkRecord::para},
                        {"startconnect", &QuickLinkRecord::startconnect},
                        {"startmobile", &QuickLinkRecord::startmobile},
                        {"delete", &QuickLinkRecord::delete_},
                        {"edit", &QuickLinkRecord::edit},
                        {"visible", &QuickLinkRecord::visible}};

QByteArray escaped(const QString& text)
{
    QByteArray bytes = text.toUtf8();
    bytes.replace('&', "&amp;");
    bytes.replace('<', "&lt;");
    bytes.replace('>', "&gt;");
    bytes.replace('"', "&quot;");
    bytes.replace('\t', "&#9;");
    bytes.replace('\n', "&#10;");
    bytes.replace('\r', "&#13;");
    return bytes;
}

QByteArray attribute(const char* name, const QString& value)
{
    return QByteArray(" ") + name + "=\"" + escaped(value) + '"';
}
} // namespace

QuickLinkRecord makeRecord(const char* name, const char* type, const char* url)
{
    QuickLinkRecord record;
    record.name = QString::fromUtf8(name);
    record.url = QString::fromUtf8(url);
    if (std::strcmp(type, "application") == 0)
        record.type = "IDS_LINK_TYPE_APPLICATION";
    else if (std::strcmp(type, "email") == 0)
        record.type = "IDS_LINK_TYPE_E-MAIL";
    else if (std::strcmp(type, "internet") == 0)
        record.type = "IDS_LINK_TYPE_INTERNET";
    else
        record.type = QString::fromUtf8(type);
    return record;
}

QString difference(const QuickLinkRecord& actual, const QuickLinkRecord& expected)
{
    QString text;
    for (const Field& field : fields) {
        if (actual.*field.value != expected.*field.value)
            text += QString("%1 is \"%2\", not \"%3\"; ")
                        .arg(QLatin1String(field.name), actual.*field.value, expected.*field.value);
    }
    return text;
}

QString listDifference(const QuickLinkRecordList& actual, const QuickLinkRecordList& expected)
{
    if (actual.size() != expected.size())
        return QString("%1 records, not %2").arg(actual.size()).arg(expected.size());
    for (int i = 0; i < actual.size(); ++i) {
        const QString unlike = difference(actual.at(i), expected.at(i));
        if (!unlike.isEmpty())
            return QString("record %1: ").arg(i) + unlike;
    }
    return QString();
}

QByteArray configDocument(const QString& visible, const QString& currentId, const QList<QuickLinkRecord>& records)
{
    QByteArray document = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                          "<tovadoc type=\"config\">\n"
                          "    <function>\n"
                          "        <Visible>" +
                          escaped(visible) +
                          "</Visible>\n"
                          "        <CurrentID>" +
                          escaped(currentId) +
                          "</CurrentID>\n"
                          "    </function>\n"
                          "    <type>\n"
                          "        <item id=\" 0\" name=\"IDS_LINK_TYPE_APPLICATION\"/>\n"
                          "        <item id=\" 1\" name=\"IDS_LINK_TYPE_E_MAIL\"/>\n"
                          "        <item id=\" 2\" name=\"IDS_LINK_TYPE_INTERNET\"/>\n"
                          "    </type>\n";
    if (records.isEmpty()) {
        document += "    <menu parent=\"quicklink\"/>\n";
    } else {
        document += "    <menu parent=\"quicklink\">\n";
        for (const QuickLinkRecord& record : records) {
            document += "        <item";
            for (const Field& field : fields)
                document += attribute(field.name, record.*field.value);
            document += "/>\n";
        }
        document += "    </menu>\n";
    }
    return document + "</tovadoc>\n";
}
