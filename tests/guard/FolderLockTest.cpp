// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// One program a folder, and the trace that an interrupted one leaves.

#include <sys/wait.h>
#include <unistd.h>

#include "FolderLock.h"
#include "GuardedFolder.h"
#include "ProcessLimits.h"
#include "Test.h"

class FolderLockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsOthersAway();
    void goesWithItsObject();
    void isLeftBehindByADeadProcess();
    void isLeftBehindWhenTold();
    void isGivenBackAsItWasFound();
    void makesTheFolder();
    void holdsOnAFullDisk();
    void noneWhereNothingCanBeWritten();
    void noneInPlaceOfALink();
};

void FolderLockTest::keepsOthersAway()
{
    const GuardedFolder folder;
    FolderLock first(folder.path());
    QCOMPARE(first.take(), FolderLock::Taken);
    QVERIFY(!first.wasLeftBehind());
    FolderLock second(folder.path());
    QCOMPARE(second.take(), FolderLock::Busy);
    QCOMPARE(second.owner(), qint64(getpid()));
    QCOMPARE(GuardedFolder::readFrom(folder.path() + "/lock"), QByteArray::number(getpid()) + '\n');
}

void FolderLockTest::goesWithItsObject()
{
    const GuardedFolder folder;
    {
        FolderLock first(folder.path());
        QCOMPARE(first.take(), FolderLock::Taken);
    }
    QVERIFY(!QFileInfo::exists(folder.path() + "/lock"));
    FolderLock second(folder.path());
    QCOMPARE(second.take(), FolderLock::Taken);
    QVERIFY(!second.wasLeftBehind());
}

void FolderLockTest::isLeftBehindByADeadProcess()
{
    const GuardedFolder folder;
    const pid_t child = fork();
    if (child == 0) {
        FolderLock lock(folder.path());
        _exit(lock.take() == FolderLock::Taken ? 0 : 1);
    }
    int status = -1;
    QCOMPARE(waitpid(child, &status, 0), child);
    QCOMPARE(status, 0);
    FolderLock lock(folder.path());
    QCOMPARE(lock.take(), FolderLock::Taken);
    QVERIFY(lock.wasLeftBehind());
}

void FolderLockTest::isLeftBehindWhenTold()
{
    const GuardedFolder folder;
    {
        FolderLock first(folder.path());
        QCOMPARE(first.take(), FolderLock::Taken);
        first.leaveBehind();
    }
    FolderLock second(folder.path());
    QCOMPARE(second.take(), FolderLock::Taken);
    QVERIFY(second.wasLeftBehind());
}

void FolderLockTest::isGivenBackAsItWasFound()
{
    const GuardedFolder folder;
    FolderLock lock(folder.path());
    QCOMPARE(lock.take(), FolderLock::Taken);
    lock.giveBack();
    QCOMPARE(lock.take(), FolderLock::Taken);
    QVERIFY(!lock.wasLeftBehind());
    lock.giveBack();
    QVERIFY(GuardedFolder::writeTo(folder.path() + "/lock", "1\n"));
    QCOMPARE(lock.take(), FolderLock::Taken);
    QVERIFY(lock.wasLeftBehind());
    lock.giveBack();
    FolderLock another(folder.path());
    QCOMPARE(another.take(), FolderLock::Taken);
    QVERIFY(another.wasLeftBehind());
}

void FolderLockTest::makesTheFolder()
{
    const QTemporaryDir place;
    FolderLock lock(place.filePath("a/b"));
    QCOMPARE(lock.take(), FolderLock::Taken);
    QVERIFY(QFileInfo::exists(place.filePath("a/b/lock")));
}

void FolderLockTest::holdsOnAFullDisk()
{
    const GuardedFolder folder;
    const LowerLimit limit(RLIMIT_FSIZE, 0);
    QVERIFY(limit.isLowered());
    FolderLock first(folder.path());
    QCOMPARE(first.take(), FolderLock::Taken);
    FolderLock second(folder.path());
    QCOMPARE(second.take(), FolderLock::Busy);
    QCOMPARE(second.owner(), qint64(0));
}

void FolderLockTest::noneWhereNothingCanBeWritten()
{
    const GuardedFolder folder;
    QVERIFY(setMode(folder.path(), 0555));
    const WithoutPrivileges without;
    QVERIFY(without.isBound());
    FolderLock lock(folder.path());
    QCOMPARE(lock.take(), FolderLock::None);
    QVERIFY(!lock.wasLeftBehind());
}

void FolderLockTest::noneInPlaceOfALink()
{
    const GuardedFolder folder;
    const QString outside = folder.path() + "/outside";
    QVERIFY(GuardedFolder::writeTo(outside, "theirs"));
    QVERIFY(QFile::link(outside, folder.path() + "/lock"));
    FolderLock lock(folder.path());
    QCOMPARE(lock.take(), FolderLock::None);
    QCOMPARE(GuardedFolder::readFrom(outside), "theirs");
}

REGISTER_TEST(FolderLockTest)
#include "FolderLockTest.moc"
