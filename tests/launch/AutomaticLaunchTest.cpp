// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Which links open by themselves, in which order. Every check is made for both events.

#include "LaunchEvents.h"
#include "Test.h"

class AutomaticLaunchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanup() { m_plugin.unload(); }

    void order_data();
    void order();
    void onlyOneMeansYes_data();
    void onlyOneMeansYes();
    void otherTypesAreSkipped_data();
    void otherTypesAreSkipped();
    void hiddenLinksLaunch();
    void parametersAreNotPassed();
    void addressIsHandedOverAsTyped_data();
    void addressIsHandedOverAsTyped();
    void localAddressesAreQUrls_data();
    void localAddressesAreQUrls();
    void failureStopsNothing();
    void everyEventLaunchesAgain();
    void otherEventsLinksStay();
    void linksOfTheFile();
    void thousandLinks();
    void nothingElseHappens();
    void withoutList();

private:
    int tellEvent() { return tell(m_plugin.page, m_event); }
    FakeHost& host() { return FakeHost::instance(); }

    LoadedPlugin m_plugin;
    Event m_event;
};

void AutomaticLaunchTest::initTestCase_data()
{
    QTest::addColumn<Event>("event");
    QTest::newRow("connection") << ConnectionUp;
    QTest::newRow("host start") << HostStart;
}

void AutomaticLaunchTest::init()
{
    QFETCH_GLOBAL(Event, event);
    m_event = event;
    m_plugin.make();
}

void AutomaticLaunchTest::order_data()
{
    QTest::addColumn<QByteArray>("addresses");
    QTest::addColumn<QByteArray>("openings");
    const struct {
        const char *row, *addresses, *openings;
    } rows[] = {
        {"empty list", "", ""},
        {"nothing marked", "-http://d|-/other", ""},
        {"one address", "http://a", "host http://a"},
        {"last of three addresses", "http://a|http://b|http://c", "host http://c"},
        {"last of three, turned", "http://c|http://b|http://a", "host http://a"},
        {"unmarked address last", "http://a|http://b|-http://d", "host http://b"},
        {"same address twice", "http://a|http://a", "host http://a"},
        {"one mail", "mailto:1", "desktop mailto:1"},
        {"one application", "/clock", "desktop /clock"},
        {"mails around an address", "mailto:1|http://a|mailto:2", "desktop mailto:1|desktop mailto:2|host http://a"},
        {"address first", "http://a|mailto:2|mailto:1", "desktop mailto:2|desktop mailto:1|host http://a"},
        {"all kinds", "http://a|/clock|http://b|mailto:1|-/other|http://c|mailto:2|/clock",
         "desktop /clock|desktop mailto:1|desktop mailto:2|desktop /clock|host http://c"},
        {"empty address last", "http://a|.", "host "},
        {"only an empty address", ".", "host "},
        {"empty address first", ".|http://a", "host http://a"},
    };
    for (const auto& row : rows)
        QTest::newRow(row.row) << QByteArray(row.addresses) << QByteArray(row.openings);
}

void AutomaticLaunchTest::order()
{
    QFETCH(QByteArray, addresses);
    QFETCH(QByteArray, openings);
    m_plugin.load(markedLinks(m_event, addresses.constData()));
    QCOMPARE(tellEvent(), 0);
    QCOMPARE(host().openings, listed(openings.constData()));
}

void AutomaticLaunchTest::onlyOneMeansYes_data()
{
    QTest::addColumn<QByteArray>("flag");
    const char* const flags[] = {"0",   "",   "true", " 1", "1 ", "01",          "11",
                                 "1.0", "+1", "yes",  "2",  "-1", "\xef\xbc\x91"};
    for (const char* flag : flags)
        QTest::newRow(QByteArray('"' + QByteArray(flag) + '"').constData()) << QByteArray(flag);
}

void AutomaticLaunchTest::onlyOneMeansYes()
{
    QFETCH(QByteArray, flag);
    m_plugin.load(markedLinks(m_event, "/clock|mailto:|http://a", flag.constData()));
    QCOMPARE(tellEvent(), 0);
    QCOMPARE(host().openings, QStringList());
    *m_plugin.page->m_recordList << markedLinks(m_event, "mailto:yes");
    tellEvent();
    QCOMPARE(host().openings, listed("desktop mailto:yes"));
}

void AutomaticLaunchTest::otherTypesAreSkipped_data()
{
    QTest::addColumn<QString>("type");
    const char* const types[] = {"",  "IDS_LINK_TYPE_E_MAIL", "ids_link_type_internet", "IDS_LINK_TYPE_INTERNET ",
                                 "2", "application"};
    for (const char* type : types)
        QTest::newRow(QByteArray('"' + QByteArray(type) + '"').constData()) << type;
}

void AutomaticLaunchTest::otherTypesAreSkipped()
{
    QFETCH(QString, type);
    QuickLinkRecordList links = markedLinks(m_event, "http://www.x|mailto:|http://www.y|http://a|http://www.z");
    for (int i = 0; i < links.size(); i += 2)
        links[i].type = type;
    m_plugin.load(links);
    QCOMPARE(tellEvent(), 0);
    QCOMPARE(host().openings, listed("desktop mailto:|host http://a"));
    QCOMPARE(host().messages.size(), 0);
}

void AutomaticLaunchTest::hiddenLinksLaunch()
{
    QuickLinkRecordList links = markedLinks(m_event, "/clock|mailto:|http://a");
    for (int i = 0; i < links.size(); ++i)
        links[i].visible = links[i].edit = links[i].delete_ = "0";
    m_plugin.load(links);
    QCOMPARE(tellEvent(), 0);
    QCOMPARE(host().openings, listed("desktop /clock|desktop mailto:|host http://a"));
}

void AutomaticLaunchTest::parametersAreNotPassed()
{
    QuickLinkRecordList links = markedLinks(m_event, "/my clock|mailto:|http://a");
    for (int i = 0; i < links.size(); ++i)
        links[i].para = "--fast";
    m_plugin.load(links);
    tellEvent();
    QCOMPARE(host().openings, listed("desktop /my clock|desktop mailto:|host http://a"));
}

void AutomaticLaunchTest::addressIsHandedOverAsTyped_data()
{
    QTest::addColumn<QString>("url");
    // No test of the address, and no change: a menu launch would change or refuse most of these.
    const char* const urls[] = {
        "http://Example.ORG/A%41%20b", "HTTP://EXAMPLE.ORG",      "example.org",    "http://[bad",
        " http://example.org ",        "http://example.org:080/", "not an address", "http://b\xc3\xbc\x63her.example/",
        "javascript:alert(1)",         "mailto:a@b.example",      "/usr/bin/xclock"};
    for (const char* url : urls)
        QTest::newRow(url) << QString::fromUtf8(url);
}

void AutomaticLaunchTest::addressIsHandedOverAsTyped()
{
    QFETCH(QString, url);
    m_plugin.load(QuickLinkRecordList() << marked(m_event, "internet", url.toUtf8().constData()));
    QCOMPARE(tellEvent(), 0);
    QCOMPARE(host().openedByHost, QStringList() << url);
    QCOMPARE(host().openedByDesktop.size(), 0);
    QCOMPARE(host().messages.size(), 0);
}

void AutomaticLaunchTest::localAddressesAreQUrls_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QByteArray>("url");
    const char* const urls[] = {"/opt/my tool",    "/opt/my%20tool",         "xclock",
                                "www.example.org", "file:///usr/bin/xclock", "http://example.org/x"};
    for (const char* type : {"application", "email"}) {
        for (const char* url : urls)
            QTest::newRow(QByteArray(QByteArray(type) + ' ' + url).constData()) << QByteArray(type) << QByteArray(url);
    }
}

void AutomaticLaunchTest::localAddressesAreQUrls()
{
    QFETCH(QByteArray, type);
    QFETCH(QByteArray, url);
    m_plugin.load(QuickLinkRecordList() << marked(m_event, type.constData(), url.constData()));
    tellEvent();
    QCOMPARE(host().openedByDesktop, QList<QUrl>() << QUrl(QString::fromUtf8(url)));
    QCOMPARE(host().openedByHost, QStringList());
}

void AutomaticLaunchTest::failureStopsNothing()
{
    // No handler takes the scheme, so the desktop answers that it could not open it.
    m_plugin.load(QuickLinkRecordList() << marked(m_event, "application", "unheard-of:1")
                                        << marked(m_event, "email", "unheard-of:2")
                                        << markedLinks(m_event, "mailto:|http://a"));
    QCOMPARE(tellEvent(), 0);
    QCOMPARE(host().openings, listed("desktop mailto:|host http://a"));
    QCOMPARE(host().messages.size(), 0);
}

void AutomaticLaunchTest::everyEventLaunchesAgain()
{
    m_plugin.load(markedLinks(m_event, "http://a|mailto:|/clock"));
    const QStringList once = listed("desktop mailto:|desktop /clock|host http://a");
    tellEvent();
    QCOMPARE(host().openings, once);
    tellEvent();
    QCOMPARE(host().openings, once + once);
}

void AutomaticLaunchTest::otherEventsLinksStay()
{
    const Event other = m_event == ConnectionUp ? HostStart : ConnectionUp;
    QuickLinkRecord both = marked(m_event, "email", "mailto:both");
    both.startconnect = both.startmobile = "1";
    m_plugin.load(QuickLinkRecordList() << markedLinks(other, "mailto:other") << markedLinks(m_event, "mailto:own")
                                        << both << markedLinks(m_event, "http://own")
                                        << markedLinks(other, "http://other"));
    tellEvent();
    QCOMPARE(host().openings, listed("desktop mailto:own|desktop mailto:both|host http://own"));
    host().openings.clear();
    tell(m_plugin.page, other);
    QCOMPARE(host().openings, listed("desktop mailto:other|desktop mailto:both|host http://other"));
}

void AutomaticLaunchTest::linksOfTheFile()
{
    const QuickLinkRecordList links = markedLinks(m_event, "http://a/?x=1&y=2|/my clock|-mailto:");
    QVERIFY(host().writeConfig(configDocument("1", "3", links.toList())));
    m_plugin.page->Init();
    tellEvent();
    QCOMPARE(host().openings, listed("desktop /my clock|host http://a/?x=1&y=2"));
}

void AutomaticLaunchTest::thousandLinks()
{
    QuickLinkRecordList links;
    QStringList expected;
    for (int i = 0; i < 1000; ++i) {
        const QByteArray number = QByteArray::number(i);
        links << markedLinks(m_event, QByteArray("mailto:" + number + "|http://" + number).constData());
        expected << "desktop mailto:" + number;
    }
    expected << "host http://999";
    m_plugin.load(links);
    tellEvent();
    QCOMPARE(host().openings, expected);
}

void AutomaticLaunchTest::nothingElseHappens()
{
    const QuickLinkRecordList links = markedLinks(m_event, "bad|mailto:");
    m_plugin.load(links);
    tellEvent();
    QCOMPARE(host().messages.size(), 0);
    QCOMPARE(host().notifications, QStringList());
    QVERIFY(host().readConfig().isEmpty());
    QVERIFY(m_plugin.page->m_actionMap.isEmpty());
    QCOMPARE(listDifference(*m_plugin.page->m_recordList, links), QString());
}

void AutomaticLaunchTest::withoutList()
{
    const QString pattern = tracePattern(m_event == ConnectionUp ? "Arg is NULL: %T: %F: launchOnConnection %L"
                                                                 : "Arg is NULL: %T: %F: launchOnSoftwareLaunch %L");
    {
        RecordingTrace trace;
        QCOMPARE(tellEvent(), 0);
        QCOMPARE(trace.countDebug(pattern), 1);
        QCOMPARE(trace.warningLines, QStringList());
    }
    m_plugin.load(markedLinks(m_event, "mailto:"));
    {
        RecordingTrace trace;
        tellEvent();
        QCOMPARE(trace.countDebug(pattern), 0);
    }
    QCOMPARE(host().openings.size(), 1);
    m_plugin.page->OnDestroy();
    QCOMPARE(tellEvent(), 0);
    QCOMPARE(host().openings.size(), 1);
}

REGISTER_TEST(AutomaticLaunchTest)
#include "AutomaticLaunchTest.moc"
