// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** Who else could put code of their own into what this program loads. */
namespace FileTrust
{

enum Problem {
    None,
    ForeignOwner, ///< belongs neither to root nor to the user who runs the program
    OthersWrite,  ///< others may write to it
    Unknown       ///< it cannot be looked at, or links lead in a circle
};

struct Finding {
    Problem problem = None;
    QString place; ///< the file or folder that has the problem; a path with every link followed
};

/**
 * Looks at file, which lies in root, and at every folder on the way to it, each link followed. The file, the folder in
 * which it lies, a folder that holds a link, root and all folders in it must belong to root or to the user who runs the
 * program, and nobody else may write to them; the user's private group may (see PrivateGroup), unless an access list
 * lets in more. Of the folders that lead to these only one thing is asked: where everybody may write, its sticky bit
 * must keep others from renaming what is not theirs. The first problem found. Opens no file.
 */
Finding look(const QString& root, const QString& file);

} // namespace FileTrust
