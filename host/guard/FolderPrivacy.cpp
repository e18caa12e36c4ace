// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "FolderPrivacy.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

Q_LOGGING_CATEGORY(folderLog, "vellum.folder")

namespace
{
const mode_t groupAndOthers = S_IRWXG | S_IRWXO;

bool isOnlyOurs(const QString& folder)
{
    const QStringList ours = {QStringLiteral("calls"),
                              QStringLiteral("history"),
                              QStringLiteral("left-out.json"),
                              QStringLiteral("lock"),
                              QStringLiteral("plugins"),
                              QStringLiteral("seeded.xml"),
                              QStringLiteral("vellumconnect.ini")};
    const QStringList found =
        QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QString& name : found) {
        if (!ours.contains(name))
            return false;
    }
    return true;
}

FolderPrivacy::Result leaveOpen(const QString& folder, const char* reason)
{
    qCInfo(folderLog, "%s stays open to other users: %s", qUtf8Printable(folder), reason);
    return FolderPrivacy::Open;
}

FolderPrivacy::Result closeFolder(int descriptor, const QString& folder)
{
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0)
        return leaveOpen(folder, "it cannot be looked at");
    if (!(status.st_mode & groupAndOthers))
        return FolderPrivacy::Private;
    if (status.st_uid != ::geteuid())
        return leaveOpen(folder, "it belongs to another user");
    if (!isOnlyOurs(folder))
        return leaveOpen(folder, "it holds other things as well");
    if (::fchmod(descriptor, status.st_mode & S_IRWXU) != 0)
        return leaveOpen(folder, "its rights cannot be changed");
    qCInfo(folderLog, "%s was open to other users, and is no longer", qUtf8Printable(folder));
    return FolderPrivacy::Private;
}
} // namespace

FolderPrivacy::Result FolderPrivacy::keepOthersOut(const QString& folder)
{
    // By a descriptor: the name may stand for something else a moment later.
    const int descriptor =
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0)
        return QFileInfo(folder).isDir() ? leaveOpen(folder, "it is a symbolic link, or may not be read") : Missing;
    const Result result = closeFolder(descriptor, folder);
    ::close(descriptor);
    return result;
}
