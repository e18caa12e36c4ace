// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "DurableFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

static bool isSymbolicLink(const QString& path)
{
    struct stat status = {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0 && S_ISLNK(status.st_mode);
}

static void sync(const QString& path, int flags)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | flags);
    if (descriptor < 0)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
}

bool DurableFile::makePrivateFolder(const QString& folder)
{
    const QFileInfo info(folder);
    if (info.exists())
        return info.isDir();
    if (!makePrivateFolder(info.path()))
        return false;
    const int done = ::mkdir(QFile::encodeName(folder).constData(), S_IRWXU);
    if (done == 0)
        syncFolder(info.path());
    return done == 0 || QFileInfo(folder).isDir();
}

bool DurableFile::liesBelow(const QString& root, const QString& path)
{
    const QString canonicalRoot = QFileInfo(root).canonicalFilePath();
    const QString canonicalFolder = QFileInfo(QFileInfo(path).path()).canonicalFilePath();
    return !canonicalRoot.isEmpty() &&
           (canonicalFolder == canonicalRoot || canonicalFolder.startsWith(canonicalRoot + QLatin1Char('/')));
}

bool DurableFile::write(const QString& path, const QByteArray& content)
{
    // QSaveFile would follow a link and replace what it leads to.
    if (isSymbolicLink(path) && !QFile::remove(path))
        return false;
    QSaveFile file(path);
    // commit() waits for the data, and gives the file its name only then; but what it cannot flush, it does not miss.
    if (!file.open(QIODevice::WriteOnly) || !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) ||
        file.write(content) != content.size() || !file.flush() || !file.commit())
        return false;
    syncFolder(QFileInfo(path).path());
    return true;
}

bool DurableFile::takePlaceOf(const QString& source, const QString& path)
{
    const QByteArray from = QFile::encodeName(source);
    const QByteArray to = QFile::encodeName(path);
    const QByteArray between = to + ".new";
    ::unlink(between.constData());
    // By way of a second name, so that there is no moment without a file.
    const bool isLinked = ::link(from.constData(), between.constData()) == 0;
    const bool isDone = std::rename(isLinked ? between.constData() : from.constData(), to.constData()) == 0;
    // Of two names of one file, renaming one to the other leaves both.
    if (isLinked)
        ::unlink(between.constData());
    syncFolder(QFileInfo(path).path());
    return isDone;
}

void DurableFile::syncFile(const QString& path)
{
    // Without waiting for whoever may have put a pipe there just now.
    sync(path, O_NONBLOCK | O_NOCTTY);
    syncFolder(QFileInfo(path).path());
}

void DurableFile::syncFolder(const QString& folder)
{
    sync(folder, O_DIRECTORY);
}
