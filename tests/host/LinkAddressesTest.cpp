// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The links of a file by their names and addresses.

#include "LinkAddresses.h"
#include "Opening.h"
#include "Test.h"

class LinkAddressesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsAddresses_data();
    void knowsAddresses();
    void knowsNames_data();
    void knowsNames();
    void saysWhichWereNotTheLowest_data();
    void saysWhichWereNotTheLowest();
    void knowsWhetherThereAreParameters_data();
    void knowsWhetherThereAreParameters();
};

static LinkAddresses links(const QByteArray& items)
{
    return LinkAddresses("<tovadoc><menu>" + items + "</menu></tovadoc>");
}

static LinkAddresses someLinks()
{
    return links("<item name=\"Portal\" url=\"www.example.org/a b\" visible=\"1\"/>"
                 "<item name=\"Twin\" url=\"mailto:1\" visible=\"1\"/>"
                 "<item name=\"Hidden\" url=\"mailto:0\" visible=\"0\"/>"
                 "<item name=\"Twin\" url=\"/usr/bin/my program\" visible=\"1\"/>"
                 "<item name=\"Same\" url=\"mailto:1\" visible=\"1\"/>"
                 "<item name=\"Bare\" url=\"\" visible=\"1\"/>");
}

void LinkAddressesTest::knowsAddresses_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("address");
    QTest::newRow("first") << "Portal" << 0 << "www.example.org/a b";
    QTest::newRow("first twin") << "Twin" << 1 << "mailto:1";
    QTest::newRow("second twin") << "Twin" << 2 << "/usr/bin/my program";
    QTest::newRow("in another place") << "Same" << 0 << "mailto:1";
    QTest::newRow("outside") << "Portal" << 99 << "www.example.org/a b";
    QTest::newRow("before the first") << "Portal" << -1 << "www.example.org/a b";
    QTest::newRow("nobody") << "Nobody" << 0 << QString();
    QTest::newRow("hidden") << "Hidden" << 2 << QString();
}

void LinkAddressesTest::knowsAddresses()
{
    QFETCH(QString, name);
    QFETCH(int, place);
    QTEST(someLinks().addressOf(name, place), "address");
}

void LinkAddressesTest::knowsNames_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("name");
    QTest::newRow("as it stands") << "www.example.org/a b"
                                  << "Portal";
    QTest::newRow("as it is opened") << "http://www.example.org/a%20b"
                                     << "Portal";
    QTest::newRow("first of several") << "mailto:1"
                                      << "Twin";
    QTest::newRow("path") << "/usr/bin/my%20program"
                          << "Twin";
    QTest::newRow("hidden") << "mailto:0" << QString();
    QTest::newRow("nobody's") << "mailto:2" << QString();
    QTest::newRow("part") << "mailto:" << QString();
    QTest::newRow("none") << ""
                          << "Bare";
}

void LinkAddressesTest::knowsNames()
{
    QFETCH(QString, address);
    QTEST(someLinks().nameOf(address), "name");
}

void LinkAddressesTest::saysWhichWereNotTheLowest_data()
{
    QTest::addColumn<QString>("links"); // of each name, type and mark
    QTest::addColumn<QStringList>("told");
    QTest::newRow("none") << "" << QStringList();
    QTest::newRow("one") << "A INTERNET 1" << QStringList();
    QTest::newRow("three") << "A INTERNET 1, B INTERNET 1, C INTERNET 1" << QStringList({"A", "B"});
    QTest::newRow("unmarked below") << "A INTERNET 1, B INTERNET 1, C INTERNET 0" << QStringList("A");
    QTest::newRow("marked oddly") << "A INTERNET true, B INTERNET 1" << QStringList();
    QTest::newRow("other types") << "A E-MAIL 1, B APPLICATION 1, C INTERNET 1, D E-MAIL 1" << QStringList();
}

void LinkAddressesTest::saysWhichWereNotTheLowest()
{
    QFETCH(QString, links);
    QByteArray items;
    const QStringList parts = links.split(", ", Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        const QStringList words = part.split(' ');
        items += QString("<item name=\"%1\" type=\"IDS_LINK_TYPE_%2\" mark=\"%3\" url=\"u\" visible=\"1\"/>")
                     .arg(words.at(0), words.at(1), words.at(2))
                     .toUtf8();
    }
    QStringList told;
    Opening::setListener([&told](const Decision& decision) {
        told.append(decision.what);
        QCOMPARE(decision.outcome, "Not opened: of several marked web addresses only the lowest opens");
    });
    ::links(items).tellPassedOver("mark");
    ::links(items).tellPassedOver("other");
    Opening::setListener(nullptr);
    QTEST(told, "told");
}

void LinkAddressesTest::knowsWhetherThereAreParameters_data()
{
    QTest::addColumn<QByteArray>("items");
    QTest::addColumn<bool>("haveParameters");
    QTest::newRow("no links") << QByteArray() << false;
    QTest::newRow("none") << QByteArray("<item name=\"a\" para=\"\" visible=\"1\"/><item name=\"b\" visible=\"1\"/>")
                          << false;
    QTest::newRow("some") << QByteArray("<item name=\"a\" visible=\"1\"/><item name=\"b\" para=\"-x\" visible=\"1\"/>")
                          << true;
    QTest::newRow("hidden") << QByteArray("<item name=\"a\" para=\"-x\" visible=\"0\"/>") << false;
}

void LinkAddressesTest::knowsWhetherThereAreParameters()
{
    QFETCH(QByteArray, items);
    QTEST(links(items).haveParameters(), "haveParameters");
}

REGISTER_TEST(LinkAddressesTest)
#include "LinkAddressesTest.moc"
