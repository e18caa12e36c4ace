// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <sys/types.h>

/** Groups that are a user by another name, as Debian makes one for every user. */
namespace PrivateGroup
{

/**
 * Whether group is the one of this user and of nobody else: the primary group, of the user's own name, without other
 * members and without another user whose primary group it is. False also where the system does not know the user.
 */
bool isOf(uid_t user, gid_t group);

} // namespace PrivateGroup
