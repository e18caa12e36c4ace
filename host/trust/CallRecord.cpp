// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The file, which a person can read, is one line that ends with a NUL and is padded with them:
//     <state> <call> <size> <changed> <path>
// The state is '-' for nobody, 'c' for called and 'h' for hung; it is written last and changed alone.

#include "CallRecord.h"

#include <QDir>
#include <QFile>

#include <atomic>
#include <cstring>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include "DurableFile.h"

namespace
{
const int recordSize = 8192; // bytes: the longest path and four numbers
const char nobody = '-';
const char called = 'c';
const char hung = 'h';

QString folderIn(const QString& userFolder)
{
    return userFolder + QStringLiteral("/calls");
}

/** A lock that no child of the process inherits. It goes when any descriptor of the file is closed. */
bool lock(int descriptor)
{
    struct flock whole = {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    return ::fcntl(descriptor, F_SETLK, &whole) == 0;
}

int openRecord(const QByteArray& path, int flags)
{
    return ::open(path.constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | flags, S_IRUSR | S_IWUSR);
}

QByteArray contentOf(int descriptor)
{
    char content[recordSize];
    const ssize_t length = ::read(descriptor, content, sizeof content);
    return QByteArray(content, int(qMax(length, ssize_t(0))));
}

/** False where the record names nobody. */
bool parse(const QByteArray& record, UnfinishedCall& unfinished)
{
    const int end = int(record.indexOf('\0'));
    const QList<QByteArray> words = record.left(qMax(end, 0)).split(' ');
    if (words.size() < 5 || (words.at(0) != QByteArray(1, called) && words.at(0) != QByteArray(1, hung)))
        return false;
    const int call = words.at(1).toInt();
    if (call < PluginGate::Loading || call > PluginGate::Unloading)
        return false;
    unfinished.isHung = words.at(0) == QByteArray(1, hung);
    unfinished.call = PluginGate::Call(call);
    unfinished.file.size = words.at(2).toLongLong();
    unfinished.file.changed = words.at(3).toLongLong();
    unfinished.file.path = QFile::decodeName(QByteArrayList(words.mid(4)).join(' '));
    return true;
}
} // namespace

CallRecord::~CallRecord()
{
    if (m_page) {
        ::munmap(m_page, recordSize);
        ::unlink(m_path.constData());
    }
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

/** What processes that are gone left unfinished; isTaken says whether their files go. */
static QList<UnfinishedCall> read(const QString& userFolder, bool isTaken)
{
    QList<UnfinishedCall> all;
    const QDir folder(folderIn(userFolder));
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Time);
    for (const QString& name : names) {
        const QByteArray path = QFile::encodeName(folder.filePath(name));
        const int descriptor = openRecord(path, 0);
        if (descriptor < 0)
            continue;
        if (lock(descriptor)) {
            UnfinishedCall unfinished;
            if (parse(contentOf(descriptor), unfinished))
                all.append(unfinished);
            if (isTaken)
                ::unlink(path.constData());
        }
        ::close(descriptor);
    }
    return all;
}

QList<UnfinishedCall> CallRecord::leftBehind(const QString& userFolder)
{
    return read(userFolder, false);
}

QList<UnfinishedCall> CallRecord::takeLeftBehind(const QString& userFolder)
{
    return read(userFolder, true);
}

bool CallRecord::open(const QString& userFolder)
{
    const QString folder = folderIn(userFolder);
    if (m_page || !DurableFile::makePrivateFolder(folder))
        return false;
    m_path = QFile::encodeName(folder) + '/' + QByteArray::number(::getpid());
    m_descriptor = openRecord(m_path, O_CREAT);
    // All room is taken now: on a disk that is full later, writing to the memory would end the process.
    if (m_descriptor < 0 || !lock(m_descriptor) || ::posix_fallocate(m_descriptor, 0, recordSize) != 0)
        return false;
    void* const page = ::mmap(nullptr, recordSize, PROT_READ | PROT_WRITE, MAP_SHARED, m_descriptor, 0);
    if (page == MAP_FAILED)
        return false;
    m_page = static_cast<char*>(page);
    clear();
    return true;
}

void CallRecord::note(const PluginFile& file, PluginGate::Call call)
{
    if (!m_page)
        return;
    clear();
    const QByteArray line = ' ' + QByteArray::number(call) + ' ' + QByteArray::number(file.size) + ' ' +
                            QByteArray::number(file.changed) + ' ' + QFile::encodeName(file.path);
    if (line.size() > recordSize - 2)
        return;
    // With the NUL at its end.
    std::memcpy(m_page + 1, line.constData(), size_t(line.size()) + 1);
    std::atomic_signal_fence(std::memory_order_seq_cst);
    *m_page = called;
}

void CallRecord::noteHung()
{
    if (m_page && *m_page == called)
        *m_page = hung;
}

void CallRecord::clear()
{
    if (!m_page)
        return;
    *m_page = nobody;
    std::atomic_signal_fence(std::memory_order_seq_cst);
}
