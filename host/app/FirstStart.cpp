// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "FirstStart.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include "DurableFile.h"

static bool makeFolder(const QString& path)
{
    if (DurableFile::makePrivateFolder(path))
        return true;
    qWarning("The folder %s cannot be made", qUtf8Printable(path));
    return false;
}

/** Whole or not at all, also after a power cut, and never in place of a link, be it one that leads nowhere. */
static bool copy(const QString& from, const QString& to)
{
    QFile file(from);
    if (QFileInfo(to).isSymLink() || !file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray content = file.readAll();
    return file.error() == QFileDevice::NoError && DurableFile::write(to, content);
}

bool FirstStart::copyDefaults(const QString& defaults, const QString& userFolder)
{
    bool isWhole = true;
    const QDir source(defaults);
    QDirIterator files(defaults, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString target = userFolder + QLatin1Char('/') + source.relativeFilePath(file);
        if (QFileInfo::exists(target) || (makeFolder(QFileInfo(target).path()) && copy(file, target)))
            continue;
        qWarning("%s cannot be copied to %s", qUtf8Printable(file), qUtf8Printable(target));
        isWhole = false;
    }
    return isWhole;
}

void FirstStart::makePluginFolders(const QString& pluginFolder, const QString& userFolder)
{
    const QStringList names = QDir(pluginFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& name : names) {
        if (QFileInfo::exists(QStringLiteral("%1/%2/lib%2.so").arg(pluginFolder, name)))
            makeFolder(QStringLiteral("%1/plugins/%2").arg(userFolder, name));
    }
}
