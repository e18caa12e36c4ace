// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the guard finds before any plug-in reads the links, and what it does about it.

#include <QSignalSpy>

#include <sys/stat.h>

#include "GuardedFolder.h"
#include "LinkGuard.h"
#include "Test.h"

using Event = LinkGuard::Event;

class LinkGuardStartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder.reset(new GuardedFolder); }
    void cleanup() { m_folder.reset(); }

    void firstStart();
    void firstStartAgain();
    void goodFileIsLeftAlone();
    void startsWithOtherLinks_data();
    void startsWithOtherLinks();
    void doesNotStartWithWhatCannotBeKept();
    void missingFile_data();
    void missingFile();
    void removedFileIsToldOnce();
    void badFileGivesWayToTheStateBefore_data() { addBadFiles(); }
    void badFileGivesWayToTheStateBefore();
    void badFileWithoutHistory_data() { addBadFiles(); }
    void badFileWithoutHistory();
    void emptyFileWithoutHistoryIsNoLoss();
    void setAsideTwice();
    void nothingIsWrittenOutside();

private:
    static void addBadFiles();
    void makeBad(const QString& what) const;
    void runOnce(const QByteArray& content) const;

    QScopedPointer<GuardedFolder> m_folder;
    const QByteArray m_links = GuardedFolder::links({"A", "B", "C"});
};

void LinkGuardStartTest::addBadFiles()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<int>("condition");
    QTest::newRow("cut") << "cut" << int(LinkFile::Damaged);
    QTest::newRow("large") << "large" << int(LinkFile::TooLarge);
    QTest::newRow("pipe") << "pipe" << int(LinkFile::NotRegular);
    QTest::newRow("folder") << "folder" << int(LinkFile::NotRegular);
}

void LinkGuardStartTest::makeBad(const QString& what) const
{
    QFile::remove(m_folder->file());
    QFile file(m_folder->file());
    if (what == "pipe")
        QCOMPARE(mkfifo(QFile::encodeName(file.fileName()).constData(), 0600), 0);
    else if (what == "folder")
        QVERIFY(QDir().mkdir(file.fileName()));
    else if (what == "cut")
        QVERIFY(m_folder->write(m_links.left(m_links.size() / 2)));
    else
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(LinkFile::largest + 1));
}

/** A run of the program that ends with these links. */
void LinkGuardStartTest::runOnce(const QByteArray& content) const
{
    LinkGuard guard(m_folder->path());
    guard.start(false);
    QVERIFY(m_folder->write(content));
    guard.watch();
}

void LinkGuardStartTest::firstStart()
{
    LinkGuard guard(m_folder->path());
    QCOMPARE(guard.start(false).kind, Event::FirstStart);
    // Nothing is there that would say otherwise, should the program be killed now.
    QVERIFY(!QFileInfo::exists(m_folder->history()));
    guard.watch();
    QVERIFY(QFileInfo::exists(m_folder->history()));
    LinkGuard next(m_folder->path());
    QCOMPARE(next.start(false).kind, Event::Nothing);
}

void LinkGuardStartTest::firstStartAgain()
{
    for (int i = 0; i < 2; ++i) {
        LinkGuard guard(m_folder->path());
        QCOMPARE(guard.start(false).kind, Event::FirstStart);
        guard.repeatFirstStart();
        guard.watch();
        QVERIFY(!guard.history().exists());
    }
    // Links are kept all the same.
    LinkGuard guard(m_folder->path());
    guard.start(false);
    guard.repeatFirstStart();
    QVERIFY(m_folder->write(m_links));
    guard.watch();
    QCOMPARE(guard.history().states().size(), 1);
}

void LinkGuardStartTest::goodFileIsLeftAlone()
{
    runOnce(GuardedFolder::links({"Old"}));
    QVERIFY(m_folder->write(m_links));
    for (bool wasInterrupted : {false, true}) {
        LinkGuard guard(m_folder->path());
        QCOMPARE(guard.start(wasInterrupted).kind, Event::Nothing);
        QVERIFY(guard.isSafeToRead());
    }
    QCOMPARE(m_folder->read(), m_links);
}

void LinkGuardStartTest::startsWithOtherLinks_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<int>("states");
    QTest::newRow("in place of a file that nobody has kept") << m_links << 2;
    QTest::newRow("without a file") << QByteArray() << 1;
}

void LinkGuardStartTest::startsWithOtherLinks()
{
    QFETCH(const QByteArray, before);
    const QByteArray others = GuardedFolder::links({"Others"});
    QVERIFY(before.isEmpty() || m_folder->write(before));
    LinkGuard guard(m_folder->path());
    guard.start(false);
    const QSignalSpy changed(&guard, &LinkGuard::stateChanged);
    QVERIFY(guard.startWith(others));
    QCOMPARE(m_folder->read(), others);
    // Also before anybody watches: a kill may come first.
    const QList<LinkHistory::State> states = guard.history().states();
    QTEST(int(states.size()), "states");
    QCOMPARE(LinkHistory::contentOf(states.first()), others);
    QCOMPARE(LinkHistory::contentOf(states.last()), before.isEmpty() ? others : before);
    guard.watch();
    QCOMPARE(changed.size(), 0);
    QCOMPARE(guard.current(), others);
}

void LinkGuardStartTest::doesNotStartWithWhatCannotBeKept()
{
    QVERIFY(m_folder->write(m_links));
    // No folder can be made in its place.
    QVERIFY(GuardedFolder::writeTo(m_folder->history(), "x"));
    LinkGuard guard(m_folder->path());
    guard.start(false);
    QVERIFY(!guard.startWith(GuardedFolder::links({"Others"})));
    QCOMPARE(m_folder->read(), m_links);
}

void LinkGuardStartTest::missingFile_data()
{
    QTest::addColumn<bool>("wasInterrupted");
    QTest::addColumn<int>("kind");
    QTest::newRow("after a kill") << true << int(Event::PutBack);
    QTest::newRow("after an orderly end") << false << int(Event::Gone);
}

void LinkGuardStartTest::missingFile()
{
    QFETCH(bool, wasInterrupted);
    QFETCH(int, kind);
    runOnce(m_links);
    QVERIFY(QFile::remove(m_folder->file()));
    LinkGuard guard(m_folder->path());
    const Event event = guard.start(wasInterrupted);
    QCOMPARE(int(event.kind), kind);
    QCOMPARE(event.condition, LinkFile::Missing);
    QCOMPARE(event.links, 3);
    QCOMPARE(event.setAside, QString());
    QCOMPARE(m_folder->read(), wasInterrupted ? m_links : QByteArray("no file"));
    if (!wasInterrupted)
        QVERIFY(guard.bringBack());
    QCOMPARE(m_folder->read(), m_links);
}

void LinkGuardStartTest::removedFileIsToldOnce()
{
    runOnce(m_links);
    QVERIFY(QFile::remove(m_folder->file()));
    QCOMPARE(LinkGuard(m_folder->path()).start(false).kind, Event::Gone);
    QCOMPARE(LinkGuard(m_folder->path()).start(false).kind, Event::Nothing);
    QVERIFY(!QFileInfo::exists(m_folder->file()));
}

void LinkGuardStartTest::badFileGivesWayToTheStateBefore()
{
    QFETCH(QString, what);
    QFETCH(int, condition);
    runOnce(m_links);
    makeBad(what);
    LinkGuard guard(m_folder->path());
    const Event event = guard.start(false);
    QCOMPARE(event.kind, Event::PutBack);
    QCOMPARE(int(event.condition), condition);
    QCOMPARE(event.links, 3);
    QCOMPARE(m_folder->read(), m_links);
    QVERIFY(guard.isSafeToRead());
    QCOMPARE(m_folder->beside(), QStringList(QFileInfo(event.setAside).fileName()));
    QCOMPARE(int(LinkFile::look(event.setAside).condition), condition);
}

void LinkGuardStartTest::badFileWithoutHistory()
{
    QFETCH(QString, what);
    QFETCH(int, condition);
    makeBad(what);
    LinkGuard guard(m_folder->path());
    const Event event = guard.start(false);
    QCOMPARE(event.kind, Event::NothingKept);
    QVERIFY(guard.isSafeToRead());
    QCOMPARE(int(LinkFile::look(event.setAside).condition), condition);
    // The links before the damage can still be read, and the next save would drop the others.
    QCOMPARE(m_folder->read(), what == "cut" ? GuardedFolder::readFrom(event.setAside) : QByteArray("no file"));
}

void LinkGuardStartTest::emptyFileWithoutHistoryIsNoLoss()
{
    QVERIFY(m_folder->write(" \n"));
    QCOMPARE(LinkGuard(m_folder->path()).start(true).kind, Event::Nothing);
    QCOMPARE(m_folder->beside(), QStringList());
}

void LinkGuardStartTest::setAsideTwice()
{
    runOnce(m_links);
    for (const char* bad : {"first", "second"}) {
        QVERIFY(m_folder->write(bad));
        const Event event = LinkGuard(m_folder->path()).start(false);
        QCOMPARE(GuardedFolder::readFrom(event.setAside), bad);
    }
    QCOMPARE(m_folder->beside().size(), 2);
}

void LinkGuardStartTest::nothingIsWrittenOutside()
{
    const QTemporaryDir outside;
    runOnce(m_links);
    QVERIFY(QDir(m_folder->path() + "/plugins").removeRecursively());
    QVERIFY(QDir().mkdir(outside.filePath("QuickLinkUIPlugin")));
    QVERIFY(QFile::link(outside.path(), m_folder->path() + "/plugins"));
    QCOMPARE(LinkGuard(m_folder->path()).start(true).kind, Event::Lost);
    QVERIFY(QDir(outside.filePath("QuickLinkUIPlugin")).isEmpty());
}

REGISTER_TEST(LinkGuardStartTest)
#include "LinkGuardStartTest.moc"
