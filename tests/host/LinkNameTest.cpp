// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Names of links, made fit to be shown.

#include "LinkName.h"
#include "Test.h"

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
    QTest::newRow("usual") << "My Web Mail"
                           << "My Web Mail";
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("line feed") << "a\nb"
                               << "a b";
    QTest::newRow("both ends of a line") << "a\r\nb"
                                         << "a  b";
    QTest::newRow("tab") << "a\tb"
                         << "a b";
    QTest::newRow("escape") << "\033[31mred"
                            << " [31mred";
    QTest::newRow("zero") << QString(QChar(0)) << " ";
    QTest::newRow("delete") << "a\177"
                            << "a ";
    QTest::newRow("next line") << QString(QChar(0x85)) << " ";
    QTest::newRow("line separator") << QString(QChar(0x2028)) << " ";
    QTest::newRow("paragraph separator") << QString(QChar(0x2029)) << " ";
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
    QTest::newRow("none") << "News"
                          << "News";
    QTest::newRow("one") << "R&D"
                         << "R&&D";
    QTest::newRow("at both ends") << "&a&"
                                  << "&&a&&";
    QTest::newRow("doubled before") << "a && b"
                                    << "a &&&& b";
}

void LinkNameTest::showsAmpersands()
{
    QFETCH(QString, name);
    QTEST(LinkName::withAmpersands(name), "shown");
}

REGISTER_TEST(LinkNameTest)
#include "LinkNameTest.moc"
