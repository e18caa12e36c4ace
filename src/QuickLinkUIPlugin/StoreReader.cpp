// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Reading config.xml.

#include <algorithm>

#include <QFile>
#include <QXmlStreamReader>

#include "LinkAttributes.h"
#include "Pointers.h"
#include "QuickLinkXmlParse.h"
#include "Trace.h"

namespace
{
bool isStartOf(const QXmlStreamReader& reader, const char* name)
{
    return reader.isStartElement() && reader.name() == QLatin1String(name);
}

/** Fills the fields of a record from an item's attributes, one item after the other. */
class ItemReader
{
public:
    explicit ItemReader(QuickLinkRecord& record)
        : m_record(record)
        , m_knownTexts{QString(),         QLatin1String("0"),  QLatin1String("1"), LinkType::application(),
                       LinkType::email(), LinkType::internet()}
    {
    }

    void read(const QXmlStreamAttributes& attributes)
    {
        bool isRead[LinkAttributes::count] = {};
        for (int i = 0; i < attributes.size(); ++i) {
            const QXmlStreamAttribute& attribute = attributes.at(i);
            const int index = indexOf(attribute, i);
            if (index == LinkAttributes::count)
                continue;
            isRead[index] = true;
            set(m_record.*LinkAttributes::all[index].field, attribute.value());
        }
        for (int i = 0; i < LinkAttributes::count; ++i) {
            if (!isRead[i])
                m_record.*LinkAttributes::all[i].field = QString();
        }
    }

private:
    /** Which of the known attributes it is, or their number. The writer's order is tried first. */
    static int indexOf(const QXmlStreamAttribute& attribute, int place)
    {
        if (place < LinkAttributes::count && isNamed(attribute, place))
            return place;
        int index = 0;
        while (index < LinkAttributes::count && !isNamed(attribute, index))
            ++index;
        return index;
    }

    static bool isNamed(const QXmlStreamAttribute& attribute, int index)
    {
        return attribute.qualifiedName() == QLatin1String(LinkAttributes::all[index].name);
    }

    /** Flags and types stand in every item: the records share one text each, which is most of their memory. */
    template <class Text>
    void set(QString& field, const Text& value) const
    {
        const QString* const end = m_knownTexts + knownTextCount;
        const QString* const known = std::find(m_knownTexts, end, value);
        field = known == end ? value.toString() : *known;
    }

    static const int knownTextCount = 6;

    QuickLinkRecord& m_record;
    const QString m_knownTexts[knownTextCount];
};
} // namespace

int QuickLinkXmlParse::ReadXmlInformation()
{
    TRACE("%s: %s: %s: Entered", Trace::now(), __FILE__, __func__);
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
    TRACE("%s: %s: %s: Entered", Trace::now(), __FILE__, __func__);
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
    TRACE("%s: %s: %s: Exit", Trace::now(), __FILE__, __func__);
    TRACE("%s: %s: %s: Exit", Trace::now(), __FILE__, __func__);
}

bool QuickLinkXmlParse::readItems(QXmlStreamReader& reader)
{
    ItemReader item(m_currentRecord);
    // The first menu is never left: whatever item follows it is a link, wherever it stands.
    while (!reader.atEnd()) {
        reader.readNext();
        if (!isStartOf(reader, "item"))
            continue;
        item.read(reader.attributes());
        if (!m_recordList) {
            TRACE("Arg is NULL: %s: %s: %s %d", Trace::now(), __FILE__, "parseCallLogConfig", __LINE__);
            return false;
        }
        // A hidden link does not exist for the user; the next save drops it from the file.
        if (isSet(m_currentRecord.visible))
            m_recordList->append(m_currentRecord);
    }
    return true;
}
