// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "UserFolder.h"

#include <QDir>
#include <QFile>

/** The chosen path; empty stands for the default. */
static QString& chosenPath()
{
    static QString path;
    return path;
}

static std::function<void(const void*)>& currentListener()
{
    static std::function<void(const void*)> listener;
    return listener;
}

QString UserFolder::defaultPath()
{
    // The base directory rules tell to ignore a relative value.
    QString dataHome = QFile::decodeName(qgetenv("XDG_DATA_HOME"));
    if (QDir::isRelativePath(dataHome))
        dataHome = QDir::homePath() + QLatin1String("/.local/share");
    return QDir::cleanPath(dataHome + QLatin1String("/vellumconnect"));
}

void UserFolder::setPath(const QString& path)
{
    chosenPath() = path.isEmpty() ? path : QDir::cleanPath(QDir::current().absoluteFilePath(path));
}

QString UserFolder::path()
{
    const QString& chosen = chosenPath();
    if (chosen.isEmpty())
        return defaultPath();
    return chosen == QLatin1String("/") ? QString() : chosen;
}

void UserFolder::setListener(const std::function<void(const void*)>& listener)
{
    currentListener() = listener;
}

QString UserFolder::askedByPlugin(const void* caller)
{
    if (currentListener())
        currentListener()(caller);
    return path();
}
