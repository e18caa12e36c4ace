// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What a look at the links' file finds, and that the look waits for nobody.

#include <sys/stat.h>

#include "GuardedFolder.h"
#include "LinkFile.h"
#include "ProcessLimits.h"
#include "Test.h"

class LinkFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void content_data();
    void content();
    void notAFile_data();
    void notAFile();
    void unreadable();
    void tooLarge();
    void damagedLine();
    void looksOnlyIntoWhatIsUnknown();
    void addsTheLinks();
    void names_data();
    void names();
    void stampTellsAChange();
};

void LinkFileTest::content_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("condition");
    const QByteArray good = GuardedFolder::links({"A", "B"});
    QTest::newRow("links") << good << int(LinkFile::Good);
    QTest::newRow("no links") << QByteArray("<a/>") << int(LinkFile::Good);
    QTest::newRow("a byte order mark") << QByteArray("\xef\xbb\xbf<a/>") << int(LinkFile::Good);
    QTest::newRow("nothing") << QByteArray() << int(LinkFile::Empty);
    QTest::newRow("blanks") << QByteArray(" \n\t\n") << int(LinkFile::Empty);
    QTest::newRow("only the declaration") << QByteArray("<?xml version=\"1.0\"?>") << int(LinkFile::Damaged);
    QTest::newRow("cut") << good.left(good.size() - 4) << int(LinkFile::Damaged);
    QTest::newRow("something behind the end") << good + "<b/>" << int(LinkFile::Damaged);
    QTest::newRow("zeros in place of blocks") << QByteArray(4096, '\0') << int(LinkFile::Damaged);
    QTest::newRow("zeros at the end") << good + QByteArray(512, '\0') << int(LinkFile::Damaged);
    QTest::newRow("a byte of Latin-1") << GuardedFolder::links({"A"}).replace("\"A\"", "\"Caf\xe9\"")
                                       << int(LinkFile::Damaged);
    // The plug-in opens the file in text mode, which takes a byte out of every carriage return of UTF-16.
    const QByteArray lineEnds = "\xff\xfe" + QByteArray("<\0a\0>\0\r\0\n\0<\0/\0a\0>\0", 18);
    QTest::newRow("UTF-16 with carriage returns") << lineEnds << int(LinkFile::Damaged);
    QTest::newRow("UTF-16 without") << QByteArray(lineEnds).remove(8, 2) << int(LinkFile::Good);
    QTest::newRow("an element in the counter")
        << QByteArray("<a><CurrentID>1<b/></CurrentID></a>") << int(LinkFile::Damaged);
    QTest::newRow("an element in what shows the page")
        << QByteArray("<a><Visible><b/></Visible></a>") << int(LinkFile::Damaged);
    QTest::newRow("an element in a counter behind the menu")
        << QByteArray("<a><menu/><CurrentID><b/></CurrentID></a>") << int(LinkFile::Good);
    QTest::newRow("no XML") << QByteArray("links") << int(LinkFile::Damaged);
    QTest::newRow("an entity that is not declared") << QByteArray("<a>&b;</a>") << int(LinkFile::Damaged);
}

void LinkFileTest::content()
{
    QFETCH(QByteArray, content);
    QFETCH(int, condition);
    const GuardedFolder folder;
    QVERIFY(folder.write(content));
    const LinkFile file = LinkFile::look(folder.file());
    QCOMPARE(int(file.condition), condition);
    QCOMPARE(file.content, content);
    QCOMPARE(folder.read(), content);
}

void LinkFileTest::notAFile_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<int>("condition");
    QTest::newRow("nothing") << "nothing" << int(LinkFile::Missing);
    QTest::newRow("no folder") << "no folder" << int(LinkFile::Missing);
    QTest::newRow("pipe") << "pipe" << int(LinkFile::NotRegular);
    QTest::newRow("folder") << "folder" << int(LinkFile::NotRegular);
    QTest::newRow("device") << "/dev/zero" << int(LinkFile::NotRegular);
    QTest::newRow("dead link") << "/nowhere/at/all" << int(LinkFile::Missing);
    QTest::newRow("link to itself") << "config.xml" << int(LinkFile::Missing);
}

void LinkFileTest::notAFile()
{
    QFETCH(QString, what);
    const GuardedFolder folder;
    if (what == "pipe")
        QCOMPARE(mkfifo(QFile::encodeName(folder.file()).constData(), 0600), 0);
    else if (what == "folder")
        QVERIFY(QDir().mkdir(folder.file()));
    else if (what == "no folder")
        QVERIFY(QDir(folder.path()).removeRecursively());
    else if (what != "nothing")
        QVERIFY(QFile::link(what, folder.file()));
    QTEST(int(LinkFile::look(folder.file()).condition), "condition");
}

void LinkFileTest::unreadable()
{
    const GuardedFolder folder;
    QVERIFY(folder.write(GuardedFolder::links({"A"})));
    QVERIFY(setMode(folder.file(), 0));
    const WithoutPrivileges without;
    QVERIFY(without.isBound());
    QCOMPARE(LinkFile::look(folder.file()).condition, LinkFile::Unreadable);
}

void LinkFileTest::tooLarge()
{
    const GuardedFolder folder;
    QFile file(folder.file());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(LinkFile::largest));
    QCOMPARE(LinkFile::look(folder.file()).condition, LinkFile::Damaged);
    QVERIFY(file.resize(LinkFile::largest + 1));
    QCOMPARE(LinkFile::look(folder.file()).condition, LinkFile::TooLarge);
}

void LinkFileTest::damagedLine()
{
    QCOMPARE(LinkFile::ofContent("<a>\n<b>\n</c>\n</a>").line, qint64(3));
}

/** What is told to be good counts as that without a look, so that a look shows. */
void LinkFileTest::looksOnlyIntoWhatIsUnknown()
{
    const GuardedFolder folder;
    QVERIFY(folder.write("<a>"));
    QCOMPARE(LinkFile::look(folder.file(), "<a>").condition, LinkFile::Good);
    QCOMPARE(LinkFile::look(folder.file(), "<b>").condition, LinkFile::Damaged);
    QVERIFY(folder.write(QByteArray()));
    QCOMPARE(LinkFile::look(folder.file(), QByteArray()).condition, LinkFile::Empty);
}

void LinkFileTest::addsTheLinks()
{
    const QByteArray content = GuardedFolder::links({"A", "B"});
    QList<LinkItems::Fields> links;
    QVERIFY(LinkFile::ofContent(content, &links).isGood());
    QCOMPARE(links, LinkItems::of(content));
    QCOMPARE(int(links.size()), 2);
}

void LinkFileTest::names_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("in order") << GuardedFolder::links({"B", "A", "B"}) << QStringList{"B", "A", "B"};
    QTest::newRow("none") << GuardedFolder::links({}) << QStringList();
    QTest::newRow("hidden") << QByteArray("<menu><item name='A' visible='0'/><item name='B'/></menu>") << QStringList();
    QTest::newRow("item of the types") << QByteArray("<a><type><item name='A' visible='1'/></type></a>")
                                       << QStringList();
    QTest::newRow("before the damage") << QByteArray("<menu><item name='A' visible='1'/><item name='B'")
                                       << QStringList{"A"};
}

void LinkFileTest::names()
{
    QFETCH(QByteArray, content);
    QTEST(LinkFile::names(content), "names");
}

void LinkFileTest::stampTellsAChange()
{
    const GuardedFolder folder;
    QCOMPARE(FileStamp::of(folder.file()).size, qint64(-1));
    QVERIFY(folder.write("1"));
    const FileStamp before = FileStamp::of(folder.file());
    QVERIFY(before == FileStamp::of(folder.file()));
    QFile file(folder.file());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write("22"), qint64(2));
    file.close();
    QVERIFY(before != FileStamp::of(folder.file()));
}

REGISTER_TEST(LinkFileTest)
#include "LinkFileTest.moc"
