// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "PrivateGroup.h"

#include <QByteArray>

#include <grp.h>
#include <pwd.h>

/** Whether anybody but the user of this name has the group without standing in its list of members. */
static bool isPrimaryOfAnother(gid_t group, const QByteArray& name)
{
    bool isFound = false;
    ::setpwent();
    while (const passwd* const entry = ::getpwent())
        isFound = isFound || (entry->pw_gid == group && name != entry->pw_name);
    ::endpwent();
    return isFound;
}

bool PrivateGroup::isOf(uid_t user, gid_t group)
{
    const passwd* const account = ::getpwuid(user);
    if (!account || account->pw_gid != group)
        return false;
    const QByteArray name = account->pw_name;
    const ::group* const entry = ::getgrgid(group);
    if (!entry || name != entry->gr_name)
        return false;
    for (char** member = entry->gr_mem; *member; ++member) {
        if (name != *member)
            return false;
    }
    return !isPrimaryOfAnother(group, name);
}
