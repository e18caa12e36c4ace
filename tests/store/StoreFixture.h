// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include "FakeHost.h"
#include "QuickLinkXmlParse.h"
#include "Records.h"
#include "RecordingTrace.h"

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

/** The pattern of a line of the store's trace that begins with the time of day; between is the text after it. */
inline QString stampedLine(const char* between, const char* function, const char* end)
{
    return QLatin1String(TracePattern::time) + QLatin1String(between) + QLatin1String(TracePattern::file) +
           ": " + QLatin1String(function) + ": " + QLatin1String(end);
}

/** The lines of the reader's trace; each is one of the patterns to hand to RecordingTrace::debugDifference(). */
inline QStringList readerBeginning()
{
    return QStringList() << stampedLine(": ", "ReadXmlInformation", "Entered")
                         << QLatin1String(TracePattern::file) + ": ReadXmlInformation: ";
}

inline QStringList walkLines()
{
    return QStringList() << stampedLine(": ", "parseCallLogConfig", "Entered")
                         << stampedLine(": ", "parseCallLogConfig", "Exit")
                         << stampedLine(": ", "parseCallLogConfig", "Exit");
}
} // namespace StoreFixture
