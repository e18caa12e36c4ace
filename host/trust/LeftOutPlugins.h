// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

#include "CallRecord.h"

/** The plug-ins that did not come back from a call and are not loaded any more, kept in the user's folder. */
class LeftOutPlugins
{
public:
    struct Entry {
        UnfinishedCall call;
        bool isAnswered = false; ///< the user was asked about it
    };

    /** Knows none yet. */
    LeftOutPlugins() = default;

    /**
     * Reads left-out.json in userFolder and adds what was left unfinished since. A plug-in whose file is gone or is
     * another one by now is forgotten. What is no such file counts as an empty one. True where it differs from the
     * file, which stays as it is.
     */
    bool look(const QString& userFolder, const QList<UnfinishedCall>& unfinished);

    /** The same, and keeps what differs. */
    void open(const QString& userFolder, const QList<UnfinishedCall>& unfinished);

    /** Those that are left out, the latest last. */
    QList<Entry> all() const { return m_entries; }

    /** Whether the user has not answered about one of them yet. */
    bool isNew() const;

    /** Whether the file is left out; null else. Valid until the next change. */
    const Entry* find(const PluginFile& file) const;

    /** The user was asked about all, and they stay out. */
    void answer();

    /** Lets all be loaded again from the next start on. */
    void letAllIn();

private:
    void add(const UnfinishedCall& call);
    void read();
    void save() const;

    QString m_path;
    QList<Entry> m_entries;
};
