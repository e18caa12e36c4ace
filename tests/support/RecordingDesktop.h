// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include "QtVersions.h"
#include <QDir>
#include <QFile>
#include <QStringList>

/** Makes the file with these bytes and permissions, or ends the test program. */
inline void writeFile(const QString& path, const QByteArray& bytes, QFile::Permissions permissions)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.setPermissions(permissions))
        qFatal("The file %s cannot be made", qUtf8Printable(path));
}

/** Makes a program that runs this text as a shell script. */
inline void writeScript(const QString& path, const QByteArray& text)
{
    writeFile(path, "#!/bin/sh\n" + text, QFile::Permissions(0x7755));
}

/** While it lives, an xdg-open that records what it is asked for is the first one in PATH. */
class RecordingDesktop
{
public:
    RecordingDesktop()
        : m_path(qgetenv("PATH"))
    {
        qputenv("OPENED", QFile::encodeName(m_folder.path()));
        qputenv("PATH", QByteArray(RECORDING_DESKTOP) + ':' + m_path);
    }
    ~RecordingDesktop()
    {
        qputenv("PATH", m_path);
        qunsetenv("OPENED");
    }

    /** The exit code of all further calls, 0 without it. */
    void answer(int exitCode) const
    {
        writeFile(m_folder.filePath("answer"), QByteArray::number(exitCode), QFile::Permissions(0x6644));
    }

    /** The arguments of each call so far, those of one call joined by a line feed; in no order. */
    QStringList opened() const
    {
        QStringList calls;
        const QStringList records = QDir(m_folder.path()).entryList({"*.call"}, QDir::Files);
        for (const QString& record : records) {
            QFile file(m_folder.filePath(record));
            if (!file.open(QIODevice::ReadOnly))
                qFatal("The record of a call cannot be read");
            QByteArray arguments = file.readAll();
            arguments.chop(1);
            calls.append(QString::fromUtf8(arguments.replace('\0', '\n')));
        }
        return calls;
    }

private:
    QTemporaryDir m_folder;
    const QByteArray m_path;
};
