// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Writing config.xml.

#include <QFile>
#include <QXmlStreamWriter>

#include "LinkAttributes.h"
#include "QuickLinkXmlParse.h"
#include "StoreText.h"
#include "Trace.h"

namespace
{
/** text plus difference as decimal text. What is no number, the empty text included, counts as 0. */
QString shifted(const QString& text, int difference)
{
    // Unsigned, so that a counter at the end of its range wraps.
    const quint64 number = static_cast<quint64>(text.toLongLong());
    return QString::number(static_cast<qint64>(number + static_cast<quint64>(difference)));
}

void writeAttribute(QXmlStreamWriter& writer, const char* name, const QString& value)
{
    writer.writeAttribute(QLatin1String(name), value);
}

/** One entry of the fixed list of types, which nobody reads: the blank and the underscore are part of the format. */
void writeType(QXmlStreamWriter& writer, const char* id, const char* name)
{
    writer.writeEmptyElement(QLatin1String("item"));
    writeAttribute(writer, "id", QLatin1String(id));
    writeAttribute(writer, "name", QLatin1String(name));
}

/** Writes links as items. The names are made once, not once an item. */
class ItemWriter
{
public:
    explicit ItemWriter(QXmlStreamWriter& writer)
        : m_writer(writer)
        , m_item(QLatin1String("item"))
    {
        for (int i = 0; i < LinkAttributes::count; ++i)
            m_names[i] = QLatin1String(LinkAttributes::all[i].name);
    }

    /** id stands for the record's own, the first attribute. */
    void write(const QuickLinkRecord& record, const QString& id)
    {
        m_writer.writeEmptyElement(m_item);
        writeText(0, id);
        for (int i = 1; i < LinkAttributes::count; ++i)
            writeText(i, record.*LinkAttributes::all[i].field);
    }

private:
    void writeText(int attribute, const QString& text)
    {
        if (StoreText::isWritable(text))
            m_writer.writeAttribute(m_names[attribute], text);
        else
            m_writer.writeAttribute(m_names[attribute], StoreText::writable(text));
    }

    QXmlStreamWriter& m_writer;
    const QString m_item;
    QString m_names[LinkAttributes::count];
};

void traceWriteError(const QFile& file)
{
    TRACE("Error write file: %s", file.errorString().toUtf8().constData());
}

/** Closes the file, with a trace when something of what was written to it has not arrived. */
void closeWritten(QFile& file, const QXmlStreamWriter& writer)
{
    // The last text is written by flush(); close() would do it as well, but with Qt 4.8 without a word when it fails.
    const bool isFlushed = file.flush() && !writer.hasError();
    if (!isFlushed)
        traceWriteError(file);
    file.close();
    if (isFlushed && file.error() != QFile::NoError)
        traceWriteError(file);
}
} // namespace

int QuickLinkXmlParse::SaveToConfigFile(QuickLinkRecordList* records, int keepCurrentId)
{
    TRACE("%s : %s: %s: Entered", Trace::now(), __FILE__, __func__);
    const QString path = configFilePath();
    if (!records)
        return NoRecords;
    QFile file(path);
    if (file.exists())
        file.remove();
    // Without truncation: the removal is what makes the file start empty.
    if (!file.open(QIODevice::ReadWrite | QIODevice::Text)) {
        TRACE("Error open file: ");
        return FileNotOpened;
    }
    if (keepCurrentId == 0)
        m_currentId = shifted(m_currentId, 1);

    QXmlStreamWriter writer(&file);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QLatin1String("tovadoc"));
    writeAttribute(writer, "type", QLatin1String("config"));
    writeHeader(writer);
    writer.writeStartElement(QLatin1String("menu"));
    writeAttribute(writer, "parent", QLatin1String("quicklink"));
    ItemWriter item(writer);
    for (int i = 0; i < records->size(); ++i) {
        const QuickLinkRecord& record = records->at(i);
        // The record in memory learns its id when the file is read back.
        item.write(record, record.id.isEmpty() ? shifted(m_currentId, -1) : record.id);
    }
    writer.writeEndElement();
    writer.writeEndElement();
    writer.writeEndDocument();
    closeWritten(file, writer);
    TRACE("%s : %s: %s: Exit", Trace::now(), __FILE__, __func__);
    return Done;
}

void QuickLinkXmlParse::writeHeader(QXmlStreamWriter& writer) const
{
    writer.writeStartElement(QLatin1String("function"));
    // Always visible, whatever was read: a save brings a hidden page back.
    writer.writeTextElement(QLatin1String("Visible"), QLatin1String("1"));
    writer.writeTextElement(QLatin1String("CurrentID"), StoreText::writable(m_currentId));
    writer.writeEndElement();
    writer.writeStartElement(QLatin1String("type"));
    writeType(writer, " 0", "IDS_LINK_TYPE_APPLICATION");
    writeType(writer, " 1", "IDS_LINK_TYPE_E_MAIL");
    writeType(writer, " 2", "IDS_LINK_TYPE_INTERNET");
    writer.writeEndElement();
}
