// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What is listed of the monitor's decisions.

#include "ConnectionDecisions.h"
#include "ConnectionMonitor.h"
#include "Decisions.h"
#include "FakeSource.h"
#include "FakeTranslator.h"
#include "Test.h"

class ConnectionDecisionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void listsWhatIsTold();
    void listsWhatIsNoNews();
    void listsWhatWasDownAgain();
    void listsADownThatIsTold();
    void namesTheConnectionThatTookOver();
    void namesNoConnectionThatNobodyNamed();
    void speaksTheLanguage();

private:
    void start();
    void become(const QString& name);
    QStringList listed() const;

    std::unique_ptr<FakeSource> m_made;
    FakeSource* m_source = nullptr; ///< the monitor's from start() on
    std::unique_ptr<ConnectionMonitor> m_monitor;
    std::unique_ptr<Decisions> m_decisions;
    std::unique_ptr<ConnectionDecisions> m_listing;
};

void ConnectionDecisionsTest::init()
{
    m_made = std::make_unique<FakeSource>();
    m_source = m_made.get();
    m_monitor = std::make_unique<ConnectionMonitor>();
    m_decisions = std::make_unique<Decisions>();
    m_listing = std::make_unique<ConnectionDecisions>(*m_monitor, *m_decisions);
}

void ConnectionDecisionsTest::cleanup()
{
    m_listing.reset();
    m_monitor.reset();
}

void ConnectionDecisionsTest::start()
{
    m_monitor->start(std::move(m_made));
}

/** A connection of this name, in the Internet; none for an empty one. */
void ConnectionDecisionsTest::become(const QString& name)
{
    ConnectionState state;
    state.isUp = !name.isEmpty();
    state.id = name;
    state.name = name;
    state.reach = ConnectionState::Reach::Full;
    m_source->become(state);
}

/** The list, oldest first, without times. */
QStringList ConnectionDecisionsTest::listed() const
{
    QStringList lines;
    for (const Decision& decision : m_decisions->newestFirst())
        lines.prepend(Decisions::cells(decision).mid(1).join(" | "));
    return lines;
}

void ConnectionDecisionsTest::listsWhatIsTold()
{
    start();
    const QDateTime before = QDateTime::currentDateTime();
    become("Plan");
    QCOMPARE(listed(), QStringList("Plan | Up and in the Internet | Links marked for a connection open"));
    const QDateTime time = m_decisions->newestFirst().constFirst().time;
    QVERIFY(time >= before && time <= QDateTime::currentDateTime());
}

void ConnectionDecisionsTest::listsWhatIsNoNews()
{
    become("Plan");
    start();
    become(QString());
    become("Plan");
    QCOMPARE(listed(), QStringList({"Plan | Was up before the program was there | No links opened",
                                    "Plan | Down, waiting whether it comes back | No links opened",
                                    "Plan | Handed over, not a new connection | No links opened"}));
}

void ConnectionDecisionsTest::listsWhatWasDownAgain()
{
    start();
    m_source->answersAtOnce = false;
    become("Plan");
    // Not before the answer.
    QCOMPARE(listed(), QStringList());
    Q_EMIT m_source->answered(false);
    QCOMPARE(listed(), QStringList("Plan | Was down again when asked, not told | No links opened"));
}

void ConnectionDecisionsTest::listsADownThatIsTold()
{
    start();
    become("Plan");
    m_source->setAvailable(false);
    m_source->current = ConnectionState();
    m_source->setAvailable(true);
    QTRY_COMPARE_WITH_TIMEOUT(
        listed().mid(1),
        QStringList({"Plan | The service is gone, waiting whether it comes back | No links opened",
                     "Plan | Down | No links opened"}),
        30000);
}

void ConnectionDecisionsTest::namesTheConnectionThatTookOver()
{
    start();
    become("Plan");
    become("Cable");
    QCOMPARE(listed().constLast(), "Cable | Another connection took over | No links opened");
}

void ConnectionDecisionsTest::namesNoConnectionThatNobodyNamed()
{
    m_monitor->start(nullptr);
    m_monitor->setManuallyUp(true);
    QCOMPARE(listed(), QStringList("Connection | Up and in the Internet | Links marked for a connection open"));
}

void ConnectionDecisionsTest::speaksTheLanguage()
{
    const FakeTranslator other;
    start();
    become("Plan");
    QCOMPARE(listed(), QStringList("Plan | *up and in the Internet | *Links marked for a connection open"));
}

REGISTER_TEST(ConnectionDecisionsTest)
#include "ConnectionDecisionsTest.moc"
