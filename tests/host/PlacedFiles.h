// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>

#include <cerrno>
#include <cstring>

#include <sys/stat.h>
#include <unistd.h>

#include "LoadRuns.h"
#include "ProcessLimits.h"
#include "Test.h"

// The words of tests that put things in the place of a plug-in, each in a table with the columns of addColumns().

const uid_t otherUser = 1; // one that every system has, beside root
const uid_t nobody = 65534;

/** What a row of a table does to the folders before the run. */
using SetUp = void (*)(LoadRuns& runs);

/** Ends the test program where a set-up cannot be made. */
inline void need(bool isDone)
{
    if (!isDone)
        qFatal("The set-up cannot be made: %s", strerror(errno));
}

inline QByteArray local(const QString& path)
{
    return QFile::encodeName(path);
}

/** Sets permission bits. */
inline void allow(const QString& path, mode_t mode)
{
    need(setMode(path, mode));
}

/** Changes owner and group; only root can. */
inline void give(const QString& path, uid_t user, gid_t group)
{
    need(chown(local(path).constData(), user, group) == 0);
}

/** A symbolic link; what it names need not be there. */
inline void lead(const QString& from, const QString& to)
{
    need(symlink(local(to).constData(), local(from).constData()) == 0);
}

/** Makes a folder, and answers its path. */
inline QString makeFolder(const QString& path, mode_t mode = 0755)
{
    need(QDir().mkpath(path));
    allow(path, mode);
    return path;
}

/** What a row needs: nothing, to be root, or to become the user nobody for the run. */
enum User { Anyone, Root, Nobody };

/** No objection. */
const char fine[] = "";

Q_DECLARE_METATYPE(SetUp)

/** What it takes, what is in the place of "Bad", and why that is not loaded. */
inline void addColumns()
{
    QTest::addColumn<int>("user");
    QTest::addColumn<SetUp>("setUp");
    QTest::addColumn<QString>("objection");
}

inline void addRow(const char* name, User user, SetUp setUp, const QString& objection)
{
    QTest::newRow(name) << int(user) << setUp << objection;
}

/** Whether a row can be run; it is run as that user then. */
inline bool canBe(User user, LoadRuns& runs)
{
    if (user == Anyone)
        return true;
    if (geteuid() != 0)
        return false;
    if (user == Nobody)
        runs.becomeNobody();
    return true;
}

/** The good plug-in was loaded in any case, and the bad one was refused in words that begin so, or passed over. */
inline void compareWithGood(const QStringList& said, const QString& refusal)
{
    QStringList expected = {"loaded FakeSilent", "done"};
    if (!refusal.startsWith("loaded "))
        expected.prepend(said.first().startsWith(refusal) ? said.first() : refusal);
    QCOMPARE(said, expected);
}
