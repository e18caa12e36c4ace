// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// By flock(2): QLockFile goes by the host's name, and would keep a renamed computer's user out for good.

#include "FolderLock.h"

#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "DurableFile.h"

static QByteArray lockOf(const QString& folder)
{
    return QFile::encodeName(folder + QStringLiteral("/lock"));
}

/** What a process wrote into its lock; 0 for nothing that is a number. */
static qint64 ownerOf(int descriptor)
{
    char text[32] = {};
    const ssize_t length = ::pread(descriptor, text, sizeof text - 1, 0);
    return length > 0 ? QByteArray(text).trimmed().toLongLong() : 0;
}

FolderLock::FolderLock(const QString& folder)
    : m_folder(folder)
{
}

FolderLock::~FolderLock()
{
    release(m_isLeftBehind);
}

void FolderLock::giveBack()
{
    release(m_wasLeftBehind);
}

void FolderLock::release(bool leavesFile)
{
    if (m_descriptor < 0)
        return;
    if (!leavesFile)
        ::unlink(lockOf(m_folder).constData());
    ::close(m_descriptor);
    m_descriptor = -1;
}

FolderLock::Result FolderLock::take()
{
    DurableFile::makePrivateFolder(m_folder);
    do {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
        m_wasLeftBehind = ::access(lockOf(m_folder).constData(), F_OK) == 0;
        m_descriptor = ::open(lockOf(m_folder).constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC,
                              S_IRUSR | S_IWUSR);
        if (m_descriptor < 0)
            return None;
        if (::flock(m_descriptor, LOCK_EX | LOCK_NB) != 0) {
            m_owner = ownerOf(m_descriptor);
            ::close(m_descriptor);
            m_descriptor = -1;
            return Busy;
        }
        // Whoever had it may have removed the file between the two calls.
    } while (!isStillTheFile());
    const QByteArray number = QByteArray::number(::getpid()) + '\n';
    // On a full disk the lock holds all the same, only without a number.
    const bool isWritten = ::ftruncate(m_descriptor, 0) == 0 &&
                           ::pwrite(m_descriptor, number.constData(), size_t(number.size()), 0) == number.size();
    Q_UNUSED(isWritten);
    return Taken;
}

bool FolderLock::isStillTheFile() const
{
    struct stat ours = {};
    struct stat named = {};
    return ::fstat(m_descriptor, &ours) == 0 && ::stat(lockOf(m_folder).constData(), &named) == 0 &&
           ours.st_dev == named.st_dev && ours.st_ino == named.st_ino;
}
