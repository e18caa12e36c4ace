// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

#include "FolderLock.h"
#include "QuickLinkRecord.h"
#include "QuickLinkXmlParse.h"

/**
 * A file of links that is listed or changed. The plug-in's own store reads and writes it; what stands by the file in
 * the program stands by it here, too: the lock of its folder, the history where there is one, and a write that leaves
 * the old or the new.
 */
class LinksFile
{
public:
    /** The file path, or the user's own where that is empty. Nothing is touched yet. */
    explicit LinksFile(const QString& path);

    /** Gives the lock back. */
    ~LinksFile();

    LinksFile(const LinksFile&) = delete;
    LinksFile& operator=(const LinksFile&) = delete;

    /** Absolute. */
    QString path() const { return m_path; }

    /** Reads the links. What went wrong, in words; empty where nothing did. A user's own file need not be there. */
    QString read();

    /**
     * The same for who is going to change them: nobody else does until this object goes, or a program that runs with
     * the folder does it. A user's first links are the
     * operator's prepared ones, as at the program's first start; another file that is not there is a new one. Files of
     * other users are left alone.
     */
    QString readToChange();

    /** Opens a link of the file by the program that runs with its folder. False where none does. */
    bool openInProgram(int index) const;

    /** Lets the file hold the links. What went wrong, in words; the file is as it was then. */
    QString save();

    /** Takes a link in behind the others, with the next free id, less what the file cannot hold. */
    void append(QuickLinkRecord link);

    QuickLinkRecordList links;

    /** How many hidden links the file has, which a save drops. */
    int hiddenLinks() const;

private:
    QString load(bool mayBeMissing);
    QString lock();
    QByteArray written(QString& problem);
    qlonglong nextId() const;
    void parse(const QByteArray& content, QuickLinkXmlParse& store, QuickLinkRecordList& to) const;
    QString historyFolder() const;

    const bool m_isOwn;
    QString m_path;
    QString m_userFolder;       ///< empty where the file lies in none
    bool m_isInProgram = false; ///< which does the change
    QByteArray m_content;       ///< as it was read; empty for none
    QuickLinkXmlParse m_store;
    qlonglong m_nextId = -1; ///< of a link that is appended; -1 where none was yet
    std::unique_ptr<FolderLock> m_lock;
};
