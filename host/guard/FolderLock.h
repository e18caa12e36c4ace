// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/**
 * Keeps a second program away from the user's folder: two would overwrite each other's links. The file "lock" in the
 * folder holds the number of the process that has it. The system takes the lock from a process that ends, however it
 * ends; the file goes only with the object, so one that is left behind tells that a run did not end cleanly.
 */
class FolderLock
{
public:
    enum Result {
        Taken,
        Busy, ///< another process has it
        None  ///< there can be none: the folder cannot be made or written to
    };

    /** Knows the folder's lock and does not take it yet. */
    explicit FolderLock(const QString& folder);

    /** Gives the lock back, and removes its file. */
    ~FolderLock();

    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    /** Takes the lock, and makes the folder where it is missing. To be called once, and again after giveBack(). */
    Result take();

    /**
     * Gives the lock back before the end of the object, as it was found: what the run before left behind is there for
     * who takes it next, which may be this object.
     */
    void giveBack();

    /** The number of the process that has the lock where take() answered Busy; 0 where it is not known. */
    qint64 owner() const { return m_owner; }

    /** Leaves the file there at the end, as an interrupted run does. */
    void leaveBehind() { m_isLeftBehind = true; }

    /** Whether the run before left its lock behind: it crashed, was killed, or the power went. Known after take(). */
    bool wasLeftBehind() const { return m_wasLeftBehind; }

private:
    bool isStillTheFile() const;
    void release(bool leavesFile);

    QString m_folder;
    int m_descriptor = -1;
    qint64 m_owner = 0;
    bool m_wasLeftBehind = false;
    bool m_isLeftBehind = false;
};
