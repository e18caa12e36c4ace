// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include <QSignalSpy>

#include "ConnectionMonitor.h"
#include "FakeSource.h"
#include "Test.h"

class ConnectionMonitorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void tellsUpOnce();
    void tellsWhatIsTrueAtThatMoment();
    void wasUpBefore();
    void asksOnceMoreBeforeItTells();
    void waitsForTheAnswer();
    void goneWhileItAsks_data();
    void goneWhileItAsks();
    void anotherOneWhileItAsks();
    void serviceIsGoneWhileItAsks();
    void waitsUntilTheServiceIsKnown_data();
    void waitsUntilTheServiceIsKnown();
    void saysWhatItKeepsBack();
    void tellsDownWhenItStaysAway();
    void knowsSinceWhen();
    void userTellsWithoutService();
    void userIsNotAskedWhileThereIsAService();
    void usersWordEndsWhenTheServiceComes();
    void serviceLostAndReturned();
    void serviceSilentAtTheStart();
    void anotherChoiceIsNoNews_data();
    void anotherChoiceIsNoNews();
    void anotherChoiceEndsWhatWasUnderWay();
    void anotherChoiceKeepsTheTime();
    void anotherChoiceEndsTheUsersWord();
    void sleepIsPassedOn();
    void waitsAMinuteAfterSleep();

private:
    void start();

    std::unique_ptr<FakeSource> m_made;
    FakeSource* m_source = nullptr; ///< the monitor's from start() on
    std::unique_ptr<ConnectionMonitor> m_monitor;
    QStringList m_told;
};

void ConnectionMonitorTest::init()
{
    m_told.clear();
    m_made = std::make_unique<FakeSource>();
    m_source = m_made.get();
    m_monitor = std::make_unique<ConnectionMonitor>();
    connect(m_monitor.get(), &ConnectionMonitor::announced, this,
            [this](bool isUp, const QString& reason) { m_told.append((isUp ? "UP " : "DOWN ") + reason); });
}

void ConnectionMonitorTest::cleanup()
{
    m_monitor.reset();
}

void ConnectionMonitorTest::start()
{
    m_monitor->start(std::move(m_made));
    QCOMPARE(m_told, QStringList());
}

void ConnectionMonitorTest::tellsUpOnce()
{
    start();
    const QSignalSpy changed(m_monitor.get(), &ConnectionMonitor::changed);
    m_source->become("a");
    QCOMPARE(changed.size(), 1);
    m_source->become("a");
    Q_EMIT m_source->changed();
    QCOMPARE(m_told, QStringList("UP up and in the Internet"));
}

void ConnectionMonitorTest::tellsWhatIsTrueAtThatMoment()
{
    start();
    QList<bool> states;
    connect(m_monitor.get(), &ConnectionMonitor::announced, this,
            [this, &states] { states.append(m_monitor->state().isUp); });
    m_source->become("a");
    QCOMPARE(states, QList<bool>({true}));
}

void ConnectionMonitorTest::wasUpBefore()
{
    m_source->become("a");
    start();
    QVERIFY(m_monitor->state().isUp);
    QVERIFY(!m_monitor->upSince().isValid());
}

void ConnectionMonitorTest::asksOnceMoreBeforeItTells()
{
    start();
    m_source->current.isUp = true;
    m_source->current.id = "a";
    m_source->current.reach = ConnectionState::Reach::Full;
    m_source->stillUp = false;
    Q_EMIT m_source->changed();
    QCOMPARE(m_told, QStringList());
    m_source->become(QString());
    m_source->become("a");
    QCOMPARE(m_told.size(), 1);
}

void ConnectionMonitorTest::waitsForTheAnswer()
{
    start();
    m_source->answersAtOnce = false;
    m_source->become("a");
    QCOMPARE(m_source->questions, 1);
    m_source->become("a", ConnectionState::Reach::Portal);
    QCOMPARE(m_source->questions, 1);
    QCOMPARE(m_told, QStringList());
    Q_EMIT m_source->answered(true);
    QCOMPARE(m_told, QStringList("UP up and in the Internet"));
    // An answer to nothing.
    Q_EMIT m_source->answered(true);
    Q_EMIT m_source->answered(false);
    QCOMPARE(m_told.size(), 1);
}

void ConnectionMonitorTest::goneWhileItAsks_data()
{
    QTest::addColumn<bool>("answer");
    QTest::newRow("no") << false;
    QTest::newRow("a late yes") << true;
}

void ConnectionMonitorTest::goneWhileItAsks()
{
    QFETCH(const bool, answer);
    start();
    m_source->answersAtOnce = false;
    m_source->become("a");
    m_source->become(QString());
    Q_EMIT m_source->answered(answer);
    QVERIFY(!m_monitor->findChild<QTimer*>()->isActive());
    m_source->answersAtOnce = true;
    m_source->become("a");
    // It was never told, so this is no hand-over.
    QCOMPARE(m_told, QStringList("UP up and in the Internet"));
}

void ConnectionMonitorTest::anotherOneWhileItAsks()
{
    start();
    m_source->answersAtOnce = false;
    m_source->become("a");
    m_source->become("b");
    m_source->answersAtOnce = true;
    Q_EMIT m_source->answered(false);
    QCOMPARE(m_source->questions, 2);
    QCOMPARE(m_told, QStringList("UP up and in the Internet"));
}

void ConnectionMonitorTest::serviceIsGoneWhileItAsks()
{
    start();
    m_source->answersAtOnce = false;
    m_source->become("a");
    m_source->setAvailable(false);
    Q_EMIT m_source->answered(false);
    QVERIFY(!m_monitor->findChild<QTimer*>()->isActive());
    m_monitor->setManuallyUp(true);
    QCOMPARE(m_told, QStringList("UP up and in the Internet"));
}

void ConnectionMonitorTest::waitsUntilTheServiceIsKnown_data()
{
    QTest::addColumn<bool>("isThere");
    QTest::addColumn<QString>("id");
    QTest::newRow("up") << true << "a";
    QTest::newRow("down") << true << QString();
    QTest::newRow("not there") << false << QString();
}

void ConnectionMonitorTest::waitsUntilTheServiceIsKnown()
{
    QFETCH(const bool, isThere);
    QFETCH(const QString, id);
    m_source->known = false;
    m_source->available = false;
    start();
    QVERIFY(!m_monitor->isManual());
    QVERIFY(!m_monitor->lacksService());
    QVERIFY(!m_monitor->state().isUp);
    m_monitor->setManuallyUp(true);
    m_source->current.isUp = !id.isEmpty();
    m_source->current.id = id;
    m_source->known = true;
    m_source->setAvailable(isThere);
    QCOMPARE(m_monitor->isManual(), !isThere);
    QCOMPARE(m_monitor->lacksService(), !isThere);
    QCOMPARE(m_monitor->state().isUp, !id.isEmpty());
    // It was so before the program was there.
    QVERIFY(!m_monitor->upSince().isValid());
    QCOMPARE(m_told, QStringList());
    m_source->setAvailable(true);
    m_source->become("b");
    QCOMPARE(m_told.size(), id.isEmpty() ? 1 : 0);
    QCOMPARE(m_monitor->upSince().isValid(), true);
}

void ConnectionMonitorTest::saysWhatItKeepsBack()
{
    QStringList kept;
    connect(m_monitor.get(), &ConnectionMonitor::keptBack, this,
            [&kept](const QString& reason) { kept.append(reason); });
    m_source->become("a");
    start();
    m_source->become(QString());
    m_source->become("a");
    // No change, no decision.
    m_source->become("a");
    QCOMPARE(kept, QStringList({"was up before the program was there", "down, waiting whether it comes back",
                                "handed over, not a new connection"}));
    QCOMPARE(m_told, QStringList());
}

void ConnectionMonitorTest::tellsDownWhenItStaysAway()
{
    start();
    m_source->become("a");
    m_told.clear();
    m_source->become(QString());
    QVERIFY(!m_monitor->state().isUp);
    QCOMPARE(m_told, QStringList());
    QTRY_COMPARE_WITH_TIMEOUT(m_told, QStringList("DOWN down"), 30000);
}

void ConnectionMonitorTest::knowsSinceWhen()
{
    start();
    QVERIFY(!m_monitor->upSince().isValid());
    const QDateTime before = QDateTime::currentDateTime();
    m_source->become("a");
    const QDateTime since = m_monitor->upSince();
    QVERIFY(since >= before && since <= QDateTime::currentDateTime());
    m_source->become("a", ConnectionState::Reach::Portal);
    QCOMPARE(m_monitor->upSince(), since);
    m_source->become(QString());
    QVERIFY(!m_monitor->upSince().isValid());
}

void ConnectionMonitorTest::userTellsWithoutService()
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
    QVERIFY(monitor.upSince().isValid());
    monitor.setManuallyUp(false);
    QVERIFY(!monitor.state().isUp);
    QVERIFY(!monitor.upSince().isValid());
}

void ConnectionMonitorTest::userIsNotAskedWhileThereIsAService()
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

void ConnectionMonitorTest::usersWordEndsWhenTheServiceComes()
{
    m_source->available = false;
    start();
    m_monitor->setManuallyUp(true);
    QCOMPARE(m_told, QStringList("UP up and in the Internet"));
    m_source->setAvailable(true);
    QVERIFY(!m_monitor->state().isUp);
    m_source->setAvailable(false);
    QVERIFY(!m_monitor->state().isUp);
}

void ConnectionMonitorTest::serviceSilentAtTheStart()
{
    m_source->available = false;
    m_source->silent = true;
    start();
    m_source->setAvailable(false);
    m_source->current.isUp = true;
    m_source->current.id = "a";
    m_source->setAvailable(true);
    QVERIFY(m_monitor->state().isUp);
    QCOMPARE(m_told, QStringList());
    QVERIFY(!m_monitor->upSince().isValid());
    // From then on it is a service like any other.
    m_source->silent = false;
    m_source->setAvailable(false);
    m_source->become("b");
    m_source->setAvailable(true);
    QCOMPARE(m_told.size(), 1);
}

void ConnectionMonitorTest::serviceLostAndReturned()
{
    start();
    m_source->become("a");
    m_told.clear();
    m_source->setAvailable(false);
    QVERIFY(!m_monitor->state().isUp);
    m_source->setAvailable(true);
    QVERIFY(m_monitor->state().isUp);
    QCOMPARE(m_told, QStringList());
    m_source->setAvailable(false);
    m_source->current = ConnectionState();
    m_source->setAvailable(true);
    // A service that has just started may not have found it yet.
    m_source->become("a");
    QCOMPARE(m_told, QStringList());
    m_source->setAvailable(false);
    m_source->current.id = "b";
    m_source->setAvailable(true);
    QCOMPARE(m_told, QStringList("UP up and in the Internet"));
}

void ConnectionMonitorTest::anotherChoiceIsNoNews_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<bool>("isKnown");
    const QString none;
    for (const bool isKnown : {true, false}) {
        const char* const when = isKnown ? "at once" : "later";
        QTest::addRow("the same, %s", when) << "a"
                                            << "a" << isKnown;
        QTest::addRow("another, %s", when) << "a"
                                           << "b" << isKnown;
        QTest::addRow("up, %s", when) << none << "b" << isKnown;
        QTest::addRow("down, %s", when) << "a" << none << isKnown;
        QTest::addRow("never up, %s", when) << none << none << isKnown;
    }
}

void ConnectionMonitorTest::anotherChoiceIsNoNews()
{
    QFETCH(const QString, before);
    QFETCH(const QString, after);
    QFETCH(const bool, isKnown);
    start();
    m_source->become(before);
    m_told.clear();
    auto made = std::make_unique<FakeSource>();
    m_source = made.get();
    m_source->become(after);
    m_source->known = m_source->available = isKnown;
    m_monitor->start(std::move(made));
    m_source->known = true;
    if (!isKnown)
        m_source->setAvailable(true);
    QCOMPARE(m_monitor->state().isUp, !after.isEmpty());
    QVERIFY(!m_monitor->findChild<QTimer*>()->isActive());
    QVERIFY(!m_monitor->wasUpBefore());
    QCOMPARE(m_told, QStringList());
    // What happens from now on is.
    m_source->become(QString());
    m_monitor->start(nullptr);
    m_monitor->setManuallyUp(true);
    QCOMPARE(m_told, QStringList("UP up and in the Internet"));
}

void ConnectionMonitorTest::anotherChoiceEndsWhatWasUnderWay()
{
    start();
    const QTimer* const deadline = m_monitor->findChild<QTimer*>();
    m_source->become("a", ConnectionState::Reach::Limited);
    QVERIFY(deadline->isActive());
    auto made = std::make_unique<FakeSource>();
    FakeSource* const asked = made.get();
    m_monitor->start(std::move(made));
    QVERIFY(!deadline->isActive());
    asked->answersAtOnce = false;
    asked->become("b");
    QCOMPARE(asked->questions, 1);
    made = std::make_unique<FakeSource>();
    made->become("c");
    FakeSource* const last = made.get();
    m_monitor->start(std::move(made));
    // The answer to a question that nobody asked this one.
    Q_EMIT last->answered(true);
    QCOMPARE(m_told, QStringList());
}

void ConnectionMonitorTest::anotherChoiceKeepsTheTime()
{
    const auto startWith = [this](const QString& id) {
        auto made = std::make_unique<FakeSource>();
        m_source = made.get();
        m_source->become(id);
        m_monitor->start(std::move(made));
    };
    startWith("a");
    QVERIFY(m_monitor->wasUpBefore());
    startWith("a");
    QVERIFY(m_monitor->wasUpBefore());
    startWith("b");
    QVERIFY(!m_monitor->wasUpBefore());
    QVERIFY(!m_monitor->upSince().isValid());
    m_source->become("c");
    const QDateTime since = m_monitor->upSince();
    QVERIFY(since.isValid());
    startWith("c");
    QCOMPARE(m_monitor->upSince(), since);
    auto silent = std::make_unique<FakeSource>();
    silent->known = silent->available = false;
    m_monitor->start(std::move(silent));
    QVERIFY(!m_monitor->upSince().isValid());
}

void ConnectionMonitorTest::anotherChoiceEndsTheUsersWord()
{
    m_monitor->start(nullptr);
    m_monitor->setManuallyUp(true);
    QVERIFY(m_monitor->state().isUp);
    m_made->available = false;
    m_monitor->start(std::move(m_made));
    QVERIFY(!m_monitor->state().isUp);
    m_monitor->setManuallyUp(true);
    QCOMPARE(m_told.size(), 2);
}

void ConnectionMonitorTest::sleepIsPassedOn()
{
    start();
    m_source->become("a");
    m_told.clear();
    m_monitor->fallAsleep();
    m_source->become(QString());
    m_monitor->wakeUp();
    m_source->become("b");
    m_source->become("a");
    // Another connection than before sleep is told; that "a" took over from it is not.
    QCOMPARE(m_told, QStringList("UP up and in the Internet"));
}

void ConnectionMonitorTest::waitsAMinuteAfterSleep()
{
    start();
    const QTimer* const deadline = m_monitor->findChild<QTimer*>();
    QTest::qSleep(2); // The clock of the monitor must have begun to count.
    m_source->become("a");
    m_source->become(QString());
    QVERIFY(deadline->isActive());
    m_monitor->fallAsleep();
    QVERIFY(!deadline->isActive());
    m_monitor->wakeUp();
    QVERIFY(deadline->isActive());
    QVERIFY(deadline->interval() > 50000);
    QVERIFY(deadline->interval() <= TransitionRules::wakeUpLimit);
}

REGISTER_TEST(ConnectionMonitorTest)
#include "ConnectionMonitorTest.moc"
