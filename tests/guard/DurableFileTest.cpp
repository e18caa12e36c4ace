// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Files that are whole or not there, and stay in their folder.

#include <sys/stat.h>

#include "DurableFile.h"
#include "GuardedFolder.h"
#include "ProcessLimits.h"
#include "Test.h"

class DurableFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void replacesAFile();
    void replacesALinkAndNotWhatItLeadsTo();
    void leavesTheFileWhereItCannotWrite();
    void makesFoldersForTheUserAlone();
    void liesBelow_data();
    void liesBelow();
    void takesThePlaceWithoutWriting_data();
    void takesThePlaceWithoutWriting();
};

void DurableFileTest::replacesAFile()
{
    const GuardedFolder folder;
    QVERIFY(folder.write("old"));
    QVERIFY(DurableFile::write(folder.file(), "new"));
    QCOMPARE(folder.read(), "new");
    QCOMPARE(folder.beside(), QStringList());
    struct stat status = {};
    QCOMPARE(::stat(QFile::encodeName(folder.file()).constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 0777), 0600);
}

void DurableFileTest::replacesALinkAndNotWhatItLeadsTo()
{
    const GuardedFolder folder;
    const QString outside = folder.path() + "/outside";
    QVERIFY(GuardedFolder::writeTo(outside, "theirs"));
    QVERIFY(QFile::link(outside, folder.file()));
    QVERIFY(DurableFile::write(folder.file(), "ours"));
    QCOMPARE(GuardedFolder::readFrom(outside), "theirs");
    QCOMPARE(folder.read(), "ours");
    QVERIFY(!QFileInfo(folder.file()).isSymLink());
}

void DurableFileTest::leavesTheFileWhereItCannotWrite()
{
    const GuardedFolder folder;
    QVERIFY(folder.write("old"));
    const LowerLimit limit(RLIMIT_FSIZE, 2);
    QVERIFY(limit.isLowered());
    QVERIFY(!DurableFile::write(folder.file(), "more than two bytes"));
    QCOMPARE(folder.read(), "old");
    QCOMPARE(folder.beside(), QStringList());
}

void DurableFileTest::makesFoldersForTheUserAlone()
{
    const GuardedFolder folder;
    const QString made = folder.path() + "/a/b";
    QVERIFY(DurableFile::makePrivateFolder(made));
    QVERIFY(DurableFile::makePrivateFolder(made));
    for (const QString& path : {made, folder.path() + "/a"}) {
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(path).constData(), &status), 0);
        QCOMPARE(int(status.st_mode & 0777), 0700);
    }
    QVERIFY(folder.write("a file"));
    QVERIFY(!DurableFile::makePrivateFolder(folder.file()));
    QVERIFY(!DurableFile::makePrivateFolder(folder.file() + "/below"));
}

void DurableFileTest::liesBelow_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isBelow");
    QTest::newRow("in the folder") << "/file" << true;
    QTest::newRow("deeper") << "/in/file" << true;
    QTest::newRow("by a link within") << "/within/file" << true;
    QTest::newRow("by a link outside") << "/outside/file" << false;
    QTest::newRow("by dots") << "/in/../../file" << false;
    QTest::newRow("beside, with the same beginning") << "2/file" << false;
    QTest::newRow("no such folder") << "/nowhere/file" << false;
}

void DurableFileTest::liesBelow()
{
    QFETCH(QString, path);
    const QTemporaryDir place;
    const QString root = place.filePath("root");
    QVERIFY(QDir().mkpath(root + "/in"));
    QVERIFY(QDir().mkpath(root + '2'));
    QVERIFY(QFile::link(root + "/in", root + "/within"));
    QVERIFY(QFile::link(root + '2', root + "/outside"));
    QTEST(DurableFile::liesBelow(root, root + path), "isBelow");
}

void DurableFileTest::takesThePlaceWithoutWriting_data()
{
    QTest::addColumn<bool>("isThere");
    QTest::newRow("of a file") << true;
    QTest::newRow("of none") << false;
}

void DurableFileTest::takesThePlaceWithoutWriting()
{
    QFETCH(bool, isThere);
    const GuardedFolder folder;
    const QString kept = folder.path() + "/kept";
    QVERIFY(GuardedFolder::writeTo(kept, "kept"));
    QVERIFY(!isThere || folder.write("bad"));
    const LowerLimit limit(RLIMIT_FSIZE, 0);
    QVERIFY(limit.isLowered());
    QVERIFY(DurableFile::takePlaceOf(kept, folder.file()));
    QCOMPARE(folder.read(), "kept");
    QCOMPARE(GuardedFolder::readFrom(kept), "kept");
    QCOMPARE(folder.beside(), QStringList());
    // Twice does no harm.
    QVERIFY(DurableFile::takePlaceOf(kept, folder.file()));
    QCOMPARE(folder.read(), "kept");
    QCOMPARE(folder.beside(), QStringList());
    QVERIFY(!DurableFile::takePlaceOf(folder.path() + "/none", folder.file()));
    QCOMPARE(folder.read(), "kept");
}

REGISTER_TEST(DurableFileTest)
#include "DurableFileTest.moc"
