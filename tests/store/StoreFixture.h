// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include "FakeHost.h"
#include "QuickLinkXmlParse.h"
#include "RecordingTrace.h"
#include "Records.h"

/** A fresh store over an empty folder; call begin() in init() and end() in cleanup(). */
namespace StoreFixture
{
inline void begin()
{
    FakeHost::instance().reset();
}

/** Frees the store and the list, which the store leaves to its user. */
inline void end()
{
    if (QuickLinkXmlParse::m_spInstance)
        delete QuickLinkXmlParse::m_spInstance->m_recordList;
    QuickLinkXmlParse::Destroy();
}

/** The one store, made when it is asked for. */
inline QuickLinkXmlParse* store()
{
    return QuickLinkXmlParse::GetInstance();
}

/** The document that all small documents of these tests are: the root around content. */
inline QByteArray document(const QByteArray& content)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<tovadoc type=\"config\">" + content + "</tovadoc>\n";
}

/** Writes the file and reads it with the store; the reader's result. */
inline int readBytes(const QByteArray& bytes)
{
    if (!FakeHost::instance().writeConfig(bytes))
        return -1;
    return store()->ReadXmlInformation();
}

/** The names in the store's list, joined by commas; "no list" where there is none. */
inline QString names()
{
    const QuickLinkRecordList* const list = store()->m_recordList;
    if (!list)
        return "no list";
    QStringList result;
    for (const QuickLinkRecord& record : *list)
        result.append(record.name);
    return result.join(",");
}

/** The patterns of the reader's trace, to hand to RecordingTrace::debugDifference(). */
inline QStringList readerBeginning()
{
    return QStringList() << tracePattern("%T: %F: ReadXmlInformation: Entered")
                         << tracePattern("%F: ReadXmlInformation: ");
}

inline QStringList walkLines()
{
    const QString exit = tracePattern("%T: %F: parseCallLogConfig: Exit");
    return QStringList() << tracePattern("%T: %F: parseCallLogConfig: Entered") << exit << exit;
}

/** The same for the writer, whose second line is not always the one of a success. */
inline QStringList writerLines(const char* second = "%T : %F: SaveToConfigFile: Exit")
{
    return QStringList() << tracePattern("%T : %F: SaveToConfigFile: Entered") << tracePattern(second);
}

/** An Internet link with that id. */
inline QuickLinkRecord numbered(const char* id, const char* name)
{
    QuickLinkRecord record = makeRecord(name, "internet", "www.example.org");
    record.id = QLatin1String(id);
    return record;
}
} // namespace StoreFixture
