// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Names of links, made fit to be shown.

#include "LinkName.h"
#include "Test.h"

class LinkNameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsAmpersands_data();
    void showsAmpersands();
};

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
