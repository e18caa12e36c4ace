// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

/**
 * Writing below one folder so that a file is there whole or not at all, also after a power cut, and never outside of
 * the folder. All paths are absolute.
 */
namespace DurableFile
{

/**
 * Makes folder and what leads to it, for its user alone (0700), and waits until they are on the disk. False when it is
 * not there afterwards.
 */
bool makePrivateFolder(const QString& folder);

/** Whether the folder of path lies in root when all symbolic links are followed. False when it does not exist. */
bool liesBelow(const QString& root, const QString& path);

/**
 * Gives the file path this content, readable by its user alone (0600), and waits until it is on the disk. A symbolic
 * link of that name is replaced, not followed. False when it could not be done; then the file is what it was.
 */
bool write(const QString& path, const QByteArray& content);

/**
 * Lets path be the file source without writing any data, as is possible on a full disk: by a second name for it, or,
 * where there is no room for a name either, by its only one. Both must lie in the same file system. Whatever is at path
 * is replaced. False when it could not be done.
 */
bool takePlaceOf(const QString& source, const QString& path);

/** Waits until a file that somebody else wrote, and its name, are on the disk. Failure is silent, as below. */
void syncFile(const QString& path);

/** Waits until the names in the folder are on the disk. Failure is silent: not every file system can. */
void syncFolder(const QString& folder);

} // namespace DurableFile
