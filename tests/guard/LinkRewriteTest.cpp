// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Links changed, taken away and added in a file, and all else in it as it was.

#include "LinkRewrite.h"
#include "LinkFile.h"
#include "Test.h"

class LinkRewriteTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesAsThePluginDoes();
    void removes_data();
    void removes();
    void adds_data();
    void adds();
    void numbersAsTheCounterSays_data();
    void numbersAsTheCounterSays();
    void doesAllAtOnce();
    void undoesItself();
    void refuses_data();
    void refuses();
};

static const QByteArray fileHead = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<tovadoc type=\"config\">\n"
                                   "    <!-- mine -->\n    <CurrentID>3</CurrentID>\n    <menu parent=\"quicklink\">\n";
static const QByteArray itemA = "        <item id=\"0\" name=\"A\" visible=\"1\"/>\n";
static const QByteArray hiddenItem = "        <item id=\"1\" name=\"H\" visible=\"0\"/>\n";
static const QByteArray itemB =
    "        <item id=\"2\" name=\"B\" visible=\"1\"><item name=\"C\" visible=\"0\"/></item>\n";
static const QByteArray fileTail = "    </menu>\n    <own/>\n</tovadoc>\n";
static const QByteArray wholeFile = fileHead + itemA + hiddenItem + itemB + fileTail;

static LinkItems::Fields newLink(const QString& name)
{
    return {{"name", name},  {"url", "u"},  {"type", "t"}, {"para", "p"}, {"startconnect", "1"}, {"startmobile", "0"},
            {"delete", "1"}, {"edit", "0"}, {"key", "k"},  {"id", "77"},  {"visible", "0"}};
}

/** As newLink() stands in the file. */
static QByteArray newItem(const QByteArray& name, const QByteArray& id)
{
    return "        <item id=\"" + id + "\" name=\"" + name +
           "\" type=\"t\" url=\"u\" para=\"p\" startconnect=\"1\" startmobile=\"0\" delete=\"1\" edit=\"0\" "
           "visible=\"1\"/>\n";
}

static LinkRewrite adding(const QStringList& names)
{
    LinkRewrite rewrite;
    for (const QString& name : names)
        rewrite.added.append(newLink(name));
    return rewrite;
}

void LinkRewriteTest::writesAsThePluginDoes()
{
    QByteArray expected = LinkFile::withoutLinks();
    expected.replace("<CurrentID>0<", "<CurrentID>2<");
    expected.replace("quicklink\"/>\n",
                     "quicklink\">\n" + newItem("A", "0") + newItem("B &amp; C", "1") + "    </menu>\n");
    QCOMPARE(adding({"A", "B & C"}).applied(LinkFile::withoutLinks()), expected);
}

void LinkRewriteTest::removes_data()
{
    QTest::addColumn<QSet<int>>("indices");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("none") << QSet<int>() << wholeFile;
    QTest::newRow("first") << QSet<int>{0} << fileHead + hiddenItem + itemB + fileTail;
    QTest::newRow("last, with what is in it") << QSet<int>{1} << fileHead + itemA + hiddenItem + fileTail;
    QTest::newRow("all") << QSet<int>{0, 1} << fileHead + hiddenItem + fileTail;
}

void LinkRewriteTest::removes()
{
    QFETCH(const QSet<int>, indices);
    LinkRewrite rewrite;
    rewrite.removed = indices;
    QTEST(rewrite.applied(wholeFile), "expected");
}

void LinkRewriteTest::adds_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("expected");
    const QByteArray item = newItem("N", "0");
    QTest::newRow("behind the last") << wholeFile
                                     << QByteArray(fileHead).replace(">3<", ">4<") + itemA + hiddenItem + itemB +
                                            newItem("N", "3") + fileTail;
    QTest::newRow("no menu") << QByteArray("<tovadoc/>")
                             << "<tovadoc>\n    <CurrentID>1</CurrentID>\n    <menu parent=\"quicklink\">\n" + item +
                                    "    </menu>\n</tovadoc>\n";
    QTest::newRow("no menu, a counter") << QByteArray("<a><CurrentID>0</CurrentID></a>")
                                        << "<a><CurrentID>1</CurrentID>\n    <menu parent=\"quicklink\">\n" + item +
                                               "    </menu>\n</a>\n";
    QTest::newRow("no counter") << QByteArray("<a>\n<menu/></a>")
                                << "<a>\n<CurrentID>1</CurrentID>\n<menu>\n" + item + "    </menu></a>\n";
    QTest::newRow("the menu is all") << QByteArray("<menu>\n</menu>") << "<menu>\n" + item + "</menu>\n";
    QTest::newRow("two menus") << QByteArray("<a><CurrentID>0</CurrentID><menu></menu><menu></menu></a>")
                               << "<a><CurrentID>1</CurrentID><menu>\n" + item + "    </menu><menu/></a>\n";
    QTest::newRow("a menu in a menu") << QByteArray("<a><CurrentID>0</CurrentID><menu><menu></menu></menu></a>")
                                      << "<a><CurrentID>1</CurrentID><menu><menu/>\n" + item + "    </menu></a>\n";
}

void LinkRewriteTest::adds()
{
    QFETCH(const QByteArray, content);
    QTEST(adding({"N"}).applied(content), "expected");
}

void LinkRewriteTest::numbersAsTheCounterSays_data()
{
    QTest::addColumn<QByteArray>("counter");
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("next");
    QTest::newRow("a number") << QByteArray("41") << QByteArray("41") << QByteArray("43");
    QTest::newRow("nothing") << QByteArray() << QByteArray("0") << QByteArray("2");
    QTest::newRow("blanks") << QByteArray(" \n ") << QByteArray("0") << QByteArray("2");
    QTest::newRow("no number") << QByteArray("x7") << QByteArray("0") << QByteArray("2");
    QTest::newRow("a comment in it") << QByteArray("4<!-- -->1") << QByteArray("41") << QByteArray("<!-- -->43");
}

void LinkRewriteTest::numbersAsTheCounterSays()
{
    QFETCH(const QByteArray, counter);
    QFETCH(const QByteArray, next);
    const QByteArray content = "<a><CurrentID>" + counter + "</CurrentID><menu/><CurrentID>9</CurrentID></a>";
    const QByteArray made = adding({"N", "M"}).applied(content);
    QVERIFY2(made.startsWith("<a><CurrentID>" + next + "</CurrentID>"), made.constData());
    QVERIFY(made.contains("<CurrentID>9</CurrentID></a>"));
    const QList<LinkItems::Fields> links = LinkItems::of(made);
    QCOMPARE(int(links.size()), 2);
    QTEST(links.at(0).value("id").toUtf8(), "first");
    QCOMPARE(links.at(1).value("id").toInt(), links.at(0).value("id").toInt() + 1);
}

void LinkRewriteTest::doesAllAtOnce()
{
    LinkRewrite rewrite = adding({"N"});
    rewrite.removed = {0};
    rewrite.changed.insert(1, {{"name", "Z"}});
    QCOMPARE(rewrite.applied(wholeFile), QByteArray(fileHead).replace(">3<", ">4<") + hiddenItem +
                                             QByteArray(itemB).replace("\"B\"", "\"Z\"") + newItem("N", "3") +
                                             fileTail);
}

/** Only the counter has gone on. */
void LinkRewriteTest::undoesItself()
{
    LinkRewrite back;
    back.removed = {2};
    QCOMPARE(back.applied(adding({"N"}).applied(wholeFile)), QByteArray(wholeFile).replace(">3<", ">4<"));
}

void LinkRewriteTest::refuses_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("removed");
    QTest::newRow("behind the last") << wholeFile << 2;
    QTest::newRow("before the first") << wholeFile << -1;
    QTest::newRow("damaged") << fileHead + itemA << 0;
    QTest::newRow("no XML") << QByteArray("x") << 0;
    QTest::newRow("too large") << "<!DOCTYPE a [<!ENTITY e \"e\">]><a><menu>" + itemA +
                                      QByteArray("&e;").repeated(4097) + "</menu></a>"
                               << 0;
}

void LinkRewriteTest::refuses()
{
    QFETCH(const QByteArray, content);
    QFETCH(const int, removed);
    LinkRewrite rewrite;
    rewrite.removed = {removed};
    QCOMPARE(rewrite.applied(content), QByteArray());
}

REGISTER_TEST(LinkRewriteTest)
#include "LinkRewriteTest.moc"
