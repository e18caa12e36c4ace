// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkPath.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

/** An address without scheme as the path that it stands for. */
static QString withoutScheme(const QUrl& address)
{
    QString path = address.path(QUrl::FullyDecoded);
    if (!address.authority().isEmpty())
        path.prepend(QStringLiteral("//") + address.authority());
    if (address.hasQuery())
        path += QLatin1Char('?') + address.query(QUrl::FullyDecoded);
    if (address.hasFragment())
        path += QLatin1Char('#') + address.fragment(QUrl::FullyDecoded);
    return path;
}

/** The entry of folder whose name says name when it is decoded ("a%20b" for "a b"); name itself where there is none. */
static QString entryFor(const QDir& folder, const QString& name)
{
    if (QFileInfo::exists(folder.filePath(name)))
        return name;
    const QStringList entries = folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
    for (const QString& entry : entries) {
        if (entry.contains(QLatin1Char('%')) && QUrl::fromPercentEncoding(entry.toUtf8()) == name)
            return entry;
    }
    return name;
}

bool LinkPath::isPath(const QUrl& address)
{
    return address.scheme().isEmpty() || address.isLocalFile();
}

QString LinkPath::of(const QUrl& address)
{
    const QString decoded = address.isLocalFile() ? address.toLocalFile() : withoutScheme(address);
    const QString path = QDir::cleanPath(QDir::current().absoluteFilePath(decoded));
    QString found = QStringLiteral("/");
    const QStringList names = path.split(QLatin1Char('/'));
    for (const QString& name : names)
        found = QDir(found).filePath(entryFor(QDir(found), name));
    return found;
}
