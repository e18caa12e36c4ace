// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The time of day in trace lines: right from one second to the next, and in the zone that the host is in.

#include <ctime>

#include <QDateTime>
#include <QTime>

#include "Test.h"
#include "Trace.h"

namespace
{
/** Sets the time zone of the process; null takes it away. The old one comes back with the end of the scope. */
class TimeZone
{
public:
    explicit TimeZone(const char* name)
        : m_wasSet(qEnvironmentVariableIsSet("TZ"))
        , m_old(qgetenv("TZ"))
    {
        set(name);
    }
    ~TimeZone() { set(m_wasSet ? m_old.constData() : nullptr); }

    static void set(const char* name)
    {
        if (name)
            qputenv("TZ", name);
        else
            qunsetenv("TZ");
        tzset();
    }

private:
    TimeZone(const TimeZone&);
    TimeZone& operator=(const TimeZone&);

    bool m_wasSet;
    QByteArray m_old;
};

/** Whole seconds since the epoch, which a time zone does not change. */
qint64 currentSecond()
{
    return QDateTime::currentMSecsSinceEpoch() / 1000;
}

/** A change of the zone shows from the next second on. */
QTime stampOfNextSecond()
{
    const qint64 began = currentSecond();
    while (currentSecond() == began)
        Trace::now();
    return QTime::fromString(QString::fromLatin1(Trace::now()), "hh:mm:ss:zzz");
}
} // namespace

class TraceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stampIsTheTimeOfDay_data();
    void stampIsTheTimeOfDay();
    void stampFollowsTheZone();
};

void TraceTest::stampIsTheTimeOfDay_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::newRow("the machine's zone") << QByteArray();
    QTest::newRow("five hours and a half more") << QByteArray("HALF-5:30");
}

void TraceTest::stampIsTheTimeOfDay()
{
    QFETCH(QByteArray, zone);
    const TimeZone timeZone(zone.isNull() ? nullptr : zone.constData());
    // The zone was another one a moment ago: the first second belongs to that one.
    const qint64 began = currentSecond();
    bool isNextCompared = false, isOneAfterCompared = false;
    while (!isOneAfterCompared) {
        const qint64 second = currentSecond();
        const QTime before = QTime::currentTime();
        const QString stamp = QString::fromLatin1(Trace::now());
        const QTime after = QTime::currentTime();
        // The day may end between the two.
        if (second == began || after < before)
            continue;
        const QTime shown = QTime::fromString(stamp, "hh:mm:ss:zzz");
        QVERIFY2(shown.isValid(), qPrintable(stamp));
        QVERIFY2(before <= shown && shown <= after, qPrintable(stamp));
        isNextCompared = isNextCompared || second == began + 1;
        isOneAfterCompared = second > began + 1;
    }
    QVERIFY(isNextCompared);
}

void TraceTest::stampFollowsTheZone()
{
    const TimeZone timeZone("UTC0");
    const QTime utc = stampOfNextSecond();
    TimeZone::set("LATER-3");
    const QTime later = stampOfNextSecond();
    // Three hours and a moment, round midnight as well.
    const int difference = (utc.msecsTo(later) + 86400000) % 86400000;
    QVERIFY2(difference >= 3 * 3600000 && difference < 3 * 3600000 + 60000, qPrintable(later.toString()));
}

REGISTER_TEST(TraceTest)
#include "TraceTest.moc"
