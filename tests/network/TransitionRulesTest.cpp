// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "TransitionRules.h"
#include "ConnectionReasons.h"
#include "Test.h"

using Reach = ConnectionState::Reach;

/** Runs the rows of docs/connection-rules.md, which also says how they are written. */
class TransitionRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void table_data();
    void table();
    void saysWhyForEveryAnnouncement();
    void isSilentWhenNothingChanges();
    void reasonsAreThoseThatAreTranslated();
};

namespace
{
/** Plays events against the rules, calling timePassed() exactly at each deadline; what was told, and when. */
class Play
{
public:
    void until(qint64 time)
    {
        while (m_rules.deadline() >= 0 && m_rules.deadline() <= time) {
            m_now = m_rules.deadline();
            note(m_rules.timePassed(m_now));
        }
        m_now = time;
    }

    void event(const QStringList& words)
    {
        // A timer may fire early.
        note(m_rules.timePassed(m_now));
        const QString name = words.value(0);
        if (name == "down")
            note(m_rules.observe(ConnectionState(), m_now));
        else if (name == "coming")
            note(m_rules.observe(comingUp(), m_now));
        else if (name == "up")
            note(m_rules.observe(up(words), m_now));
        else if (name == "sleep")
            m_rules.fallAsleep();
        else if (name == "wake")
            m_rules.wakeUp(m_now);
        else if (name == "lost")
            note(m_rules.serviceLost(m_now));
        else if (name == "back")
            m_rules.serviceReturned(m_now);
        else if (name == "asked")
            withdraw();
        else if (name != "end")
            qFatal("unknown event \"%s\"", qUtf8Printable(name));
    }

    QStringList told, reasons;

private:
    static ConnectionState up(const QStringList& words)
    {
        static const QHash<QString, Reach> reaches = {{QString(), Reach::Full},
                                                      {"unknown", Reach::Unknown},
                                                      {"checking", Reach::Checking},
                                                      {"limited", Reach::Limited},
                                                      {"portal", Reach::Portal}};
        ConnectionState state;
        state.isUp = true;
        state.id = words.at(1);
        state.reach = reaches.value(words.value(2));
        return state;
    }

    static ConnectionState comingUp()
    {
        ConnectionState state;
        state.isComingUp = true;
        return state;
    }

    /** The host asks before it tells, so nothing was told. */
    void withdraw()
    {
        m_rules.withdraw();
        told.removeLast();
    }

    void note(const TransitionRules::Decision& decision)
    {
        if (!decision.reason.isEmpty())
            reasons.append(decision.reason);
        if (decision.announcement == TransitionRules::Announcement::None)
            return;
        const bool isUp = decision.announcement == TransitionRules::Announcement::Up;
        told.append(QString("%1 %2").arg(double(m_now) / 1000, 0, 'g', 12).arg(isUp ? "up" : "down"));
    }

    TransitionRules m_rules;
    qint64 m_now = 0;
};
} // namespace

static Play play(const QString& events)
{
    Play play;
    const QStringList steps = events.split(", ");
    for (const QString& step : steps) {
        const QStringList words = step.split(' ');
        play.until(qRound64(words.first().toDouble() * 1000));
        play.event(words.mid(1));
    }
    return play;
}

/** The rows of the page: case, what happens, and what is told. */
static QList<QStringList> rowsOfThePage()
{
    QFile file(QString(RULES));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The page of the rules cannot be read");
    QList<QStringList> rows;
    const QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
    for (const QString& line : lines) {
        const QStringList cells = line.split(" | ");
        if (cells.size() == 3 && cells.at(1).startsWith('0'))
            rows.append({cells.first().mid(2), cells.at(1), cells.last().chopped(2)});
    }
    return rows;
}

void TransitionRulesTest::table_data()
{
    QTest::addColumn<QString>("events");
    QTest::addColumn<QString>("expected");
    const QList<QStringList> rows = rowsOfThePage();
    for (const QStringList& row : rows)
        QTest::newRow(qPrintable(row.at(0))) << row.at(1) << row.at(2);
    QCOMPARE(rows.size(), 79);
}

void TransitionRulesTest::table()
{
    QFETCH(const QString, events);
    QFETCH(const QString, expected);
    const QStringList told = play(events).told;
    QCOMPARE(told.isEmpty() ? "nothing" : told.join(", "), expected);
}

void TransitionRulesTest::saysWhyForEveryAnnouncement()
{
    const Play all = play("0 down, 1 up a limited, 12 down, 30 up a portal, 40 up b, 50 down, "
                          "60 up b");
    QCOMPARE(all.reasons, QStringList({"up, waiting to be in the Internet", "up, but not in the Internet within 10 s",
                                       "down, waiting whether it comes back", "down", "up, and a portal wants a login",
                                       "another connection took over", "down, waiting whether it comes back", "down",
                                       "up and in the Internet"}));
}

void TransitionRulesTest::isSilentWhenNothingChanges()
{
    const Play all = play("0 down, 0.5 down, 1 up a limited, 1.1 up a limited, 1.2 up a unknown, "
                          "2 up a, 2.1 up a, 2.2 up a portal, 3 down, 3.1 down");
    QCOMPARE(all.reasons, QStringList({"up, waiting to be in the Internet", "up and in the Internet",
                                       "down, waiting whether it comes back"}));
}

/** Else the user would see a sentence in English, or translators have work for nothing. */
void TransitionRulesTest::reasonsAreThoseThatAreTranslated()
{
    // The one that the monitor finds out by itself.
    QSet<QString> used{"was down again when asked, not told"};
    const QList<QStringList> rows = rowsOfThePage();
    for (const QStringList& row : rows) {
        const QStringList reasons = play(row.at(1)).reasons;
        for (const QString& reason : reasons)
            used.insert(reason);
    }
    QSet<QString> listed;
    for (const char* const reason : connectionReasons)
        listed.insert(reason);
    QCOMPARE(QStringList((used - listed).values()), QStringList());
    QCOMPARE(QStringList((listed - used).values()), QStringList());
}

REGISTER_TEST(TransitionRulesTest)
#include "TransitionRulesTest.moc"
