// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What changed from one state of the links to another.

#include <algorithm>

#include "GuardedFolder.h"
#include "LinkChanges.h"
#include "Test.h"

class LinkChangesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void between_data();
    void between();
    void thousandsAtOnce();
};

/** Links of these names; "B*" is B with another address, "B#" B with another number. */
static QByteArray linksOf(const QString& names)
{
    QByteArray content = GuardedFolder::links(names.split(' ', Qt::SkipEmptyParts));
    return content.replace("*\"", "\" url=\"other\"").replace("#\"", "\" id=\"9\"");
}

static QString summaryOf(const LinkChanges& changes)
{
    return '+' + changes.added.join(' ') + " -" + changes.removed.join(' ') + " ~" + changes.edited.join(' ') + " ^" +
           changes.moved.join(' ');
}

void LinkChangesTest::between_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QString>("changes");
    const auto add = [](const char* from, const char* to, const char* changes) {
        QTest::addRow("%s to %s", from, to) << QString(from) << QString(to) << QString(changes);
    };
    add("A B C", "A B C", "+ - ~ ^");
    add("", "A", "+A - ~ ^");
    add("A", "", "+ -A ~ ^");
    add("A B C", "A B C D", "+D - ~ ^");
    add("A B C", "D A B C", "+D - ~ ^");
    add("A B C", "A C", "+ -B ~ ^");
    add("A B C", "A B* C", "+ - ~B ^");
    // Numbers are given anew by saves.
    add("A B", "A# B", "+ - ~ ^");
    // A new name in the old place.
    add("A B C", "A X C", "+ - ~B ^");
    add("A B C", "A X", "+X -B C ~ ^");
    add("A B C", "B A C", "+ - ~ ^B");
    add("A B C D", "D A B C", "+ - ~ ^D");
    add("A B C D", "B C D A", "+ - ~ ^A");
    add("A B C", "C B A", "+ - ~ ^C B");
    add("A B C", "C A* D", "+D -B ~A ^C");
    // Names may be there more than once.
    add("A A B", "A B", "+ -A ~ ^");
    add("A A B", "A A* B", "+ - ~A ^");
}

void LinkChangesTest::between()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(QString, changes);
    const LinkChanges found = LinkChanges::between(linksOf(from), linksOf(to));
    QCOMPARE(summaryOf(found), changes);
    QCOMPARE(found.isNone(), changes == "+ - ~ ^");
}

void LinkChangesTest::thousandsAtOnce()
{
    QStringList names;
    for (int i = 0; i < 5000; ++i)
        names.prepend(QString::number(i));
    const QByteArray falling = GuardedFolder::links(names);
    std::reverse(names.begin(), names.end());
    const LinkChanges found = LinkChanges::between(falling, GuardedFolder::links(names));
    QCOMPARE(int(found.moved.size()), 4999);
    QVERIFY(found.added.isEmpty() && found.removed.isEmpty() && found.edited.isEmpty());
}

REGISTER_TEST(LinkChangesTest)
#include "LinkChangesTest.moc"
