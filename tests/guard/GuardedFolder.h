// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

/** A user's folder with a file of links in it. */
class GuardedFolder
{
public:
    GuardedFolder()
    {
        // Others may pass: a test that gives up root's power still finds its files.
        QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                                   QFile::ReadOther | QFile::ExeOther);
        QDir().mkpath(QFileInfo(file()).path());
    }

    QString path() const { return m_folder.filePath("user"); }
    QString file() const { return path() + "/plugins/QuickLinkUIPlugin/config.xml"; }
    QString history() const { return path() + "/history"; }

    /** A well-formed file with links of these names. */
    static QByteArray links(const QStringList& names)
    {
        QByteArray items;
        for (const QString& name : names)
            items += "<item name=\"" + name.toUtf8() + "\" visible=\"1\"/>\n";
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<tovadoc><menu>\n" + items + "</menu></tovadoc>\n";
    }

    /** Whether the file holds content now, in place of what was there before. */
    bool write(const QByteArray& content) const { return writeTo(file(), content); }

    static bool writeTo(const QString& path, const QByteArray& content)
    {
        QFile::remove(path);
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    }

    /** What the file holds; "no file" where there is none. */
    QByteArray read() const { return readFrom(file()); }

    static QByteArray readFrom(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : "no file";
    }

    /** The names of the files beside the links. */
    QStringList beside() const
    {
        QStringList names =
            QFileInfo(file()).dir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System | QDir::Hidden);
        names.removeAll("config.xml");
        return names;
    }

private:
    QTemporaryDir m_folder;
};
