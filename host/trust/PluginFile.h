// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** A plug-in's file as it was at one time: another file in its place is another plug-in. */
struct PluginFile {
    QString path; ///< every link followed; empty for no file
    qint64 size = 0;
    qint64 changed = 0; ///< milliseconds since 1970 (UTC)

    /** The file that path leads to as it is now; no file where there is none. */
    static PluginFile at(const QString& path);

    /** Whether the file is there and is still this one. */
    bool isUnchanged() const;

    /** As "lib<Name>.so" tells it: <Name>. */
    QString name() const;
};

inline bool operator==(const PluginFile& one, const PluginFile& other)
{
    return one.path == other.path && one.size == other.size && one.changed == other.changed;
}
