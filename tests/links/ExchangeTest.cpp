// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Links in the formats of others, out and in.

#include <QJsonDocument>
#include <QJsonObject>

#include "LinkAttributes.h"
#include "LinkExchange.h"
#include "LinkFileCheck.h"
#include "LinksTool.h"
#include "Test.h"

class ExchangeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tool.reset(new LinksTool); }

    void roundTrip_data();
    void roundTrip();
    void jsonKeepsEveryField();
    void readsABrowsersFile();
    void browsersFileGoesRound_data();
    void browsersFileGoesRound();
    void readsWhatABrowserWrote();
    void endsThatAreMissing_data();
    void endsThatAreMissing();
    void readsFoldersOfXbel();
    void mergesByNameAndAddress();
    void noPathIsTheRootOfAHost();
    void longNamesStayApart();
    void manyOfOneNameAreNumbered();
    void leavesOutWhatWouldNotOpen();
    void refusesOtherFiles_data();
    void refusesOtherFiles();
    void addressOf_data();
    void addressOf();

private:
    /** What a user has after taking content in. */
    QStringList imported(const QByteArray& content);

    QScopedPointer<LinksTool> m_tool;
};

/** As browsers write it: folders, dates, icons, references, tags in any case and no ends of some. */
static const QByteArray browsersFile = R"html(<!DOCTYPE NETSCAPE-Bookmark-file-1>
<!-- This is an automatically generated file.
     It will be read and overwritten.
     DO NOT EDIT! -->
<META HTTP-EQUIV="Content-Type" CONTENT="text/html; charset=UTF-8">
<TITLE>Bookmarks</TITLE>
<H1>Bookmarks Menu</H1>

<DL><p>
    <DT><A HREF="https://a.example/?b=c&amp;d=%22e%22" ADD_DATE="1700000000" ICON="data:image/png;base64,iVBORw0KGgo=">Fish &amp; &quot;Chips&quot; &lt;1&gt;</A>
    <DT><H3 ADD_DATE="1700000000" PERSONAL_TOOLBAR_FOLDER="true">Toolbar</H3>
    <DL><p>
        <DT><a href="http://b.example/">Caf&#233; &#x1F600;</a>
        <HR>
        <DT><A HREF="mailto:someone@b.example">Somebody</A>
        <DD>A description with a HREF="http://no.example/" in it
        <DT><A HREF="file:///">The root</A>
    </DL><p>
    <DT><A HREF="https://c.example/">A title that is much longer than any name of a quick link may be</A>
    <DT><A HREF="https://d.example/"></A>
    <DT><A HREF="javascript:alert(1)">A script</A>
    <DT><A HREF="place:sort=8">Most visited</A>
</DL>
)html";

static const QStringList browsersNames{"Fish & \"Chips\" <1>",
                                       "Caf\xc3\xa9 \xf0\x9f\x98\x80",
                                       "Somebody",
                                       "The root",
                                       "A title that is much longer than any name of a qu",
                                       "https://d.example/"};

static const QStringList browsersAddresses{"https://a.example/?b=c&d=%22e%22",
                                           "http://b.example/",
                                           "mailto:someone@b.example",
                                           "/",
                                           "https://c.example/",
                                           "https://d.example/"};

QStringList ExchangeTest::imported(const QByteArray& content)
{
    m_tool->write(m_tool->path("source"), content);
    const LinksTool::Answer answer = m_tool->run({"import", m_tool->path("source")});
    return answer.code == 0 ? answer.out.split('\n') : QStringList{answer.error};
}

void ExchangeTest::roundTrip_data()
{
    QTest::addColumn<QString>("format");
    for (const QString& format : LinkExchange::formats())
        QTest::newRow(qUtf8Printable(format)) << format;
}

void ExchangeTest::roundTrip()
{
    QFETCH(QString, format);
    const QString source = m_tool->path("source.xml");
    QVERIFY(m_tool->write(source, goodFile().replace("Portal", "R&amp;lt; &lt;&quot;&gt; &#x1F600;'")));
    const LinksTool::Answer exported = m_tool->run({"export", "--format", format, source});
    QCOMPARE(exported.code, 0);
    imported(exported.out.toUtf8());
    for (const auto field : {&QuickLinkRecord::name, &QuickLinkRecord::type, &QuickLinkRecord::url})
        QCOMPARE(LinksTool::fields(m_tool->ownFile(), field), LinksTool::fields(source, field));
    QCOMPARE(m_tool->run({"export", "--format", format}).out, exported.out);
    QCOMPARE(int(LinkFileCheck::of(m_tool->ownFile()).size()), 0);
}

void ExchangeTest::jsonKeepsEveryField()
{
    QVERIFY(m_tool->write(m_tool->path("source.xml"), goodFile()));
    imported(m_tool->run({"export", "--format", "json", m_tool->path("source.xml")}).out.toUtf8());
    QCOMPARE(m_tool->read(m_tool->ownFile()), goodFile());
}

void ExchangeTest::readsABrowsersFile()
{
    const QStringList said = imported(browsersFile);
    QCOMPARE(LinksTool::fields(m_tool->ownFile()), browsersNames);
    QCOMPARE(LinksTool::fields(m_tool->ownFile(), &QuickLinkRecord::url), browsersAddresses);
    QCOMPARE(said.filter("Left out").size(), 2);
    QCOMPARE(int(LinkFileCheck::of(m_tool->ownFile()).size()), 0);
}

void ExchangeTest::browsersFileGoesRound_data()
{
    roundTrip_data();
}

void ExchangeTest::browsersFileGoesRound()
{
    QFETCH(QString, format);
    imported(browsersFile);
    const QByteArray exported = m_tool->run({"export", "--format", format}).out.toUtf8();
    QVERIFY(imported(exported).filter("6 there already").size() == 1);
    m_tool.reset(new LinksTool);
    imported(exported);
    QCOMPARE(LinksTool::fields(m_tool->ownFile()), browsersNames);
    QCOMPARE(LinksTool::fields(m_tool->ownFile(), &QuickLinkRecord::url), browsersAddresses);
}

/** By a browser itself: bookmarks/browser.html is what try_browser.py got from bookmarks/given.html. */
void ExchangeTest::readsWhatABrowserWrote()
{
    const QByteArray content = m_tool->read(BOOKMARKS "/browser.html");
    for (const char* const part :
         {"This is an automatically generated file", "<H3 ", "<HR>", "TAGS=\"", "SHORTCUTURL=\"",
          "ICON=\"data:image/png", "HREF=\"javascript:", "HREF=\"place:", "&amp;", "&#39;"})
        QVERIFY2(content.contains(part), part);
    const QStringList said = imported(content);
    const QStringList names{
        "Fish & \"Chips\" <1> it's",
        "With keyword and tags",
        QString::fromUtf8("Caf\xc3\xa9 \xf0\x9f\x98\x80 \xd0\x9f\xd1\x80\xd0\xb8\xd0\xb2\xd0\xb5\xd1\x82 "
                          "\xe6\x97\xa5\xe6\x9c\xac \xd9\x85\xd8\xb1\xd8\xad\xd8\xa8\xd8\xa7"),
        "Somebody",
        QString::fromUtf8("https://caf\xc3\xa9.example/"),
        "The root",
        "Files",
        "https://d.example/",
        "A title that is much longer than any name of a qu",
        "Twin",
        "Twin (2)"};
    const QStringList addresses{"https://a.example/find?b=c&d=%22e%22#f",
                                "https://keyword.example/?q=%s",
                                "http://b.example/",
                                "mailto:someone@b.example?subject=a%20b",
                                "https://xn--caf-dma.example/caf%C3%A9",
                                "/",
                                "ftp://files.example/pub/",
                                "https://d.example/",
                                "https://c.example/",
                                "https://twin.example/1",
                                "https://twin.example/2"};
    QCOMPARE(LinksTool::fields(m_tool->ownFile()), names);
    QCOMPARE(LinksTool::fields(m_tool->ownFile(), &QuickLinkRecord::url), addresses);
    QCOMPARE(said.filter("Left out").size(), 2);
    QVERIFY(said.filter("Left out \"A script\": ").size() == 1 &&
            said.filter("Left out \"Most visited\": ").size() == 1);
    QCOMPARE(int(LinkFileCheck::of(m_tool->ownFile()).size()), 0);
    QCOMPARE(imported(m_tool->read(BOOKMARKS "/given.html")).filter("0 added, 11 there already, 2 left out").size(), 1);
}

void ExchangeTest::endsThatAreMissing_data()
{
    QTest::addColumn<QByteArray>("links");
    QTest::addColumn<QStringList>("names");
    const QByteArray link = "<a href=\"http://a.example/\">A</a>";
    QTest::newRow("none") << link << QStringList{"A"};
    QTest::newRow("the last one's") << link + "<a href=\"http://b.example/\">B" << QStringList{"A"};
    QTest::newRow("one's in the middle") << "<a href=\"http://b.example/\">B" + link
                                         << QStringList{"B<a href=\"http://a.example/\">A"};
    // It is looked for once, and not from each of them.
    QTest::newRow("all but one") << link + QByteArray("<a href=\"http://a.example/\">").repeated(300000)
                                 << QStringList{"A"};
    QTest::newRow("none, and a long title")
        << "<a href=\"http://a.example/\">" + QByteArray("&amp;").repeated(300000) + "</a>"
        << QStringList{QString(49, '&')};
}

void ExchangeTest::endsThatAreMissing()
{
    QFETCH(QByteArray, links);
    imported("<!DOCTYPE NETSCAPE-Bookmark-file-1>" + links);
    QTEST(LinksTool::fields(m_tool->ownFile()), "names");
}

void ExchangeTest::readsFoldersOfXbel()
{
    imported("<xbel version=\"1.0\"><title>All</title><folder><title>Folder</title>"
             "<bookmark href=\"http://a.example/\"><title>A\n  B</title><desc>c</desc></bookmark><separator/>"
             "<folder><bookmark href=\"http://b.example/\"/></folder></folder></xbel>");
    QCOMPARE(LinksTool::fields(m_tool->ownFile()), (QStringList{"A B", "http://b.example/"}));
}

void ExchangeTest::mergesByNameAndAddress()
{
    QVERIFY(m_tool->write(m_tool->ownFile(), goodFile()));
    const QByteArray others =
        ("{\"links\":[{\"name\":\"Portal\",\"type\":\"IDS_LINK_TYPE_INTERNET\",\"url\":\"https://a.example/\"},"
         "{\"name\":\"Portal\",\"type\":\"IDS_LINK_TYPE_INTERNET\",\"url\":\"www.b.example\"},"
         "{\"name\":\"Other\",\"type\":\"IDS_LINK_TYPE_INTERNET\",\"url\":\"https://a.example/\"},"
         "{\"name\":\"Portal\",\"type\":\"IDS_LINK_TYPE_INTERNET\",\"url\":\"http://www.c.example\"},"
         "{\"name\":\"Other\",\"type\":\"IDS_LINK_TYPE_INTERNET\",\"url\":\"https://a.example/\"}]}");
    const QStringList said = imported(others);
    QVERIFY2(said.filter("3 added, 2 there already, 0 left out").size() == 1, qUtf8Printable(said.join('\n')));
    QCOMPARE(LinksTool::fields(m_tool->ownFile()),
             (QStringList{"Portal", "Write", "Root", "Portal (2)", "Other", "Portal (3)"}));
    QCOMPARE(imported(others).filter("0 added, 5 there already, 0 left out").size(), 1);
    QCOMPARE(int(LinkFileCheck::of(m_tool->ownFile()).size()), 0);
}

/** Browsers write it so. */
void ExchangeTest::noPathIsTheRootOfAHost()
{
    QVERIFY(m_tool->write(m_tool->ownFile(), goodFile().replace("https://a.example/", "www.a.example")));
    const QByteArray page = "<!DOCTYPE NETSCAPE-Bookmark-file-1><a href=\"http://www.a.example%1\">Portal</a>";
    QCOMPARE(imported(QByteArray(page).replace("%1", "/")).filter("0 added, 1 there already").size(), 1);
    QCOMPARE(imported(QByteArray(page).replace("%1", "/b")).filter("1 added, 0 there already").size(), 1);
}

void ExchangeTest::manyOfOneNameAreNumbered()
{
    QByteArray page = "<!DOCTYPE NETSCAPE-Bookmark-file-1>";
    QStringList names{"A", "A (2)", "A (3)"};
    for (int i = 0; i < 2000; ++i)
        page += "<a href=\"http://a.example/" + QByteArray::number(i) + "\">A</a>";
    imported(page);
    const QStringList added = LinksTool::fields(m_tool->ownFile());
    QCOMPARE(added.size(), 2000);
    QCOMPARE(added.mid(0, 3), names);
    QCOMPARE(added.constLast(), "A (2000)");
}

void ExchangeTest::longNamesStayApart()
{
    const QByteArray name(49, 'a');
    const QByteArray others = "{\"links\":[{\"name\":\"" + name +
                              "\",\"type\":\"IDS_LINK_TYPE_INTERNET\",\"url\":\"www.a.example\"},{\"name\":\"" + name +
                              "\",\"type\":\"IDS_LINK_TYPE_INTERNET\",\"url\":\"www.b.example\"}]}";
    imported(others);
    QCOMPARE(LinksTool::fields(m_tool->ownFile()), (QStringList{name, name.left(40) + " (2)"}));
    QCOMPARE(imported(others).filter("0 added, 2 there already").size(), 1);
}

void ExchangeTest::leavesOutWhatWouldNotOpen()
{
    const QStringList said =
        imported("{\"links\":[{\"name\":\"A\",\"type\":\"\",\"url\":\"www.a.example\"},"
                 "{\"name\":\"B\",\"type\":\"IDS_LINK_TYPE_INTERNET\",\"url\":\"b.example\"},"
                 "{\"name\":\"C\",\"type\":\"IDS_LINK_TYPE_APPLICATION\",\"url\":\"/no/such/program\"},"
                 "{\"type\":\"IDS_LINK_TYPE_INTERNET\",\"url\":\"www.d.example\"}]}");
    QCOMPARE(said.filter("Left out").size(), 3);
    QCOMPARE(LinksTool::fields(m_tool->ownFile()), QStringList{"C"});
}

void ExchangeTest::refusesOtherFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("links");
    QTest::newRow("other JSON") << QByteArray("{\"a\":1}");
    QTest::newRow("another page") << QByteArray("<html><a href=\"http://a.example/\">a</a></html>");
    QTest::newRow("other XML") << goodFile();
    QTest::newRow("XBEL that is more than its bytes") << "<!DOCTYPE xbel [<!ENTITY b \"" + QByteArray(4000, 'b') +
                                                             "\">]><xbel><bookmark href=\"http://a.example/\"><title>" +
                                                             QByteArray("&b;").repeated(10) +
                                                             "</title></bookmark></xbel>";
    QTest::newRow("damaged XBEL") << QByteArray("<xbel><bookmark href=\"http://a.example/\"></xbel>");
}

void ExchangeTest::refusesOtherFiles()
{
    QFETCH(QByteArray, content);
    QVERIFY(m_tool->write(m_tool->path("source"), content));
    QCOMPARE(m_tool->run({"import", m_tool->path("source")}).code, 1);
    QVERIFY(!QFileInfo::exists(m_tool->ownFile()));
}

void ExchangeTest::addressOf_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("address");
    QTest::newRow("completed") << LinkType::internet() << "www.a.example"
                               << "http://www.a.example";
    QTest::newRow("as it is") << LinkType::internet() << "https://a.example/b"
                              << "https://a.example/b";
    QTest::newRow("no address") << LinkType::internet() << "a b"
                                << "a b";
    QTest::newRow("mail") << LinkType::email() << "mailto:a@b.example"
                          << "mailto:a@b.example";
    QTest::newRow("path") << LinkType::application() << "/a b/./c"
                          << "file:///a%20b/c";
    QTest::newRow("relative") << LinkType::application() << "editor"
                              << "editor";
}

void ExchangeTest::addressOf()
{
    QFETCH(QString, type);
    QFETCH(QString, url);
    QuickLinkRecord link;
    link.type = type;
    link.url = url;
    QTEST(LinkExchange::addressOf(link), "address");
}

REGISTER_TEST(ExchangeTest)
#include "ExchangeTest.moc"
