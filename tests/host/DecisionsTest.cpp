// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The list of the last decisions.

#include "Decisions.h"
#include "Test.h"

class DecisionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheLast200NewestFirst();
    void tellsOfEachOne();
    void keepsTextsOnOneLine_data();
    void keepsTextsOnOneLine();
    void isALineEach();
};

void DecisionsTest::keepsTheLast200NewestFirst()
{
    Decisions decisions;
    for (int i = 1; i <= 200; ++i)
        decisions.add({QDateTime(), QString::number(i), QString(), QString()});
    QCOMPARE(decisions.newestFirst().size(), 200);
    QCOMPARE(decisions.newestFirst().constLast().what, "1");
    decisions.add({QDateTime(), "201", QString(), QString()});
    QCOMPARE(decisions.newestFirst().size(), 200);
    QCOMPARE(decisions.newestFirst().constFirst().what, "201");
    QCOMPARE(decisions.newestFirst().constLast().what, "2");
}

void DecisionsTest::tellsOfEachOne()
{
    Decisions decisions;
    QStringList heard;
    connect(&decisions, &Decisions::added, this, [&] { heard.append(decisions.newestFirst().constFirst().what); });
    decisions.add({QDateTime(), "a", QString(), QString()});
    decisions.add({QDateTime(), "b", QString(), QString()});
    QCOMPARE(heard, QStringList({"a", "b"}));
}

void DecisionsTest::keepsTextsOnOneLine_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("kept");
    QTest::newRow("plain") << "News & <b>"
                           << "News & <b>";
    QTest::newRow("lines and tabs") << "a\nb\tc\rd"
                                    << "a b c d";
    QTest::newRow("escape") << "a\033[31mb\a"
                            << "a [31mb ";
    QTest::newRow("control characters above 127") << "a" + codePoint(0x9b) + "b"
                                                  << "a b";
    QTest::newRow("no character") << QString("a") + QChar(0) + "b"
                                  << "a b";
    QTest::newRow("turned around") << "a" + codePoint(0x202e) + "b"
                                   << "a b";
    QTest::newRow("line separator") << "a" + codePoint(0x2028) + "b"
                                    << "a b";
}

void DecisionsTest::keepsTextsOnOneLine()
{
    QFETCH(QString, text);
    QFETCH(QString, kept);
    Decisions decisions;
    decisions.add({QDateTime(), text, text, text});
    const Decision& decision = decisions.newestFirst().constFirst();
    QCOMPARE(decision.what, kept);
    QCOMPARE(decision.cause, kept);
    QCOMPARE(decision.outcome, kept);
    const QString longText(100000, 'x');
    decisions.add({QDateTime(), longText, longText, longText});
    QVERIFY(Decisions::text(decisions.newestFirst()).size() < 1000);
}

void DecisionsTest::isALineEach()
{
    const QDateTime time(QDate(2026, 11, 22), QTime(18, 5));
    Decisions decisions;
    QCOMPARE(Decisions::text(decisions.newestFirst()), QString());
    decisions.add({time, "News", "You picked it", "Opened"});
    decisions.add({time, "Mail", "You picked it", "Not opened: a\tb"});
    const QString shown = QLocale().toString(time, QLocale::ShortFormat);
    QCOMPARE(Decisions::text(decisions.newestFirst()),
             shown + "\tMail\tYou picked it\tNot opened: a b\n" + shown + "\tNews\tYou picked it\tOpened\n");
}

REGISTER_TEST(DecisionsTest)
#include "DecisionsTest.moc"
