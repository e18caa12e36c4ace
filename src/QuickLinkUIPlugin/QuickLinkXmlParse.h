// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include "QuickLinkRecord.h"

class QXmlStreamReader;
class QXmlStreamWriter;

/**
 * The store of the quick links: the one object that reads and writes config.xml.
 *
 * The file lies in plugins/QuickLinkUIPlugin below the folder that the host names. It is XML 1.0 in UTF-8, as
 * docs/config-xml.md describes.
 */
class QuickLinkXmlParse
{
public:
    /** What reading and writing answer. */
    enum Result {
        Done = 0,            ///< read or written
        FileMissing = 3,     ///< there is no file to read; the list is empty
        ReaderNotBound = 13, ///< the XML reader did not take the file
        NoRecords = 15,      ///< null was handed over to be written; nothing was touched
        FileNotOpened = 25   ///< the file is there, or its folder is, but it could not be opened
    };

    QuickLinkXmlParse();

    /** The one store, made at the first call; never null. It lives until Destroy(). */
    static QuickLinkXmlParse* GetInstance();

    /** Frees the store if there is one. Does not free the record list, which its user frees first. */
    static void Destroy();

    /**
     * Reads the file into a new record list. The list read before is freed, also when the file is missing or
     * bad: take m_recordList again after every call. Items before the first error in a damaged file stay.
     */
    int ReadXmlInformation();

    /** The walk over the elements that fills m_visible, m_currentId and the list (which must exist). */
    void parseCallLogConfig(QXmlStreamReader& reader);

    /**
     * Replaces the file by one with the given records, which are read only and stay the caller's.
     *
     * keepCurrentId 0 says that a record was appended and advances the counter m_currentId by one. A record
     * without an id is written with the counter's value less one; in memory it keeps its empty id. Characters
     * that the file cannot hold are left out of it (StoreText). The old file is removed first and there is no copy:
     * after FileNotOpened the links exist in memory only. When writing fails later, as on a full disk, only a trace
     * says so; the answer is Done.
     */
    int SaveToConfigFile(QuickLinkRecordList* records, int keepCurrentId);

    QuickLinkRecord m_currentRecord;        ///< the item being read
    QString m_currentId;                    ///< the id that the next new link gets; what is no number counts as 0
    QuickLinkRecordList* m_recordList;      ///< the list of the last read; null before the first one
    QString m_visible;                      ///< exactly "0" hides the settings page
    static QuickLinkXmlParse* m_spInstance; ///< the one store, or null

private:
    static QString configFilePath();
    bool readItems(QXmlStreamReader& reader);
    void writeHeader(QXmlStreamWriter& writer) const;
};
