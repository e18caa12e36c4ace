// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the user is told of an address that the quick links refuse.

#include "AddressProblem.h"
#include "Test.h"

class AddressProblemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isNamed_data();
    void isNamed();
};

void AddressProblemTest::isNamed_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("sentence");
    const QString none = "This link has no address:", blanks = "There are blanks before or behind this address:",
                  capitals = "The beginning of this address must be written in small letters:",
                  beginning = "This address needs \"http://\", \"https://\", \"ftp://\" or \"www.\" at its beginning:",
                  other = "Only Internet addresses (http, https and ftp) are opened. This is not one:";
    QTest::newRow("empty") << QString() << none;
    QTest::newRow("only blanks") << "  " << none;
    QTest::newRow("blanks before") << "  http://x" << blanks;
    QTest::newRow("blank behind") << "www.x.example " << blanks;
    QTest::newRow("blanks and capitals") << " HTTP://X" << blanks;
    QTest::newRow("capitals") << "HTTP://EXAMPLE.ORG" << capitals;
    QTest::newRow("one capital") << "Https://example.org" << capitals;
    QTest::newRow("capitals of www") << "WWW.example.org" << capitals;
    QTest::newRow("no scheme") << "example.org" << beginning;
    QTest::newRow("no scheme, but a port") << "example.org:8080/a" << beginning;
    QTest::newRow("other scheme") << "mailto:someone@example.org" << other;
    QTest::newRow("other scheme behind a blank") << " javascript:alert(1)" << other;
    QTest::newRow("capitals without a host") << "HTTP://" << other;
    QTest::newRow("no host") << "http:///x" << other;
}

void AddressProblemTest::isNamed()
{
    QFETCH(QString, address);
    QTEST(AddressProblem::sentence(address), "sentence");
}

REGISTER_TEST(AddressProblemTest)
#include "AddressProblemTest.moc"
