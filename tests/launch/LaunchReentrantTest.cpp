// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Opening a link runs code of the host and the desktop, which may come back into the plug-in before it returns.

#include <QAction>

#include "LaunchEvents.h"
#include "Test.h"

class LaunchReentrantTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_plugin.make(); }
    void cleanup() { m_plugin.unload(); }

    void automaticLaunch_data();
    void automaticLaunch();
    void sameEventInsideItself_data();
    void sameEventInsideItself();
    void menuLaunch_data();
    void menuLaunch();
    void messageOverAPageThatGoes();
    void menuLaunchInsideTheMessage();

private:
    void change(const QString& what);

    LoadedPlugin m_plugin;
};

namespace
{
const char* const changes[] = {"file read again", "list emptied",   "list grown",   "links renamed",
                               "plug-in ended",   "first removed",  "actions made", "page shown and deleted",
                               "settings saved",  "language change"};
} // namespace

void LaunchReentrantTest::change(const QString& what)
{
    QuickLinkSettingPluginDlg* const page = m_plugin.page;
    if (what == "file read again") {
        page->Init();
    } else if (what == "plug-in ended") {
        page->OnDestroy();
    } else if (what == "actions made") {
        for (int i = 0; i < 500; ++i)
            page->GetActionFromQuickLink(i);
    } else if (what == "page shown and deleted") {
        QWidget parent;
        QRect area(0, 0, 400, 360);
        page->ShowSettingDialog(&parent, area);
    } else if (what == "settings saved") {
        page->m_store->SaveToConfigFile(page->m_recordList, 1);
        page->Init();
    } else if (what == "language change") {
        page->Notify(1024, 0, 0);
    } else if (what == "list emptied") {
        page->m_recordList->clear();
    } else if (what == "list grown") {
        for (int i = 0; i < 500; ++i)
            page->m_recordList->prepend(makeRecord("new", "email", "mailto:new"));
    } else if (what == "links renamed") {
        page->m_recordList->fill(makeRecord("new", "email", "mailto:new"));
    } else if (what == "first removed") {
        if (!page->m_recordList->isEmpty())
            page->m_recordList->remove(0);
    } else {
        QFAIL("a change without code");
    }
}

void LaunchReentrantTest::automaticLaunch_data()
{
    QTest::addColumn<Event>("event");
    QTest::addColumn<QString>("what");
    for (const char* what : changes) {
        QTest::newRow(QByteArray(QByteArray(what) + ", connection").constData()) << ConnectionUp << what;
        QTest::newRow(QByteArray(QByteArray(what) + ", host start").constData()) << HostStart << what;
    }
}

void LaunchReentrantTest::automaticLaunch()
{
    QFETCH(Event, event);
    QFETCH(QString, what);
    m_plugin.load(markedLinks(event, "mailto:1|http://a|/clock|-mailto:no|http://b|mailto:2"));
    host().duringOpening = [this, what] {
        change(what);
    };
    QCOMPARE(tell(m_plugin.page, event), 0);
    QCOMPARE(host().openings, listed("desktop mailto:1|desktop /clock|desktop mailto:2|host http://b"));
}

void LaunchReentrantTest::sameEventInsideItself_data()
{
    QTest::addColumn<Event>("event");
    QTest::newRow("connection") << ConnectionUp;
    QTest::newRow("host start") << HostStart;
}

void LaunchReentrantTest::sameEventInsideItself()
{
    QFETCH(Event, event);
    m_plugin.load(markedLinks(event, "mailto:|http://a"));
    int inner = -2;
    // From the host's opening, since Qt hands a URL that is opened inside a URL handler to no handler again.
    host().duringOpening = [this, event, &inner] {
        if (host().openings.size() == 2)
            inner = tell(m_plugin.page, event);
    };
    QCOMPARE(tell(m_plugin.page, event), 0);
    QCOMPARE(inner, 0);
    const QStringList once = listed("desktop mailto:|host http://a");
    QCOMPARE(host().openings, once + once);
}

void LaunchReentrantTest::menuLaunch_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<int>("link");
    for (const char* what : changes) {
        for (int link = 0; link < 4; ++link)
            QTest::newRow(QByteArray(QByteArray(what) + ", link " + QByteArray::number(link)).constData())
                << what << link;
    }
}

void LaunchReentrantTest::menuLaunch()
{
    QFETCH(QString, what);
    QFETCH(int, link);
    m_plugin.load(
        QuickLinkRecordList() << makeRecord("Clock", "application", "/clock") << makeRecord("Mail", "email", "mailto:")
                              << makeRecord("News", "internet", "http://a") << makeRecord("Bad", "internet", "bad"));
    QAction* const action = m_plugin.page->GetActionFromQuickLink(link);
    host().duringOpening = host().duringMessage = [this, what] {
        change(what);
    };
    m_plugin.page->LaunchQuickLinkAction(action);
    QCOMPARE(host().openings.size(), link == 3 ? 0 : 1);
    QCOMPARE(host().messages.size(), link == 3 ? 1 : 0);
}

void LaunchReentrantTest::messageOverAPageThatGoes()
{
    m_plugin.load(QuickLinkRecordList() << makeRecord("Bad", "internet", "bad"));
    QScopedPointer<QWidget> parent(new QWidget);
    QRect area(0, 0, 400, 360);
    m_plugin.page->ShowSettingDialog(parent.data(), area);
    host().duringMessage = [&parent] {
        parent.reset();
    };
    m_plugin.page->LaunchQuickLinkAction(m_plugin.page->GetActionFromQuickLink(0));
    QCOMPARE(host().messages.size(), 1);
    QVERIFY(host().messages.at(0).hasParent);
    QVERIFY(!m_plugin.page->m_pageWidget);
}

void LaunchReentrantTest::menuLaunchInsideTheMessage()
{
    m_plugin.load(QuickLinkRecordList() << makeRecord("Bad", "internet", "bad")
                                        << makeRecord("Mail", "email", "mailto:"));
    QAction* const mail = m_plugin.page->GetActionFromQuickLink(1);
    host().duringMessage = [this, mail] {
        m_plugin.page->LaunchQuickLinkAction(mail);
    };
    m_plugin.page->LaunchQuickLinkAction(m_plugin.page->GetActionFromQuickLink(0));
    QCOMPARE(host().messages.size(), 1);
    QCOMPARE(host().openings, QStringList() << "desktop mailto:");
}

REGISTER_TEST(LaunchReentrantTest)
#include "LaunchReentrantTest.moc"
