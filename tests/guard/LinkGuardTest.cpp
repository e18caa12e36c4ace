// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The guard while the program runs: saves of the plug-in, and what others do to the file.

#include <QSignalSpy>

#include "GuardedFolder.h"
#include "LinkGuard.h"
#include "ProcessLimits.h"
#include "Test.h"

using Event = LinkGuard::Event;

class LinkGuardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void everySaveIsKept();
    void saveRightAfterAnotherIsKept();
    void mereReadIsNoSave();
    void stateBeforeASaveIsKeptWhileItIsWritten();
    void failedSave_data();
    void failedSave();
    void failedSaveOnAFullDisk();
    void failedSaveThatWroteNothing();
    void failedSaveWithNowhereToPutTheLinks();
    void firstLinkThatCouldNotBeSaved();
    void changedByAnother();
    void changedByAnotherInPieces();
    void changedByAnotherAndSavedOver();
    void damagedByAnother_data();
    void damagedByAnother();
    void folderGoneAndBack();
    void goingBackIsANewState();
    void goingBackThatFails();

private:
    /** What the plug-in does: it asks for the folder, removes the file and writes it. */
    void save(const QByteArray& content);
    QStringList kept() const;

    QScopedPointer<GuardedFolder> m_folder;
    QScopedPointer<LinkGuard> m_guard;
    QScopedPointer<QSignalSpy> m_saved, m_failed, m_changed, m_damaged;
    const QByteArray m_before = GuardedFolder::links({"A"});
    const QByteArray m_after = GuardedFolder::links({"A", "B"});
    const QByteArray m_theirs = GuardedFolder::links({"A", "C"});
};

void LinkGuardTest::init()
{
    m_folder.reset(new GuardedFolder);
    QVERIFY(m_folder->write(m_before));
    m_guard.reset(new LinkGuard(m_folder->path()));
    m_guard->start(false);
    m_guard->watch();
    m_saved.reset(new QSignalSpy(m_guard.data(), &LinkGuard::saved));
    m_failed.reset(new QSignalSpy(m_guard.data(), &LinkGuard::saveFailed));
    m_changed.reset(new QSignalSpy(m_guard.data(), &LinkGuard::changedOutside));
    m_damaged.reset(new QSignalSpy(m_guard.data(), &LinkGuard::damagedOutside));
}

void LinkGuardTest::cleanup()
{
    m_guard.reset();
    m_folder.reset();
}

void LinkGuardTest::save(const QByteArray& content)
{
    m_guard->beforeUse(LinkGuard::Saving);
    QVERIFY(m_folder->write(content));
}

/** The names of the links in each kept state, newest first. */
QStringList LinkGuardTest::kept() const
{
    QStringList states;
    const QList<LinkHistory::State> all = m_guard->history().states();
    for (const LinkHistory::State& state : all)
        states.append(LinkFile::names(LinkHistory::contentOf(state)).join(' '));
    return states;
}

void LinkGuardTest::everySaveIsKept()
{
    QCOMPARE(kept(), QStringList{"A"});
    save(m_after);
    QTRY_COMPARE(m_saved->size(), 1);
    QCOMPARE(kept(), QStringList({"A B", "A"}));
    save(m_before);
    QTRY_COMPARE(m_saved->size(), 2);
    QCOMPARE(kept(), QStringList({"A", "A B"}));
    QVERIFY(m_failed->isEmpty() && m_changed->isEmpty() && m_damaged->isEmpty());
}

void LinkGuardTest::saveRightAfterAnotherIsKept()
{
    // As by a key that is held down: there is no quiet between the two.
    save(m_after);
    QCoreApplication::sendPostedEvents(m_guard.data(), QEvent::MetaCall);
    m_guard->beforeUse(LinkGuard::Saving);
    QCOMPARE(kept(), QStringList({"A B", "A"}));
    QVERIFY(m_folder->write(m_theirs));
    QTRY_COMPARE(m_saved->size(), 2);
    QCOMPARE(kept(), QStringList({"A C", "A B", "A"}));
}

void LinkGuardTest::mereReadIsNoSave()
{
    m_guard->beforeUse(LinkGuard::Reading);
    QCoreApplication::processEvents();
    QVERIFY(m_saved->isEmpty() && m_failed->isEmpty() && m_changed->isEmpty());
    QCOMPARE(kept(), QStringList{"A"});
}

void LinkGuardTest::stateBeforeASaveIsKeptWhileItIsWritten()
{
    // Another program's, which nobody has looked at yet.
    QVERIFY(m_folder->write(m_theirs));
    m_guard->beforeUse(LinkGuard::Saving);
    QCOMPARE(kept(), QStringList({"A C", "A"}));
}

void LinkGuardTest::failedSave_data()
{
    QTest::addColumn<QByteArray>("left");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("a part") << m_after.left(40);
    QTest::newRow("the new beginning and the old end") << m_after + m_before.right(20);
}

void LinkGuardTest::failedSave()
{
    QFETCH(QByteArray, left);
    save(left);
    QTRY_COMPARE(m_failed->size(), 1);
    const Event event = m_failed->constFirst().constFirst().value<Event>();
    QCOMPARE(event.kind, Event::PutBack);
    QCOMPARE(event.links, 1);
    QCOMPARE(m_folder->read(), m_before);
    QCOMPARE(m_folder->beside(), QStringList());
    QCOMPARE(kept(), QStringList{"A"});
    // And it goes on as before.
    save(m_after);
    QTRY_COMPARE(m_saved->size(), 1);
}

void LinkGuardTest::failedSaveOnAFullDisk()
{
    save(m_after.left(40));
    const LowerLimit limit(RLIMIT_FSIZE, 0);
    QVERIFY(limit.isLowered());
    QTRY_COMPARE(m_failed->size(), 1);
    QCOMPARE(m_failed->constFirst().constFirst().value<Event>().kind, Event::PutBack);
    QCOMPARE(m_folder->read(), m_before);
    QCOMPARE(kept(), QStringList{"A"});
}

void LinkGuardTest::failedSaveThatWroteNothing()
{
    m_guard->beforeUse(LinkGuard::Saving);
    QTRY_COMPARE(m_failed->size(), 1);
    const Event event = m_failed->constFirst().constFirst().value<Event>();
    QCOMPARE(event.kind, Event::PutBack);
    QCOMPARE(event.condition, LinkFile::Good);
    QCOMPARE(m_folder->read(), m_before);
}

void LinkGuardTest::failedSaveWithNowhereToPutTheLinks()
{
    const QString folder = QFileInfo(m_folder->file()).path();
    m_guard->beforeUse(LinkGuard::Saving);
    QVERIFY(QDir(folder).removeRecursively());
    QVERIFY(GuardedFolder::writeTo(folder, "in the way"));
    QTRY_COMPARE(m_failed->size(), 1);
    QCOMPARE(m_failed->constFirst().constFirst().value<Event>().kind, Event::Lost);
    QVERIFY(!m_guard->finish());
    // It is tried again at the end.
    QVERIFY(QFile::remove(folder));
    QVERIFY(m_guard->finish());
    QCOMPARE(m_folder->read(), m_before);
}

void LinkGuardTest::firstLinkThatCouldNotBeSaved()
{
    m_guard.reset();
    m_folder.reset(new GuardedFolder);
    m_guard.reset(new LinkGuard(m_folder->path()));
    m_guard->start(false);
    m_guard->watch();
    QSignalSpy failed(m_guard.data(), &LinkGuard::saveFailed);
    save(m_after.left(40));
    QTRY_COMPARE(failed.size(), 1);
    // No links before, none now; what was written is no use to anybody.
    QCOMPARE(failed.constFirst().constFirst().value<Event>().links, 0);
    QVERIFY(LinkFile::names(m_folder->read()).isEmpty());
}

void LinkGuardTest::changedByAnother()
{
    QVERIFY(m_folder->write(m_theirs));
    QTRY_COMPARE(m_changed->size(), 1);
    QCOMPARE(m_changed->constFirst(), QVariantList({m_theirs, m_before, false}));
    QCOMPARE(kept(), QStringList({"A C", "A"}));
    QCOMPARE(m_folder->read(), m_theirs);
    // In place, and a second time.
    QFile file(m_folder->file());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(m_after) == m_after.size());
    file.close();
    QTRY_COMPARE(m_changed->size(), 2);
    QCOMPARE(m_changed->constLast(), QVariantList({m_after, m_theirs, false}));
    QVERIFY(m_saved->isEmpty() && m_failed->isEmpty() && m_damaged->isEmpty());
}

void LinkGuardTest::changedByAnotherInPieces()
{
    QFile file(m_folder->file());
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    for (char character : m_theirs) {
        QVERIFY(file.putChar(character));
        QCoreApplication::processEvents();
    }
    file.close();
    QTRY_COMPARE(m_changed->size(), 1);
    QVERIFY(m_damaged->isEmpty());
}

void LinkGuardTest::changedByAnotherAndSavedOver()
{
    QVERIFY(m_folder->write(m_theirs));
    save(m_after);
    QTRY_COMPARE(m_changed->size(), 1);
    QCOMPARE(m_changed->constFirst(), QVariantList({m_theirs, m_after, true}));
    QCOMPARE(kept(), QStringList({"A B", "A C", "A"}));
    QCOMPARE(m_folder->read(), m_after);
}

void LinkGuardTest::damagedByAnother_data()
{
    QTest::addColumn<QByteArray>("left");
    QTest::addColumn<int>("condition");
    QTest::newRow("removed") << QByteArray("remove") << int(LinkFile::Missing);
    QTest::newRow("emptied") << QByteArray() << int(LinkFile::Empty);
    QTest::newRow("cut") << m_before.left(40) << int(LinkFile::Damaged);
}

void LinkGuardTest::damagedByAnother()
{
    QFETCH(QByteArray, left);
    QFETCH(int, condition);
    if (left == "remove")
        QVERIFY(QFile::remove(m_folder->file()));
    else
        QVERIFY(m_folder->write(left));
    QTRY_COMPARE(m_damaged->size(), 1);
    const Event event = m_damaged->constFirst().constFirst().value<Event>();
    QCOMPARE(event.kind, Event::PutBack);
    QCOMPARE(int(event.condition), condition);
    QCOMPARE(m_folder->read(), m_before);
    QCOMPARE(event.setAside.isEmpty() ? QByteArray("remove") : GuardedFolder::readFrom(event.setAside), left);
}

void LinkGuardTest::folderGoneAndBack()
{
    const QString folder = QFileInfo(m_folder->file()).path();
    QVERIFY(QDir(folder).removeRecursively());
    QTRY_COMPARE(m_damaged->size(), 1);
    QCOMPARE(m_folder->read(), m_before);
    // It is watched again.
    QVERIFY(m_folder->write(m_theirs));
    QTRY_COMPARE(m_changed->size(), 1);
}

void LinkGuardTest::goingBackIsANewState()
{
    save(m_after);
    QTRY_COMPARE(m_saved->size(), 1);
    QVERIFY(m_guard->goBackTo(m_before));
    QCOMPARE(m_folder->read(), m_before);
    QCOMPARE(kept(), QStringList({"A", "A B"}));
    QVERIFY(m_guard->goBackTo(m_theirs));
    QCOMPARE(kept(), QStringList({"A C", "A", "A B"}));
    // It was no one else's doing.
    QTest::qWait(1200);
    QVERIFY(m_changed->isEmpty() && m_damaged->isEmpty() && m_failed->isEmpty());
}

void LinkGuardTest::goingBackThatFails()
{
    const LowerLimit limit(RLIMIT_FSIZE, 0);
    QVERIFY(limit.isLowered());
    QVERIFY(!m_guard->goBackTo(m_theirs));
    QCOMPARE(m_folder->read(), m_before);
}

REGISTER_TEST(LinkGuardTest)
#include "LinkGuardTest.moc"
