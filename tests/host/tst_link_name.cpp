// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Names of links, made fit to be shown.

#include <QTest>

#include "LinkName.h"

class LinkNameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standsOnOneLine_data();
    void standsOnOneLine();
    void showsAmpersands_data();
    void showsAmpersands();
};

void LinkNameTest::standsOnOneLine_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    QTest::newRow("usual") << QStringLiteral("My Web Mail") << QStringLiteral("My Web Mail");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("line feed") << QStringLiteral("a\nb") << QStringLiteral("a b");
    QTest::newRow("both ends of a line") << QStringLiteral("a\r\nb") << QStringLiteral("a  b");
    QTest::newRow("tab") << QStringLiteral("a\tb") << QStringLiteral("a b");
    QTest::newRow("escape") << QStringLiteral("\033[31mred") << QStringLiteral(" [31mred");
    QTest::newRow("zero") << QString(QChar(0)) << QStringLiteral(" ");
    QTest::newRow("delete") << QStringLiteral("a\177") << QStringLiteral("a ");
    QTest::newRow("next line") << QString(QChar(0x85)) << QStringLiteral(" ");
    QTest::newRow("line separator") << QString(QChar(0x2028)) << QStringLiteral(" ");
    QTest::newRow("paragraph separator") << QString(QChar(0x2029)) << QStringLiteral(" ");
    QTest::newRow("beyond 16 bits") << QString::fromUtf8("\xf0\x9f\x93\xa7 Post")
                                    << QString::fromUtf8("\xf0\x9f\x93\xa7 Post");
    QTest::newRow("joined letters") << QString::fromUtf8("\xe2\x80\x8d") << QString::fromUtf8("\xe2\x80\x8d");
}

void LinkNameTest::standsOnOneLine()
{
    QFETCH(QString, name);
    QTEST(LinkName::onOneLine(name), "shown");
}

void LinkNameTest::showsAmpersands_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    QTest::newRow("none") << QStringLiteral("News") << QStringLiteral("News");
    QTest::newRow("one") << QStringLiteral("R&D") << QStringLiteral("R&&D");
    QTest::newRow("at both ends") << QStringLiteral("&a&") << QStringLiteral("&&a&&");
    QTest::newRow("doubled before") << QStringLiteral("a && b") << QStringLiteral("a &&&& b");
}

void LinkNameTest::showsAmpersands()
{
    QFETCH(QString, name);
    QTEST(LinkName::withAmpersands(name), "shown");
}

QTEST_APPLESS_MAIN(LinkNameTest)
#include "tst_link_name.moc"
