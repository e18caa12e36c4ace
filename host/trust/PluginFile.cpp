// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "PluginFile.h"

#include <QDateTime>
#include <QFileInfo>

PluginFile PluginFile::at(const QString& path)
{
    const QFileInfo info(QFileInfo(path).canonicalFilePath());
    PluginFile file;
    if (!info.isFile())
        return file;
    file.path = info.filePath();
    file.size = info.size();
    file.changed = info.lastModified().toMSecsSinceEpoch();
    return file;
}

bool PluginFile::isUnchanged() const
{
    return !path.isEmpty() && at(path) == *this;
}

QString PluginFile::name() const
{
    const QString base = QFileInfo(path).completeBaseName();
    return base.startsWith(QLatin1String("lib")) ? base.mid(3) : base;
}
