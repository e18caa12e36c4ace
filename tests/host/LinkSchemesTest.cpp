// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The schemes of the links in a file.

#include "LinkSchemes.h"
#include "Test.h"

class LinkSchemesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areThoseOfTheLinks_data();
    void areThoseOfTheLinks();
    void areFoundInAFileOfAnySize();
};

/** A file whose links have these addresses, which are escaped already. */
static QByteArray fileOf(const QList<QByteArray>& addresses)
{
    QByteArray file =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<tovadoc type=\"config\"><function><Visible>1</Visible>"
        "</function><type><item id=\" 0\" name=\"IDS_LINK_TYPE_APPLICATION\"/></type><menu>";
    for (const QByteArray& address : addresses)
        file += "<item id=\"0\" name=\"tel:\" type=\"IDS_LINK_TYPE_E-MAIL\" url=\"" + address + "\" para=\"geo:\"/>";
    return file + "</menu></tovadoc>";
}

void LinkSchemesTest::areThoseOfTheLinks_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("schemes");
    QTest::newRow("no bytes") << QByteArray() << "";
    QTest::newRow("no XML") << QByteArray("sms:1 mailto:") << "";
    QTest::newRow("binary") << QByteArray("\0\xff\xfe<item url='sms:1'/>", 22) << "";
    QTest::newRow("another document") << QByteArray("<html><a href='sms:1'>url='tel:1'</a></html>") << "";
    QTest::newRow("another element") << QByteArray("<menu><link url='sms:1'/></menu>") << "";
    QTest::newRow("no links") << fileOf({}) << "";
    QTest::newRow("usual ones") << fileOf({"https://a.example/", "mailto:", "/usr/bin/x", "www.a.example"})
                                << "https mailto";
    QTest::newRow("each once, sorted") << fileOf({"sms:2", "geo:1,2", "sms:1"}) << "geo sms";
    QTest::newRow("capitals") << fileOf({"SMS:1", "Sms:2"}) << "sms";
    QTest::newRow("all letters of a scheme") << fileOf({"x-a+b.c1:z"}) << "x-a+b.c1";
    QTest::newRow("escaped") << fileOf({"s&#109;s:1", "&quot;x&quot;:1"}) << "sms";
    QTest::newRow("what is no scheme") << fileOf({" sms:1", "1a:b", ":x", "a b:c", "/a:b", "?a:b", "#a:b", ""}) << "";
    QTest::newRow("host and port") << fileOf({"localhost:631"}) << "localhost"; // as the toolkit reads it
    QTest::newRow("no address") << QByteArray("<menu><item name='sms:1'/></menu>") << "";
    QTest::newRow("hidden link") << QByteArray("<menu><item url='sms:1' visible='0'/></menu>") << "sms";
    QTest::newRow("after the menu") << QByteArray("<a><menu/><b><item url='sms:1'/></b></a>") << "sms";
    QTest::newRow("in a comment") << QByteArray("<menu><!-- <item url='sms:1'/> --></menu>") << "";
    QTest::newRow("before damage") << QByteArray("<menu><item url='sms:1'/><item url='geo:1'") << "sms";
    QTest::newRow("wrong end") << QByteArray("<menu><item url='sms:1'/></nume><item url='geo:1'/>") << "sms";
    QTest::newRow("entities without end")
        << QByteArray("<!DOCTYPE a [<!ENTITY a \"&b;&b;\"><!ENTITY b \"&a;&a;\">]><menu><item url='&a;'/></menu>")
        << "";
}

void LinkSchemesTest::areThoseOfTheLinks()
{
    QFETCH(QByteArray, file);
    QTEST(LinkSchemes::of(file).join(' '), "schemes");
}

void LinkSchemesTest::areFoundInAFileOfAnySize()
{
    QList<QByteArray> addresses;
    for (int i = 0; i < 20000; ++i)
        addresses.append('s' + QByteArray::number(i) + ":x");
    addresses.append("sms:" + QByteArray(1000000, 'x'));
    const QStringList schemes = LinkSchemes::of(fileOf(addresses));
    QCOMPARE(int(schemes.size()), 20001);
    QVERIFY(schemes.contains("s19999") && schemes.contains("sms"));
}

REGISTER_TEST(LinkSchemesTest)
#include "LinkSchemesTest.moc"
