// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** Keeps other users of the computer out of the user's folder, also one that was made when it was still open to them.
 */
namespace FolderPrivacy
{

enum Result {
    Private, ///< others are kept out: it was so, or is now
    Open,    ///< others may look inside, and that was not ours to change, or could not be changed
    Missing, ///< there is no such folder
};

/**
 * Gives the folder to its user alone (0700), where it is this user's, no symbolic link, and holds nothing but what this
 * program keeps there: a folder that the user shares for other reasons, such as the home folder, stays as it is. Its
 * content keeps its rights; nobody else reaches it any more. What it changed or left open is a line in the log category
 * "vellum.folder".
 */
Result keepOthersOut(const QString& folder);

} // namespace FolderPrivacy
