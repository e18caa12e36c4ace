// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Reading config.xml.

#include <QFile>
#include <QXmlStreamReader>

#include "Pointers.h"
#include "QuickLinkXmlParse.h"
#include "Trace.h"

namespace
{
QString text(const QXmlStreamAttributes& attributes, const char* name)
{
    return attributes.value(QLatin1String(name)).toString();
}

bool isStartOf(const QXmlStreamReader& reader, const char* name)
{
    return reader.isStartElement() && reader.name() == QLatin1String(name);
}
} // namespace

int QuickLinkXmlParse::ReadXmlInformation()
{
    TRACE("%s: %s: %s: Entered", Trace::now().constData(), __FILE__, __func__);
    release(m_recordList);
    m_recordList = new QuickLinkRecordList;
    const QString path = configFilePath();
    TRACE("%s: %s: ", __FILE__, __func__);
    QFile file(path);
    if (!file.exists()) {
        TRACE("File %s is not present", path.toUtf8().constData());
        return FileMissing;
    }
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        TRACE("open file gives error: ");
        return FileNotOpened;
    }
    int result = Done;
    QXmlStreamReader reader(&file);
    if (!reader.device()) {
        TRACE("%s: %s: StreamReader is not binded with device", __FILE__, __func__);
        result = ReaderNotBound;
    }
    parseCallLogConfig(reader);
    file.close();
    return result;
}

void QuickLinkXmlParse::parseCallLogConfig(QXmlStreamReader& reader)
{
    TRACE("%s: %s: %s: Entered", Trace::now().constData(), __FILE__, __func__);
    while (!reader.atEnd()) {
        reader.readNext();
        // Reading an element's text moves the reader to its end tag, so one token is one of the three at most.
        if (isStartOf(reader, "Visible"))
            m_visible = reader.readElementText();
        if (isStartOf(reader, "CurrentID"))
            m_currentId = reader.readElementText();
        if (isStartOf(reader, "menu") && !readItems(reader))
            return;
    }
    TRACE("%s: %s: %s: Exit", Trace::now().constData(), __FILE__, __func__);
    TRACE("%s: %s: %s: Exit", Trace::now().constData(), __FILE__, __func__);
}

bool QuickLinkXmlParse::readItems(QXmlStreamReader& reader)
{
    // The first menu is never left: whatever item follows it is a link, wherever it stands.
    while (!reader.atEnd()) {
        reader.readNext();
        if (!isStartOf(reader, "item"))
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        m_currentRecord.id = text(attributes, "id");
        m_currentRecord.name = text(attributes, "name");
        m_currentRecord.startmobile = text(attributes, "startmobile");
        m_currentRecord.startconnect = text(attributes, "startconnect");
        m_currentRecord.url = text(attributes, "url");
        m_currentRecord.type = text(attributes, "type");
        m_currentRecord.para = text(attributes, "para");
        m_currentRecord.delete_ = text(attributes, "delete");
        m_currentRecord.edit = text(attributes, "edit");
        m_currentRecord.visible = text(attributes, "visible");
        if (!m_recordList) {
            TRACE("Arg is NULL: %s: %s: %s %d", Trace::now().constData(), __FILE__, "parseCallLogConfig", __LINE__);
            return false;
        }
        // A hidden link does not exist for the user; the next save drops it from the file.
        if (m_currentRecord.visible == QLatin1String("1"))
            m_recordList->append(m_currentRecord);
    }
    return true;
}
