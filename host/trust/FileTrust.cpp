// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "FileTrust.h"

#include "PrivateGroup.h"

#include <QByteArrayList>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace
{
const int mostLinks = 40; // as the system's own limit

/** Whether an access list lets more users in than owner, group and others; the group's bits are its mask then. */
bool hasAccessList(const QByteArray& path)
{
    return ::getxattr(path.constData(), "system.posix_acl_access", nullptr, 0) > 0;
}

FileTrust::Problem problemOf(const QByteArray& path, const struct stat& status)
{
    const uid_t user = ::geteuid();
    if (status.st_uid != 0 && status.st_uid != user)
        return FileTrust::ForeignOwner;
    if (status.st_mode & S_IWOTH)
        return FileTrust::OthersWrite;
    if ((status.st_mode & S_IWGRP) && (hasAccessList(path) || !PrivateGroup::isOf(user, status.st_gid)))
        return FileTrust::OthersWrite;
    return FileTrust::None;
}

QByteArray parentOf(const QByteArray& path)
{
    return path.left(qMax(path.lastIndexOf('/'), 1));
}

/** Goes the way of a path, component by component, as the system does. */
class Way
{
public:
    explicit Way(const QByteArray& root)
        : m_root(root)
    {
    }

    FileTrust::Finding follow(const QByteArray& path)
    {
        push(path);
        while (!m_left.isEmpty() && m_found.problem == FileTrust::None)
            step(m_left.takeFirst());
        if (m_found.problem == FileTrust::None)
            examine(parentOf(m_here));
        if (m_found.problem == FileTrust::None)
            examine(m_here);
        return m_found;
    }

private:
    void push(const QByteArray& path)
    {
        m_left = path.split('/') + m_left;
        if (path.startsWith('/'))
            m_here = "/";
    }

    void step(const QByteArray& name)
    {
        if (name.isEmpty() || name == ".")
            return;
        if (name == "..") {
            m_here = parentOf(m_here);
            return;
        }
        const QByteArray path = m_here == "/" ? m_here + name : m_here + '/' + name;
        struct stat status = {};
        if (::lstat(path.constData(), &status) != 0)
            return find(FileTrust::Unknown, path);
        if (S_ISLNK(status.st_mode))
            return followLink(path);
        m_here = path;
        if (S_ISDIR(status.st_mode))
            enter(path, status);
    }

    void followLink(const QByteArray& path)
    {
        char target[4096];
        const ssize_t length = ::readlink(path.constData(), target, sizeof target);
        if (length <= 0 || length == sizeof target || ++m_links > mostLinks)
            return find(FileTrust::Unknown, path);
        // The links on the way to the root are the user's or the system's choice.
        if (m_isInRoot)
            examine(m_here);
        push(QByteArray(target, int(length)));
    }

    void enter(const QByteArray& folder, const struct stat& status)
    {
        m_isInRoot = m_isInRoot || folder == m_root;
        if (folder == m_root || folder.startsWith(m_root + '/'))
            judge(folder, problemOf(folder, status));
        else if ((status.st_mode & S_IWOTH) && !(status.st_mode & S_ISVTX))
            find(FileTrust::OthersWrite, folder);
    }

    void examine(const QByteArray& path)
    {
        struct stat status = {};
        judge(path, ::lstat(path.constData(), &status) == 0 ? problemOf(path, status) : FileTrust::Unknown);
    }

    void judge(const QByteArray& path, FileTrust::Problem problem)
    {
        if (problem != FileTrust::None)
            find(problem, path);
    }

    void find(FileTrust::Problem problem, const QByteArray& path)
    {
        if (m_found.problem == FileTrust::None)
            m_found = {problem, QFile::decodeName(path)};
    }

    QByteArray m_root; ///< without links
    QByteArray m_here = "/";
    QByteArrayList m_left;
    int m_links = 0;
    bool m_isInRoot = false;
    FileTrust::Finding m_found;
};
} // namespace

FileTrust::Finding FileTrust::look(const QString& root, const QString& file)
{
    return Way(QFile::encodeName(QFileInfo(root).canonicalFilePath()))
        .follow(QFile::encodeName(QFileInfo(file).absoluteFilePath()));
}
