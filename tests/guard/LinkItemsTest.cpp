// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The links of a file as it has them, and a file in which one link is changed.

#include "LinkItems.h"
#include "GuardedFolder.h"
#include "LinkFile.h"
#include "Test.h"

class LinkItemsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linksThatAreShown();
    void linksBeforeTheDamage();
    void changesOneLink_data();
    void changesOneLink();
    void keepsAllElse_data();
    void keepsAllElse();
    void changesNothingThatIsNotThere_data();
    void changesNothingThatIsNotThere();
};

static const QByteArray head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!-- mine --><tovadoc "
                               "type=\"config\">\n<item id=\"9\" visible=\"1\"/>";
static const QByteArray menu = "<menu parent=\"quicklink\">\n";
static const QByteArray first = "  <item id=\"0\" name=\"A\" url=\"u\" visible=\"1\"/>\n";
static const QByteArray hidden = "  <item id=\"1\" name=\"hidden\" visible=\"0\"/>\n";
static const QByteArray second = "  <item id=\"2\" name=\"B &amp; &quot;C&quot;\" url=\"v\" visible=\"1\"/>\n";
static const QByteArray tail = "</menu></tovadoc>";
static const QByteArray whole = head + menu + first + hidden + second + tail;

void LinkItemsTest::linksThatAreShown()
{
    const QList<LinkItems::Fields> links = LinkItems::of(whole);
    QCOMPARE(int(links.size()), 2);
    const LinkItems::Fields expected{{"id", "0"}, {"name", "A"}, {"url", "u"}, {"visible", "1"}};
    QCOMPARE(links.at(0), expected);
    QCOMPARE(links.at(1).value("name"), "B & \"C\"");
}

void LinkItemsTest::linksBeforeTheDamage()
{
    QCOMPARE(int(LinkItems::of(head + menu + first + "<item").size()), 1);
    QCOMPARE(int(LinkItems::of("no XML").size()), 0);
}

void LinkItemsTest::changesOneLink_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QByteArray>("was");
    QTest::addColumn<QByteArray>("is");
    QTest::newRow("first") << 0 << QByteArray("url=\"u\" visible=\"1\"/>")
                           << QByteArray("url=\"x\" visible=\"1\" delete=\"0\"/>");
    QTest::newRow("last") << 1 << QByteArray("url=\"v\" visible=\"1\"/>")
                          << QByteArray("url=\"x\" visible=\"1\" delete=\"0\"/>");
}

void LinkItemsTest::changesOneLink()
{
    QFETCH(int, index);
    QFETCH(QByteArray, was);
    QFETCH(QByteArray, is);
    QByteArray expected = whole;
    QVERIFY(expected.contains(was));
    expected.replace(was, is);
    const QByteArray changed = LinkItems::with(whole, index, {{"delete", "0"}, {"url", "x"}});
    QCOMPARE(changed.trimmed(), expected);
}

void LinkItemsTest::keepsAllElse_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("all kinds") << whole;
    QTest::newRow("no declaration") << menu + first + "</menu>";
    QTest::newRow("a type of document") << "<!DOCTYPE menu>" + menu + first + "</menu>";
}

void LinkItemsTest::keepsAllElse()
{
    QFETCH(QByteArray, content);
    QCOMPARE(LinkItems::with(content, 0, {}).trimmed(), content);
}

void LinkItemsTest::changesNothingThatIsNotThere_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("index");
    QTest::newRow("behind the last") << whole << 2;
    QTest::newRow("none") << whole << -1;
    QTest::newRow("no links") << LinkFile::withoutLinks() << 0;
    QTest::newRow("damaged behind it") << head + menu + first << 0;
    QTest::newRow("nothing") << QByteArray() << 0;
}

void LinkItemsTest::changesNothingThatIsNotThere()
{
    QFETCH(QByteArray, content);
    QFETCH(int, index);
    QCOMPARE(LinkItems::with(content, index, {{"url", "x"}}), QByteArray());
}

REGISTER_TEST(LinkItemsTest)
#include "LinkItemsTest.moc"
