// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include <QSignalSpy>
#include <QtTest>

#include "ConnectionMonitor.h"
#include "PlayedSource.h"

class TestConnectionMonitor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void tellsUpOnce();
    void tellsWhatIsTrueAtThatMoment();
    void wasUpBefore();
    void asksOnceMoreBeforeItTells();
    void tellsDownWhenItStaysAway();
    void knowsSinceWhen();
    void userTellsWithoutService();
    void userIsNotAskedWhileThereIsAService();
    void usersWordEndsWhenTheServiceComes();
    void serviceLostAndReturned();
    void sleepIsPassedOn();
    void waitsAMinuteAfterSleep();

private:
    void start();

    std::unique_ptr<PlayedSource> m_made;
    PlayedSource* m_source = nullptr; ///< the monitor's from start() on
    std::unique_ptr<ConnectionMonitor> m_monitor;
    QStringList m_told;
};

void TestConnectionMonitor::init()
{
    m_told.clear();
    m_made = std::make_unique<PlayedSource>();
    m_source = m_made.get();
    m_monitor = std::make_unique<ConnectionMonitor>();
    connect(m_monitor.get(), &ConnectionMonitor::announced, this, [this](bool isUp, const QString& reason) {
        m_told.append((isUp ? QStringLiteral("UP ") : QStringLiteral("DOWN ")) + reason);
    });
}

void TestConnectionMonitor::cleanup()
{
    m_monitor.reset();
}

void TestConnectionMonitor::start()
{
    m_monitor->start(std::move(m_made));
    QCOMPARE(m_told, QStringList());
}

void TestConnectionMonitor::tellsUpOnce()
{
    start();
    const QSignalSpy changed(m_monitor.get(), &ConnectionMonitor::changed);
    m_source->become(QStringLiteral("a"));
    QCOMPARE(changed.size(), 1);
    m_source->become(QStringLiteral("a"));
    Q_EMIT m_source->changed();
    QCOMPARE(m_told, QStringList(QStringLiteral("UP up and in the Internet")));
}

void TestConnectionMonitor::tellsWhatIsTrueAtThatMoment()
{
    start();
    QList<bool> states;
    connect(m_monitor.get(), &ConnectionMonitor::announced, this,
            [this, &states] { states.append(m_monitor->state().isUp); });
    m_source->become(QStringLiteral("a"));
    QCOMPARE(states, QList<bool>({true}));
}

void TestConnectionMonitor::wasUpBefore()
{
    m_source->become(QStringLiteral("a"));
    start();
    QVERIFY(m_monitor->state().isUp);
    QVERIFY(!m_monitor->upSince().isValid());
}

void TestConnectionMonitor::asksOnceMoreBeforeItTells()
{
    start();
    m_source->current.isUp = true;
    m_source->current.id = QStringLiteral("a");
    m_source->current.reach = ConnectionState::Reach::Full;
    m_source->stillUp = false;
    Q_EMIT m_source->changed();
    QCOMPARE(m_told, QStringList());
    m_source->become(QString());
    m_source->become(QStringLiteral("a"));
    QCOMPARE(m_told.size(), 1);
}

void TestConnectionMonitor::tellsDownWhenItStaysAway()
{
    start();
    m_source->become(QStringLiteral("a"));
    m_told.clear();
    m_source->become(QString());
    QVERIFY(!m_monitor->state().isUp);
    QCOMPARE(m_told, QStringList());
    QTRY_COMPARE_WITH_TIMEOUT(m_told, QStringList(QStringLiteral("DOWN down")), 30000);
}

void TestConnectionMonitor::knowsSinceWhen()
{
    start();
    QVERIFY(!m_monitor->upSince().isValid());
    const QDateTime before = QDateTime::currentDateTime();
    m_source->become(QStringLiteral("a"));
    const QDateTime since = m_monitor->upSince();
    QVERIFY(since >= before && since <= QDateTime::currentDateTime());
    m_source->become(QStringLiteral("a"), ConnectionState::Reach::Portal);
    QCOMPARE(m_monitor->upSince(), since);
    m_source->become(QString());
    QVERIFY(!m_monitor->upSince().isValid());
}

void TestConnectionMonitor::userTellsWithoutService()
{
    ConnectionMonitor monitor;
    QSignalSpy told(&monitor, &ConnectionMonitor::announced);
    monitor.start(nullptr);
    QVERIFY(monitor.isManual());
    QVERIFY(!monitor.lacksService());
    monitor.setManuallyUp(true);
    monitor.setManuallyUp(true);
    QCOMPARE(told.size(), 1);
    QVERIFY(monitor.state().isUp);
    monitor.setManuallyUp(false);
    QVERIFY(!monitor.state().isUp);
}

void TestConnectionMonitor::userIsNotAskedWhileThereIsAService()
{
    start();
    QVERIFY(!m_monitor->isManual());
    m_monitor->setManuallyUp(true);
    QVERIFY(!m_monitor->state().isUp);
    m_source->setAvailable(false);
    QVERIFY(m_monitor->isManual());
    QVERIFY(m_monitor->lacksService());
    QVERIFY(!m_monitor->state().isUp);
    QCOMPARE(m_told, QStringList());
}

void TestConnectionMonitor::usersWordEndsWhenTheServiceComes()
{
    m_source->available = false;
    start();
    m_monitor->setManuallyUp(true);
    QCOMPARE(m_told, QStringList(QStringLiteral("UP up and in the Internet")));
    m_source->setAvailable(true);
    QVERIFY(!m_monitor->state().isUp);
    m_source->setAvailable(false);
    QVERIFY(!m_monitor->state().isUp);
}

void TestConnectionMonitor::serviceLostAndReturned()
{
    start();
    m_source->become(QStringLiteral("a"));
    m_told.clear();
    m_source->setAvailable(false);
    QVERIFY(!m_monitor->state().isUp);
    m_source->setAvailable(true);
    QVERIFY(m_monitor->state().isUp);
    QCOMPARE(m_told, QStringList());
    m_source->setAvailable(false);
    m_source->current = ConnectionState();
    m_source->setAvailable(true);
    QCOMPARE(m_told, QStringList(QStringLiteral("DOWN down since the service is back")));
    m_source->become(QStringLiteral("a"));
    QCOMPARE(m_told.size(), 2);
    m_source->setAvailable(false);
    m_source->current.id = QStringLiteral("b");
    m_source->setAvailable(true);
    QCOMPARE(m_told.size(), 3);
}

void TestConnectionMonitor::sleepIsPassedOn()
{
    start();
    m_source->become(QStringLiteral("a"));
    m_told.clear();
    m_monitor->fallAsleep();
    m_source->become(QString());
    m_monitor->wakeUp();
    m_source->become(QStringLiteral("b"));
    m_source->become(QStringLiteral("a"));
    // Another connection than before sleep is told; that "a" took over from it is not.
    QCOMPARE(m_told, QStringList(QStringLiteral("UP up and in the Internet")));
}

void TestConnectionMonitor::waitsAMinuteAfterSleep()
{
    start();
    const QTimer* const deadline = m_monitor->findChild<QTimer*>();
    QTest::qSleep(2); // The clock of the monitor must have begun to count.
    m_source->become(QStringLiteral("a"));
    m_source->become(QString());
    QVERIFY(deadline->isActive());
    m_monitor->fallAsleep();
    QVERIFY(!deadline->isActive());
    m_monitor->wakeUp();
    QVERIFY(deadline->isActive());
    QVERIFY(deadline->interval() > 50000);
    QVERIFY(deadline->interval() <= TransitionRules::wakeUpLimit);
}

QTEST_GUILESS_MAIN(TestConnectionMonitor)
#include "tst_connection_monitor.moc"
