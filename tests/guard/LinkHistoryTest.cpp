// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The kept states: which, in which order, whose, and what is not taken for one.

#include <sys/stat.h>

#include "GuardedFolder.h"
#include "LinkFile.h"
#include "LinkHistory.h"
#include "ProcessLimits.h"
#include "Test.h"

class LinkHistoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder.reset(new GuardedFolder); }
    void cleanup() { m_folder.reset(); }

    void nothingIsMadeBefore();
    void newestFirst();
    void equalStatesOnce();
    void sameStateWritesNothing();
    void newestHundred();
    void newestStaysNewestWhenTheClockGoesBack();
    void forItsUserAlone();
    void whatWasChangedIsNotGood();
    void whatWasChangedIsKeptAgain();
    void otherFilesAreNoStates_data();
    void otherFilesAreNoStates();
    void folderThatLeadsOutside();
    void folderThatCannotBeWritten();

private:
    LinkHistory history() const { return LinkHistory(m_folder->path(), m_folder->history()); }
    static QByteArray state(int number) { return GuardedFolder::links({QString::number(number)}); }

    /** The numbers of the kept states, newest first. */
    QStringList kept() const
    {
        QStringList numbers;
        for (const LinkHistory::State& kept : history().states())
            numbers += LinkFile::names(LinkHistory::contentOf(kept));
        return numbers;
    }

    QScopedPointer<GuardedFolder> m_folder;
};

void LinkHistoryTest::nothingIsMadeBefore()
{
    QVERIFY(!history().exists());
    QVERIFY(history().states().isEmpty());
    QVERIFY(history().newestGood().isNull());
    QVERIFY(!QFileInfo::exists(m_folder->history()));
}

void LinkHistoryTest::newestFirst()
{
    for (int i = 1; i <= 3; ++i)
        QVERIFY(history().keep(state(i)));
    QCOMPARE(kept(), QStringList({"3", "2", "1"}));
    const QDateTime now = QDateTime::currentDateTimeUtc();
    QVERIFY(qAbs(history().states().constFirst().time.secsTo(now)) < 60);
    QCOMPARE(LinkHistory::contentOf(history().newestGood()), state(3));
    QCOMPARE(LinkHistory::contentOf(history().find(state(2))), state(2));
    QVERIFY(history().find(state(4)).isNull());
}

void LinkHistoryTest::equalStatesOnce()
{
    for (int i : {1, 2, 1, 3, 2})
        QVERIFY(history().keep(state(i)));
    QCOMPARE(kept(), QStringList({"2", "3", "1"}));
}

void LinkHistoryTest::sameStateWritesNothing()
{
    QVERIFY(history().keep(state(1)));
    const QString file = history().states().constFirst().file;
    QVERIFY(history().keep(state(1)));
    QCOMPARE(history().states().constFirst().file, file);
}

void LinkHistoryTest::newestHundred()
{
    for (int i = 1; i <= 103; ++i)
        QVERIFY(history().keep(state(i)));
    QCOMPARE(kept().size(), 100);
    QCOMPARE(kept().constFirst(), "103");
    QCOMPARE(kept().constLast(), "4");
    // An equal one makes room for itself.
    QVERIFY(history().keep(state(50)));
    QCOMPARE(kept().size(), 100);
    QCOMPARE(kept().constLast(), "4");
}

void LinkHistoryTest::newestStaysNewestWhenTheClockGoesBack()
{
    QVERIFY(history().keep(state(1)));
    const LinkHistory::State first = history().states().constFirst();
    QVERIFY(QFile::rename(first.file, m_folder->history() + "/21000101T000000000-" + first.identity + ".xml"));
    QVERIFY(history().keep(state(2)));
    QVERIFY(history().keep(state(3)));
    QCOMPARE(kept(), QStringList({"3", "2", "1"}));
}

void LinkHistoryTest::forItsUserAlone()
{
    QVERIFY(history().keep(state(1)));
    struct stat status = {};
    QCOMPARE(::stat(QFile::encodeName(m_folder->history()).constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 0777), 0700);
    QCOMPARE(::stat(QFile::encodeName(history().states().constFirst().file).constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 0777), 0600);
}

void LinkHistoryTest::whatWasChangedIsNotGood()
{
    for (int i = 1; i <= 3; ++i)
        QVERIFY(history().keep(state(i)));
    const QList<LinkHistory::State> states = history().states();
    QVERIFY(GuardedFolder::writeTo(states.at(0).file, state(4)));
    QVERIFY(GuardedFolder::writeTo(states.at(1).file, state(2).left(30)));
    QVERIFY(LinkHistory::contentOf(states.at(0)).isEmpty());
    QCOMPARE(LinkHistory::contentOf(history().newestGood()), state(1));
}

void LinkHistoryTest::whatWasChangedIsKeptAgain()
{
    QVERIFY(history().keep(state(1)));
    QVERIFY(GuardedFolder::writeTo(history().states().constFirst().file, state(2)));
    QVERIFY(history().newestGood().isNull());
    QVERIFY(history().keep(state(1)));
    QCOMPARE(LinkHistory::contentOf(history().newestGood()), state(1));
}

void LinkHistoryTest::otherFilesAreNoStates_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name :
         {"notes.xml", "a-b.xml", "20261122T101500123-0123.xml", "20269922T101500123-0123456789abcdef.xml",
          "20261122T101500123-0123456789abcdef", "20261122T101500123-0123456789abcdef.xml.new"})
        QTest::newRow(name) << name;
}

void LinkHistoryTest::otherFilesAreNoStates()
{
    QFETCH(QString, name);
    QVERIFY(history().keep(state(1)));
    const QString file = m_folder->history() + '/' + name;
    QVERIFY(GuardedFolder::writeTo(file, state(2)));
    QCOMPARE(kept(), QStringList{"1"});
    QVERIFY(history().keep(state(3)));
    QVERIFY(QFileInfo::exists(file));
}

void LinkHistoryTest::folderThatLeadsOutside()
{
    const QTemporaryDir outside;
    QVERIFY(QFile::link(outside.path(), m_folder->history()));
    QVERIFY(!history().keep(state(1)));
    QVERIFY(QDir(outside.path()).isEmpty());
}

void LinkHistoryTest::folderThatCannotBeWritten()
{
    QVERIFY(history().keep(state(1)));
    QVERIFY(setMode(m_folder->history(), 0555));
    {
        const WithoutPrivileges without;
        QVERIFY(without.isBound());
        QVERIFY(!history().keep(state(2)));
    }
    QVERIFY(setMode(m_folder->history(), 0700));
    QCOMPARE(kept(), QStringList{"1"});
}

REGISTER_TEST(LinkHistoryTest)
#include "LinkHistoryTest.moc"
