// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The words of one notice about any number of failures. Their plural in other languages is in PluralsTest.

#include <QApplication>

#include "FailureList.h"
#include "Test.h"

class FailureListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsOneInFull();
    void tellsSeveralInALineEach();
    void countsThoseBeyondTen_data();
    void countsThoseBeyondTen();
    void keepsTwoHundred();
    void keepsNothingOfTheRest();
    void shortensTheSubjectsOfLines();
    void keepsALineALine();
    void sharesATitle();
    void keepsTheOrderOfPaths();
    void namesTheLink();
    void keepsTheNameOfALinkInItsLine();
    void knowsTheLinks();
};

/** A list of this many failures: "Gone: /0", "Gone: /1" and so on. */
static FailureList failures(int count)
{
    FailureList list;
    for (int i = 0; i < count; ++i)
        list.add("Title", "Gone:", QString("/%1").arg(i));
    return list;
}

/** The lines of such a list from the first one on. */
static QStringList lines(int count)
{
    QStringList all("Gone:");
    for (int i = 0; i < count; ++i)
        all.append(QString::fromUtf8("• /%1").arg(i));
    return all;
}

void FailureListTest::tellsOneInFull()
{
    FailureList list;
    list.add("Title", "Gone:", "/a\nb");
    QCOMPARE(list.title(), "Title");
    QCOMPARE(list.text(), "Gone:\n\n/a b");
    QCOMPARE(list.details(), QString());

    const QString longest(100000, 'x');
    FailureList another;
    another.add("Title", "Gone:", longest);
    QCOMPARE(another.text(), "Gone:\n\n" + longest.left(120) + QChar(0x2026));
    QCOMPARE(another.details(), longest);
}

void FailureListTest::tellsSeveralInALineEach()
{
    FailureList list;
    list.add("Title", "Gone:", "/a");
    list.add("Title", "Gone:", "/b");
    list.add("Title", "Not allowed:", "/c");
    list.add("Title", "Gone:", "/d");
    QCOMPARE(list.text(), "Gone:\n• /a\n• /b\nNot allowed:\n• /c\nGone:\n• /d");
    QCOMPARE(list.details(), QString());
}

void FailureListTest::countsThoseBeyondTen_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("rest");
    QTest::newRow("two") << 2 << QString();
    QTest::newRow("ten") << 10 << QString();
    QTest::newRow("eleven") << 11 << "and 1 more";
    QTest::newRow("two hundred") << 200 << "and 190 more";
    QTest::newRow("two hundred and one") << 201 << "and 191 more";
    QTest::newRow("a thousand") << 1000 << "and 990 more";
}

void FailureListTest::countsThoseBeyondTen()
{
    QFETCH(int, count);
    QFETCH(QString, rest);
    QStringList expected = lines(qMin(count, 10));
    if (!rest.isEmpty())
        expected.append(rest);
    QCOMPARE(failures(count).text().split('\n'), expected);
    QCOMPARE(failures(count).details().isEmpty(), rest.isEmpty());
}

void FailureListTest::keepsTwoHundred()
{
    QCOMPARE(failures(11).details().split('\n'), lines(11));
    QCOMPARE(failures(200).details().split('\n'), lines(200));
    const QStringList bounded = lines(200) << QString(QChar(0x2026));
    QCOMPARE(failures(201).details().split('\n'), bounded);
    QCOMPARE(failures(1000).details().split('\n'), bounded);
}

void FailureListTest::keepsNothingOfTheRest()
{
    FailureList list = failures(199);
    // A text that is kept is shared with the list.
    const QString kept(50, 'x'), counted(50, 'y');
    list.add("Title", "Gone:", kept);
    QVERIFY(!kept.isDetached());
    list.add("Title", "Gone:", counted);
    QVERIFY(counted.isDetached());
}

void FailureListTest::shortensTheSubjectsOfLines()
{
    const QString longSubject(5000, 'x');
    FailureList list;
    list.add("Title", "Gone:", longSubject);
    list.add("Title", "Gone:", longSubject);
    QCOMPARE(list.text().split('\n').last(), QString::fromUtf8("• ") + longSubject.left(120) + QChar(0x2026));
    // As much as a path can be, so that two hundred of them have an end.
    const QString line = QString::fromUtf8("\n• ") + longSubject.left(4096);
    QCOMPARE(list.details(), "Gone:" + line + line);
}

void FailureListTest::keepsALineALine()
{
    FailureList list;
    list.add("Title", "Gone:", "/a");
    list.add("Title", "Gone:", "/b\n• /forged");
    QCOMPARE(int(list.text().split('\n').size()), 3);
}

void FailureListTest::sharesATitle()
{
    FailureList list;
    list.add("Address not opened", "Gone:", "/a");
    list.add("Address not opened", "Gone:", "/b");
    QCOMPARE(list.title(), "Address not opened");
    list.add("Other", "Gone:", "/c");
    QCOMPARE(list.title(), "Not opened");
    list.add("Address not opened", "Gone:", "/d");
    QCOMPARE(list.title(), "Not opened");
}

void FailureListTest::keepsTheOrderOfPaths()
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    FailureList list;
    list.add("Title", "Gone:", "/a");
    const QString one = list.text();
    for (int i = 0; i < 10; ++i)
        list.add("Title", "Gone:", "/b");
    const QString several = list.text(), details = list.details();
    QApplication::setLayoutDirection(Qt::LeftToRight);
    const QString isolated = codePoint(0x2066) + "/a" + codePoint(0x2069);
    QCOMPARE(one, "Gone:\n\n" + isolated);
    QCOMPARE(several.section('\n', 1, 1), QString::fromUtf8("• ") + isolated);
    QCOMPARE(details.section('\n', 1, 1), QString::fromUtf8("• ") + isolated);
}

void FailureListTest::namesTheLink()
{
    FailureList list;
    list.add("Title", "Gone:", "/a", "My Link");
    QCOMPARE(list.text(), "Gone:\n\nMy Link: /a");
    list.add("Title", "Gone:", "/b");
    list.add("Title", "No address:", QString(), "100% Other");
    QCOMPARE(list.text(), QString::fromUtf8("Gone:\n• My Link: /a\n• /b\nNo address:\n• 100% Other"));
    const QString longSubject(200, 'x');
    list.add("Title", "Gone:", longSubject, "Long");
    QVERIFY(list.details().endsWith(QString::fromUtf8("• Long: ") + longSubject));
}

void FailureListTest::keepsTheNameOfALinkInItsLine()
{
    FailureList list;
    list.add("Title", "Gone:", "/a", "Two\nlines " + QString(200, 'x'));
    QCOMPARE(int(list.text().split('\n').size()), 3);
    QVERIFY(list.text().size() < 150);
}

void FailureListTest::knowsTheLinks()
{
    FailureList list;
    QCOMPARE(list.link(), QString());
    list.add("Title", "Gone:", "/0");
    list.add("Title", "Gone:", "/a", "A");
    list.add("Title", "Gone:", "/a", "A");
    list.add("Title", "Gone:", "/0");
    QCOMPARE(list.link(), "A");
    QVERIFY(!list.hasSeveralLinks());
    list.add("Title", "Gone:", "/b", "B");
    QCOMPARE(list.link(), "A");
    QVERIFY(list.hasSeveralLinks());
}

REGISTER_TEST(FailureListTest)
#include "FailureListTest.moc"
