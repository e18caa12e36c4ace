// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkFile.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "LinkWalk.h"

namespace
{
LinkFile inCondition(LinkFile::Condition condition)
{
    LinkFile file;
    file.condition = condition;
    return file;
}

/** Reads an open file that should be of this size; one byte more than the largest tells that it is too large. */
bool readAll(int descriptor, QByteArray& content)
{
    QFile file;
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::DontCloseHandle))
        return false;
    content = file.read(LinkFile::largest + 1);
    return file.error() == QFileDevice::NoError;
}

LinkFile readWhole(int descriptor)
{
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))
        return inCondition(LinkFile::NotRegular);
    QByteArray content;
    if (status.st_size <= LinkFile::largest && !readAll(descriptor, content))
        return inCondition(LinkFile::Unreadable);
    if (status.st_size > LinkFile::largest || content.size() > LinkFile::largest)
        return inCondition(LinkFile::TooLarge);
    LinkFile file = inCondition(LinkFile::Good);
    file.content = content;
    return file;
}
} // namespace

LinkFile LinkFile::read(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status = {};
    if (::stat(name.constData(), &status) != 0) {
        // A link that leads nowhere is a missing file as well: the reader finds none, and a save replaces it.
        const bool isMissing = errno == ENOENT || errno == ENOTDIR || errno == ELOOP;
        return inCondition(isMissing ? Missing : Unreadable);
    }
    if (!S_ISREG(status.st_mode))
        return inCondition(NotRegular);
    // Without waiting: something else may have taken its place just now.
    const int descriptor = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0)
        return inCondition(errno == ENOENT ? Missing : Unreadable);
    LinkFile file = readWhole(descriptor);
    ::close(descriptor);
    return file;
}

LinkFile LinkFile::look(const QString& path, const QByteArray& known)
{
    const LinkFile file = read(path);
    const bool isKnown = !known.isEmpty() && file.content == known;
    return file.isGood() && !isKnown ? ofContent(file.content) : file;
}

LinkFile LinkFile::ofContent(const QByteArray& content, QList<LinkItems::Fields>* links)
{
    LinkFile file;
    file.content = content;
    LinkWalk walk(content, LinkWalk::AsThePlugin);
    while (walk.next()) {
        if (links && walk.isAtLink())
            links->append(walk.link());
    }
    if (walk.isTooLarge())
        return inCondition(TooLarge);
    if (!walk.reader().hasError()) {
        file.condition = Good;
        return file;
    }
    file.condition = content.trimmed().isEmpty() ? Empty : Damaged;
    file.line = walk.reader().lineNumber();
    return file;
}

QByteArray LinkFile::withoutLinks()
{
    // As the plug-in writes it.
    return QByteArrayLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                             "<tovadoc type=\"config\">\n"
                             "    <function>\n"
                             "        <Visible>1</Visible>\n"
                             "        <CurrentID>0</CurrentID>\n"
                             "    </function>\n"
                             "    <type>\n"
                             "        <item id=\" 0\" name=\"IDS_LINK_TYPE_APPLICATION\"/>\n"
                             "        <item id=\" 1\" name=\"IDS_LINK_TYPE_E_MAIL\"/>\n"
                             "        <item id=\" 2\" name=\"IDS_LINK_TYPE_INTERNET\"/>\n"
                             "    </type>\n"
                             "    <menu parent=\"quicklink\"/>\n"
                             "</tovadoc>\n");
}

QStringList LinkFile::names(const QByteArray& content)
{
    QStringList names;
    const QList<LinkItems::Fields> links = LinkItems::of(content);
    for (const LinkItems::Fields& link : links)
        names.append(link.value(QStringLiteral("name")));
    return names;
}

FileStamp FileStamp::of(const QString& path)
{
    FileStamp stamp;
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return stamp;
    stamp.device = status.st_dev;
    stamp.inode = status.st_ino;
    stamp.size = status.st_size;
    stamp.changed = qint64(status.st_mtim.tv_sec) * 1000000000 + status.st_mtim.tv_nsec;
    return stamp;
}

bool FileStamp::operator==(const FileStamp& other) const
{
    return device == other.device && inode == other.inode && size == other.size && changed == other.changed;
}
