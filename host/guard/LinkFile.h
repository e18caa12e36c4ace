// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "LinkItems.h"

/** What a look at the file with the links found. The look changes nothing and never waits for anybody. */
struct LinkFile {
    enum Condition {
        Good,       ///< read to its end by the plug-in: XML that is well-formed in text mode
        Missing,    ///< no file of that name
        Empty,      ///< nothing in it, or blanks only
        Damaged,    ///< not well-formed: cut off, or with a character or element that cannot be read
        TooLarge,   ///< larger than any file of links, see largest, be it by what entities stand for
        Unreadable, ///< not for this user, or an error of the disk
        NotRegular  ///< a folder, pipe or device, which was not opened
    };

    static const qint64 largest = qint64(16) * 1024 * 1024; ///< bytes

    Condition condition = Missing;
    QByteArray content; ///< of a file that is Good, Empty or Damaged
    qint64 line = 0;    ///< where a damaged file stops to be well-formed; counted from 1

    bool isGood() const { return condition == Good; }

    /** What the file path holds, not looked into: Good where that could be read. */
    static LinkFile read(const QString& path);

    /**
     * Looks at the file path. What is the same as known, which was found to be good or is empty, is not looked into
     * again.
     */
    static LinkFile look(const QString& path, const QByteArray& known = QByteArray());

    /**
     * Looks at what such a file would hold. Adds to links, where given, those that it shows; of damaged content those
     * before the damage.
     */
    static LinkFile ofContent(const QByteArray& content, QList<LinkItems::Fields>* links = nullptr);

    /** A good file without links. */
    static QByteArray withoutLinks();

    /** The names of the links that content shows, in their order; of damaged content those before the damage. */
    static QStringList names(const QByteArray& content);
};

/**
 * What tells two versions of a file apart without reading it: who it is, how long it is and when it was changed. Equal
 * where it was not touched in between.
 */
struct FileStamp {
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = -1;   ///< -1: there is none
    qint64 changed = 0; ///< nanoseconds since 1970

    static FileStamp of(const QString& path);
    bool operator==(const FileStamp& other) const;
    bool operator!=(const FileStamp& other) const { return !(*this == other); }
};
