// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "FirstStart.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

static bool makeFolder(const QString& path)
{
    if (QDir().mkpath(path))
        return true;
    qWarning("The folder %s cannot be made", qUtf8Printable(path));
    return false;
}

void FirstStart::copyDefaults(const QString& defaults, const QString& userFolder)
{
    const QDir source(defaults);
    QDirIterator files(defaults, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString target = userFolder + QLatin1Char('/') + source.relativeFilePath(file);
        if (QFileInfo::exists(target) || !makeFolder(QFileInfo(target).path()))
            continue;
        // Copies to a temporary file, which gets its name when it is complete and only if nothing has that name.
        if (!QFile::copy(file, target))
            qWarning("%s cannot be copied to %s", qUtf8Printable(file), qUtf8Printable(target));
    }
}

void FirstStart::makePluginFolders(const QString& pluginFolder, const QString& userFolder)
{
    const QStringList names = QDir(pluginFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& name : names) {
        if (QFileInfo::exists(QStringLiteral("%1/%2/lib%2.so").arg(pluginFolder, name)))
            makeFolder(QStringLiteral("%1/plugins/%2").arg(userFolder, name));
    }
}
