// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Which links open by themselves, in which order.

#include "LaunchEvents.h"
#include "Test.h"

class AutomaticLaunchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_plugin.make(); }
    void cleanup() { m_plugin.unload(); }

    void order_data();
    void order();
    void onlyOneMeansYes_data();
    void onlyOneMeansYes();
    void otherTypesAreSkipped_data();
    void otherTypesAreSkipped();
    void hiddenLinksLaunch_data();
    void hiddenLinksLaunch();
    void parametersAreNotPassed_data();
    void parametersAreNotPassed();
    void addressIsHandedOverAsTyped_data();
    void addressIsHandedOverAsTyped();
    void localAddressesAreQUrls_data();
    void localAddressesAreQUrls();
    void failureStopsNothing_data();
    void failureStopsNothing();
    void everyEventLaunchesAgain_data();
    void everyEventLaunchesAgain();
    void eventsDoNotMix();
    void linksOfTheFile_data();
    void linksOfTheFile();
    void thousandLinks_data();
    void thousandLinks();
    void nothingElseHappens_data();
    void nothingElseHappens();
    void withoutList_data();
    void withoutList();

private:
    static void eventRows();

    LoadedPlugin m_plugin;
};

namespace
{
FakeHost& host()
{
    return FakeHost::instance();
}

/** "a url, b url" as the list that FakeHost::openings is compared with. */
QStringList listed(const char* openings)
{
    const QString text = QString::fromUtf8(openings);
    return text.isEmpty() ? QStringList() : text.split('|');
}
} // namespace

void AutomaticLaunchTest::eventRows()
{
    QTest::addColumn<Event>("event");
    for (const Event event : bothEvents)
        newEventRow("on", event);
}

void AutomaticLaunchTest::order_data()
{
    QTest::addColumn<Event>("event");
    QTest::addColumn<QuickLinkRecordList>("links");
    QTest::addColumn<QStringList>("openings");
    for (const Event e : bothEvents) {
        const QuickLinkRecord a = marked(e, "internet", "http://a");
        const QuickLinkRecord b = marked(e, "internet", "http://b");
        const QuickLinkRecord c = marked(e, "internet", "http://c");
        const QuickLinkRecord unmarked = marked(e, "internet", "http://d", "0");
        const QuickLinkRecord mail1 = marked(e, "email", "mailto:1");
        const QuickLinkRecord mail2 = marked(e, "email", "mailto:2");
        const QuickLinkRecord clock = marked(e, "application", "/clock");
        const QuickLinkRecord unmarkedClock = marked(e, "application", "/other", "0");
        const QuickLinkRecord blank = marked(e, "internet", "");
        typedef QuickLinkRecordList L;
        newEventRow("empty list", e) << L() << listed("");
        newEventRow("nothing marked", e) << (L() << unmarked << unmarkedClock) << listed("");
        newEventRow("one address", e) << (L() << a) << listed("host http://a");
        newEventRow("last of three addresses", e) << (L() << a << b << c) << listed("host http://c");
        newEventRow("last of three, turned", e) << (L() << c << b << a) << listed("host http://a");
        newEventRow("unmarked address last", e) << (L() << a << b << unmarked) << listed("host http://b");
        newEventRow("same address twice", e) << (L() << a << a) << listed("host http://a");
        newEventRow("one mail", e) << (L() << mail1) << listed("desktop mailto:1");
        newEventRow("one application", e) << (L() << clock) << listed("desktop /clock");
        newEventRow("mails around an address", e)
            << (L() << mail1 << a << mail2) << listed("desktop mailto:1|desktop mailto:2|host http://a");
        newEventRow("address first", e) << (L() << a << mail2 << mail1)
                                        << listed("desktop mailto:2|desktop mailto:1|host http://a");
        newEventRow("all kinds", e) << (L() << a << clock << b << mail1 << unmarkedClock << c << mail2 << clock)
                                    << listed("desktop /clock|desktop mailto:1|desktop mailto:2|desktop /clock|"
                                              "host http://c");
        newEventRow("empty address last", e) << (L() << a << blank) << listed("host ");
        newEventRow("only an empty address", e) << (L() << blank) << listed("host ");
        newEventRow("empty address first", e) << (L() << blank << a) << listed("host http://a");
    }
}

void AutomaticLaunchTest::order()
{
    QFETCH(Event, event);
    QFETCH(QuickLinkRecordList, links);
    QFETCH(QStringList, openings);
    m_plugin.load(links);
    QCOMPARE(tell(m_plugin.page, event), 0);
    QCOMPARE(host().openings, openings);
}

void AutomaticLaunchTest::onlyOneMeansYes_data()
{
    QTest::addColumn<Event>("event");
    QTest::addColumn<QString>("flag");
    const char* const flags[] = {"0",   "",   "true", " 1", "1 ", "01",          "11",
                                 "1.0", "+1", "yes",  "2",  "-1", "\xef\xbc\x91"};
    for (const Event event : bothEvents) {
        for (const char* flag : flags)
            newEventRow(QByteArray('"' + QByteArray(flag) + '"').constData(), event) << QString::fromUtf8(flag);
    }
}

void AutomaticLaunchTest::onlyOneMeansYes()
{
    QFETCH(Event, event);
    QFETCH(QString, flag);
    const QByteArray text = flag.toUtf8();
    m_plugin.load(QuickLinkRecordList() << marked(event, "application", "/clock", text.constData())
                                        << marked(event, "email", "mailto:", text.constData())
                                        << marked(event, "internet", "http://a", text.constData()));
    QCOMPARE(tell(m_plugin.page, event), 0);
    QCOMPARE(host().openings, QStringList());
    m_plugin.page->m_recordList->append(marked(event, "email", "mailto:yes"));
    tell(m_plugin.page, event);
    QCOMPARE(host().openings, listed("desktop mailto:yes"));
}

void AutomaticLaunchTest::otherTypesAreSkipped_data()
{
    QTest::addColumn<Event>("event");
    QTest::addColumn<QString>("type");
    const char* const types[] = {"",  "IDS_LINK_TYPE_E_MAIL", "ids_link_type_internet", "IDS_LINK_TYPE_INTERNET ",
                                 "2", "application"};
    for (const Event event : bothEvents) {
        for (const char* type : types)
            newEventRow(QByteArray('"' + QByteArray(type) + '"').constData(), event) << QString::fromUtf8(type);
    }
}

void AutomaticLaunchTest::otherTypesAreSkipped()
{
    QFETCH(Event, event);
    QFETCH(QString, type);
    QuickLinkRecord strange = marked(event, "", "http://www.strange.example");
    strange.type = type;
    m_plugin.load(QuickLinkRecordList() << strange << marked(event, "email", "mailto:") << strange
                                        << marked(event, "internet", "http://a") << strange);
    QCOMPARE(tell(m_plugin.page, event), 0);
    QCOMPARE(host().openings, listed("desktop mailto:|host http://a"));
    QCOMPARE(host().messages.size(), 0);
}

void AutomaticLaunchTest::hiddenLinksLaunch_data()
{
    eventRows();
}

void AutomaticLaunchTest::hiddenLinksLaunch()
{
    QFETCH(Event, event);
    QuickLinkRecordList links;
    links << marked(event, "application", "/clock") << marked(event, "email", "mailto:")
          << marked(event, "internet", "http://a");
    for (int i = 0; i < links.size(); ++i) {
        links[i].visible = "0";
        links[i].edit = links[i].delete_ = "0";
    }
    m_plugin.load(links);
    QCOMPARE(tell(m_plugin.page, event), 0);
    QCOMPARE(host().openings, listed("desktop /clock|desktop mailto:|host http://a"));
}

void AutomaticLaunchTest::parametersAreNotPassed_data()
{
    eventRows();
}

void AutomaticLaunchTest::parametersAreNotPassed()
{
    QFETCH(Event, event);
    QuickLinkRecordList links;
    links << marked(event, "application", "/my clock") << marked(event, "email", "mailto:")
          << marked(event, "internet", "http://a");
    for (int i = 0; i < links.size(); ++i)
        links[i].para = "--fast";
    m_plugin.load(links);
    tell(m_plugin.page, event);
    QCOMPARE(host().openings, listed("desktop /my clock|desktop mailto:|host http://a"));
}

void AutomaticLaunchTest::addressIsHandedOverAsTyped_data()
{
    QTest::addColumn<Event>("event");
    QTest::addColumn<QString>("url");
    // No test of the address, and no change: a menu launch would change or refuse most of these.
    const char* const urls[] = {
        "http://Example.ORG/A%41%20b", "HTTP://EXAMPLE.ORG",      "example.org",    "http://[bad",
        " http://example.org ",        "http://example.org:080/", "not an address", "http://b\xc3\xbc\x63her.example/",
        "javascript:alert(1)",         "mailto:a@b.example",      "/usr/bin/xclock"};
    for (const Event event : bothEvents) {
        for (const char* url : urls)
            newEventRow(url, event) << QString::fromUtf8(url);
    }
}

void AutomaticLaunchTest::addressIsHandedOverAsTyped()
{
    QFETCH(Event, event);
    QFETCH(QString, url);
    m_plugin.load(QuickLinkRecordList() << marked(event, "internet", url.toUtf8().constData()));
    QCOMPARE(tell(m_plugin.page, event), 0);
    QCOMPARE(host().openedByHost, QStringList() << url);
    QCOMPARE(host().openedByDesktop.size(), 0);
    QCOMPARE(host().messages.size(), 0);
}

void AutomaticLaunchTest::localAddressesAreQUrls_data()
{
    QTest::addColumn<Event>("event");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("url");
    const char* const urls[] = {"/opt/my tool",    "/opt/my%20tool",         "xclock",
                                "www.example.org", "file:///usr/bin/xclock", "http://example.org/x"};
    for (const Event event : bothEvents) {
        for (const char* type : {"application", "email"}) {
            for (const char* url : urls)
                newEventRow(QByteArray(QByteArray(type) + ' ' + url).constData(), event)
                    << QString::fromUtf8(type) << QString::fromUtf8(url);
        }
    }
}

void AutomaticLaunchTest::localAddressesAreQUrls()
{
    QFETCH(Event, event);
    QFETCH(QString, type);
    QFETCH(QString, url);
    m_plugin.load(QuickLinkRecordList() << marked(event, type.toLatin1().constData(), url.toUtf8().constData()));
    tell(m_plugin.page, event);
    QCOMPARE(host().openedByDesktop, QList<QUrl>() << QUrl(url));
    QCOMPARE(host().openedByHost, QStringList());
}

void AutomaticLaunchTest::failureStopsNothing_data()
{
    eventRows();
}

void AutomaticLaunchTest::failureStopsNothing()
{
    QFETCH(Event, event);
    // No handler takes the scheme, so the desktop answers that it could not open it.
    m_plugin.load(QuickLinkRecordList() << marked(event, "application", "unheard-of:1")
                                        << marked(event, "email", "unheard-of:2") << marked(event, "email", "mailto:")
                                        << marked(event, "internet", "http://a"));
    QCOMPARE(tell(m_plugin.page, event), 0);
    QCOMPARE(host().openings, listed("desktop mailto:|host http://a"));
    QCOMPARE(host().messages.size(), 0);
}

void AutomaticLaunchTest::everyEventLaunchesAgain_data()
{
    eventRows();
}

void AutomaticLaunchTest::everyEventLaunchesAgain()
{
    QFETCH(Event, event);
    m_plugin.load(QuickLinkRecordList() << marked(event, "internet", "http://a") << marked(event, "email", "mailto:")
                                        << marked(event, "application", "/clock"));
    const QStringList once = listed("desktop mailto:|desktop /clock|host http://a");
    tell(m_plugin.page, event);
    QCOMPARE(host().openings, once);
    tell(m_plugin.page, event);
    QCOMPARE(host().openings, once + once);
}

void AutomaticLaunchTest::eventsDoNotMix()
{
    QuickLinkRecord both = marked(ConnectionUp, "email", "mailto:both");
    both.startmobile = "1";
    m_plugin.load(QuickLinkRecordList() << marked(HostStart, "email", "mailto:start")
                                        << marked(ConnectionUp, "email", "mailto:connection") << both
                                        << marked(HostStart, "internet", "http://start")
                                        << marked(ConnectionUp, "internet", "http://connection"));
    tell(m_plugin.page, HostStart);
    QCOMPARE(host().openings, listed("desktop mailto:start|desktop mailto:both|host http://start"));
    host().openings.clear();
    tell(m_plugin.page, ConnectionUp);
    QCOMPARE(host().openings, listed("desktop mailto:connection|desktop mailto:both|host http://connection"));
}

void AutomaticLaunchTest::linksOfTheFile_data()
{
    eventRows();
}

void AutomaticLaunchTest::linksOfTheFile()
{
    QFETCH(Event, event);
    const QList<QuickLinkRecord> links = QList<QuickLinkRecord>() << marked(event, "internet", "http://a/?x=1&y=2")
                                                                  << marked(event, "application", "/my clock")
                                                                  << marked(event, "email", "mailto:", "0");
    QVERIFY(host().writeConfig(configDocument("1", "3", links)));
    m_plugin.page->Init();
    tell(m_plugin.page, event);
    QCOMPARE(host().openings, listed("desktop /my clock|host http://a/?x=1&y=2"));
}

void AutomaticLaunchTest::thousandLinks_data()
{
    eventRows();
}

void AutomaticLaunchTest::thousandLinks()
{
    QFETCH(Event, event);
    QuickLinkRecordList links;
    QStringList expected;
    for (int i = 0; i < 1000; ++i) {
        const QByteArray mail = "mailto:" + QByteArray::number(i);
        links << marked(event, "email", mail.constData()) << marked(event, "internet", QByteArray("http://" + mail));
        expected << "desktop " + QString::fromLatin1(mail);
    }
    expected << "host http://mailto:999";
    m_plugin.load(links);
    tell(m_plugin.page, event);
    QCOMPARE(host().openings, expected);
}

void AutomaticLaunchTest::nothingElseHappens_data()
{
    eventRows();
}

void AutomaticLaunchTest::nothingElseHappens()
{
    QFETCH(Event, event);
    const QuickLinkRecordList links = QuickLinkRecordList()
                                      << marked(event, "internet", "bad") << marked(event, "email", "mailto:");
    m_plugin.load(links);
    tell(m_plugin.page, event);
    QCOMPARE(host().messages.size(), 0);
    QCOMPARE(host().notifications, QStringList());
    QVERIFY(host().readConfig().isEmpty());
    QVERIFY(m_plugin.page->m_actionMap.isEmpty());
    QCOMPARE(m_plugin.page->m_recordList->size(), links.size());
    for (int i = 0; i < links.size(); ++i)
        QCOMPARE(difference(m_plugin.page->m_recordList->at(i), links.at(i)), QString());
}

void AutomaticLaunchTest::withoutList_data()
{
    eventRows();
}

void AutomaticLaunchTest::withoutList()
{
    QFETCH(Event, event);
    const QString pattern = tracePattern(event == ConnectionUp ? "Arg is NULL: %T: %F: launchOnConnection %L"
                                                               : "Arg is NULL: %T: %F: launchOnSoftwareLaunch %L");
    {
        RecordingTrace trace;
        QCOMPARE(tell(m_plugin.page, event), 0);
        QCOMPARE(trace.countDebug(pattern), 1);
        QCOMPARE(trace.warningLines, QStringList());
    }
    m_plugin.load(QuickLinkRecordList() << marked(event, "email", "mailto:"));
    {
        RecordingTrace trace;
        tell(m_plugin.page, event);
        QCOMPARE(trace.countDebug(pattern), 0);
    }
    QCOMPARE(host().openings.size(), 1);
    m_plugin.page->OnDestroy();
    QCOMPARE(tell(m_plugin.page, event), 0);
    QCOMPARE(host().openings.size(), 1);
}

REGISTER_TEST(AutomaticLaunchTest)
#include "AutomaticLaunchTest.moc"
