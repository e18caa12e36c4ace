// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Which letter opens a link together with Alt.

#include "LinkLetters.h"
#include "Test.h"

class LinkLettersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void marks_data();
    void marks();
};

void LinkLettersTest::marks_data()
{
    QTest::addColumn<QString>("taken");
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("expected");
    const struct {
        const char* row;
        const char* taken;
        const char* names;
        const char* expected;
    } rows[] = {
        {"the first letter", "", "Mail", "&Mail"},
        {"taken by the window", "&Mail", "Mail", "M&ail"},
        {"in small letters as well", "e&mail", "Mail", "M&ail"},
        {"a doubled ampersand takes nothing", "R&&M", "Mail", "&Mail"},
        {"taken by another link", "", "Mail|Maps|Music", "&Mail|M&aps|M&usic"},
        {"the beginning of a word rather", "&Mail", "Mail office", "Mail &office"},
        {"a digit is none", "", "3 days", "3 &days"},
        {"a sign is none", "", "(+) new", "(+) &new"},
        {"behind a digit begins no word", "&A", "A1b c", "A1b &c"},
        {"no free letter", "&A", "aA", "aA"},
        {"not even a letter", "", "1-2", "1-2"},
        {"no name", "", "", ""},
        {"ampersands of its own", "", "&M&N", "&&&M&&N"},
        {"beyond ASCII", "", "\u00c5rhus|\u00e5l", "&\u00c5rhus|\u00e5&l"},
        {"Cyrillic", "", "\u041f\u043e\u0447\u0442\u0430", "&\u041f\u043e\u0447\u0442\u0430"},
        {"Greek", "", "\u03b1\u03b2", "&\u03b1\u03b2"},
        {"Arabic letters join", "", "\u0628\u0631\u064a\u062f", "\u0628\u0631\u064a\u062f"},
        {"Hindi syllables", "", "\u092e\u0947\u0932", "\u092e\u0947\u0932"},
        {"Chinese takes several keys", "", "\u90ae\u4ef6", "\u90ae\u4ef6"},
        {"Latin among others", "", "\u90ae\u4ef6 Web", "\u90ae\u4ef6 &Web"},
    };
    for (const auto& row : rows)
        QTest::newRow(row.row) << QString::fromUtf8(row.taken) << QString::fromUtf8(row.names)
                               << QString::fromUtf8(row.expected);
}

void LinkLettersTest::marks()
{
    QFETCH(const QString, taken);
    QFETCH(const QString, names);
    QFETCH(const QString, expected);
    LinkLetters letters({taken});
    QStringList marked;
    const QStringList list = names.split('|');
    for (const QString& name : list)
        marked.append(letters.marked(name));
    QCOMPARE(marked.join('|'), expected);
}

REGISTER_TEST(LinkLettersTest)
#include "LinkLettersTest.moc"
