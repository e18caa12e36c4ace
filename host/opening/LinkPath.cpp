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

QString LinkPath::typed(const QUrl& address)
{
    return address.isLocalFile() ? address.toLocalFile() : withoutScheme(address);
}

QString LinkPath::of(const QUrl& address)
{
    const QString path = typed(address);
    if (!path.startsWith(QLatin1Char('/')))
        return QString();
    QString found = QStringLiteral("/");
    const QStringList names = QDir::cleanPath(path).split(QLatin1Char('/'));
    for (int i = 0; i < names.size(); ++i) {
        found = QDir(found).filePath(entryFor(QDir(found), names.at(i)));
        // Below nothing there is nothing to look for, and a path may be typed as long as one likes.
        if (i + 1 < names.size() && !QFileInfo::exists(found))
            return found + QLatin1Char('/') + names.mid(i + 1).join(QLatin1Char('/'));
    }
    return found;
}
