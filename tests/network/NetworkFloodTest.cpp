// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include <QElapsedTimer>

#include <atomic>
#include <thread>

#include "NetworkManagerSource.h"
#include "PlayedNetwork.h"
#include "Test.h"

/** A service that says far too much is listened to ten times a second, and the window has its turn in between. */
class NetworkFloodTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useOwnSystemBus(); }

    void lastWordOfABurstCounts();
    void flood();
    void floodOfOperators();
};

namespace
{
const int signalCount = 100000;
const int longestGap = 1000; // milliseconds: a person would not yet think that the window hangs

/** Whether the event loop had its turn all the time. */
class Heart
{
public:
    Heart()
    {
        m_clock.start();
        m_timer.start(0);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { beat(); });
    }

    /** The longest time without a turn, in milliseconds, until now. */
    qint64 longest()
    {
        beat();
        return m_longest;
    }

private:
    void beat() { m_longest = std::max(m_longest, m_clock.restart()); }

    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_longest = 0;
};

/** The changes that may be told in this time: one each 100 ms, one at its begin and end. */
int mostChanges(const QElapsedTimer& clock)
{
    return int(clock.elapsed() / NetworkManagerSource::pause) + 2;
}
} // namespace

void NetworkFloodTest::lastWordOfABurstCounts()
{
    PlayedNetwork network;
    NetworkManagerSource source(ConnectionKind::Mobile);
    QTRY_VERIFY(source.isAvailable());
    for (uint state = 1; state <= 100; ++state) {
        // On the way and up by turns, and up in the end; told while the last change is too young for another.
        network.set(PlayedNetwork::mobile, "State", 2 - state % 2);
        network.tellChanges();
        QCoreApplication::processEvents();
    }
    network.set(PlayedNetwork::mobile, "Id", "Last");
    network.tellChanges();
    QTRY_COMPARE(source.state().name, "Last");
    QVERIFY(source.state().isUp);
}

void NetworkFloodTest::flood()
{
    PlayedNetwork network;
    NetworkManagerSource source(ConnectionKind::Mobile);
    QTRY_VERIFY(source.isAvailable());
    int changes = 0;
    connect(&source, &ConnectionSource::changed, &source, [&changes] { ++changes; });
    Heart heart;
    QElapsedTimer clock;
    clock.start();
    std::atomic<bool> isTold{false};
    std::thread telling([&network, &isTold] {
        network.tell(PlayedNetwork::manager, PlayedNetwork::name, {{"Connectivity", 4U}}, signalCount);
        isTold = true;
    });
    const bool hasEnded = QTest::qWaitFor([&isTold] { return bool(isTold); }, 60000);
    telling.join();
    QVERIFY(hasEnded);
    network.set(PlayedNetwork::mobile, "Id", "Last");
    network.tellChanges();
    QTRY_COMPARE_WITH_TIMEOUT(source.state().name, "Last", 60000);
    qInfo("%d signals in %lld ms: %d changes, the longest time without a turn was %lld ms", signalCount,
          clock.elapsed(), changes, heart.longest());
    QVERIFY2(changes <= mostChanges(clock), qPrintable(QString::number(changes)));
    QVERIFY2(heart.longest() < longestGap, qPrintable(QString::number(heart.longest())));
}

void NetworkFloodTest::floodOfOperators()
{
    PlayedNetwork network;
    PlayedModems modems;
    NetworkManagerSource source(ConnectionKind::Mobile);
    QTRY_COMPARE(source.state().operatorName, "Northern Mobile");
    int changes = 0;
    connect(&source, &ConnectionSource::changed, &source, [&changes] { ++changes; });
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 10000; ++i)
        modems.tellOperator(QString("Operator %1").arg(i));
    modems.tellOperator(1U);
    modems.tellOperator("Last");
    QTRY_COMPARE_WITH_TIMEOUT(source.state().operatorName, "Last", 60000);
    QVERIFY2(changes <= mostChanges(clock), qPrintable(QString::number(changes)));
    modems.tellOperator(1U);
    QTRY_COMPARE(source.state().operatorName, QString());
}

REGISTER_TEST(NetworkFloodTest)
#include "NetworkFloodTest.moc"
