// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// New where something is missing, and a list that the file does not give back as it was.


#include "FailingAllocation.h"
#include "ShownPage.h"
#include "QuickLinkSettingNewEditDlg.h"
#include "Test.h"

class PageNewFailuresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void noMemoryForTheDialog();
    void noRecord();
    void noTable();
    void noList();
    void noStore();
    void noMenuManager();
    void pageNotShown();
    void hiddenLinksGoAtTheReRead();
    void editedLinksShareTheNewId();

private:
    ShownPage m_page;
};

void PageNewFailuresTest::noMemoryForTheDialog()
{
    m_page.begin(links("a"));
    m_page.click("m_newBtn");
    {
        const FailingAllocation failing(0);
        RecordingTrace trace;
        m_page.page->onNewBtnClick();
        QVERIFY(failing.hasFailed());
        QCOMPARE(trace.countDebug(nullTrace("onNewBtnClick")), 1);
    }
    QVERIFY(!m_page.page->m_newDlg);
    QCOMPARE(m_page.liveFrames(), 0);
}

void PageNewFailuresTest::noRecord()
{
    m_page.begin(links("a"));
    const QByteArray before = FakeHost::instance().readConfig();
    RecordingTrace trace;
    m_page.page->AddRecord(nullptr);
    QCOMPARE(trace.countDebug(nullTrace("AddRecord")), 1);
    QCOMPARE(m_page.disorder(), QString());
    QCOMPARE(m_page.shownNames(), "a");
    QCOMPARE(FakeHost::instance().readConfig(), before);
    QCOMPARE(FakeHost::instance().notifications, QStringList());
}

void PageNewFailuresTest::noTable()
{
    m_page.begin(links("a"));
    const QByteArray before = FakeHost::instance().readConfig();
    QuickLinkRecord record = makeRecord("b", "email", "mailto:");
    {
        const NullMember missing(memberOf(m_page.page, "m_QLinkListTblView"));
        RecordingTrace trace;
        m_page.page->AddRecord(&record);
        QCOMPARE(trace.countDebug(nullTrace("AddRecord")), 1);
    }
    QCOMPARE(m_page.listNames(), "a");
    QCOMPARE(FakeHost::instance().readConfig(), before);
    QCOMPARE(FakeHost::instance().notifications, QStringList());
}

void PageNewFailuresTest::noList()
{
    m_page.begin(links("a"));
    const QByteArray before = FakeHost::instance().readConfig();
    m_page.click("m_newBtn");
    m_page.chooseType(1);
    m_page.enter("m_appNameEdit", "b");
    {
        const Replaced<QuickLinkRecordList> list(m_page.page->m_recordList, nullptr);
        m_page.pressOk();
    }
    QCOMPARE(FakeHost::instance().readConfig(), before);
    QCOMPARE(m_page.listNames(), "a");
}

void PageNewFailuresTest::noStore()
{
    m_page.begin(links("a"));
    const QByteArray before = FakeHost::instance().readConfig();
    {
        const Replaced<QuickLinkXmlParse> store(m_page.page->m_store, nullptr);
        m_page.addLink(1, "b");
    }
    QCOMPARE(m_page.shownNames(), "a b");
    QCOMPARE(m_page.listNames(), "a b");
    QCOMPARE(m_page.page->m_recordList->at(1).id, QString());
    QCOMPARE(m_page.currentRow(), 1);
    QCOMPARE(FakeHost::instance().readConfig(), before);
    QCOMPARE(FakeHost::instance().notifications.size(), 1);
}

void PageNewFailuresTest::noMenuManager()
{
    m_page.begin(links("a"));
    FakeHost::instance().hasContainer = false;
    {
        RecordingTrace trace;
        m_page.addLink(1, "b");
        QCOMPARE(trace.countWarnings(tracePattern("%F: sendNotifyToMenu: Plugin container is null ")), 1);
    }
    QCOMPARE(m_page.disorder(), QString());
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("2"));
}

void PageNewFailuresTest::pageNotShown()
{
    // Before the page is there, New opens a dialog of its own, which has nowhere to put its record.
    m_page.beginHidden(links("a"));
    const QByteArray before = FakeHost::instance().readConfig();
    m_page.page->onNewBtnClick();
    QCOMPARE(m_page.liveFrames(), 1);
    QVERIFY(!m_page.frame()->parent());
    m_page.chooseType(1);
    m_page.enter("m_appNameEdit", "b");
    m_page.pressOk();
    QCOMPARE(m_page.listNames(), "a");
    QCOMPARE(FakeHost::instance().readConfig(), before);
    QVERIFY(!m_page.frame()->isVisible());
}

void PageNewFailuresTest::hiddenLinksGoAtTheReRead()
{
    m_page.beginHidden(links("a b"));
    (*m_page.page->m_recordList)[0].visible = "0";
    m_page.show();
    m_page.addLink(1, "c");
    // The table is filled only when the page is shown: it has a row more than the list until then.
    QCOMPARE(m_page.listNames(), "b c");
    QCOMPARE(m_page.shownNames(), "a b c");
    QCOMPARE(m_page.currentRow(), 2);
    const QByteArray file = FakeHost::instance().readConfig();

    // The row without a link moves nowhere, is not edited and not deleted.
    m_page.click("m_upBtn");
    m_page.click("m_deleteBtn");
    m_page.click("m_editBtn");
    m_page.pressOk();
    QCOMPARE(m_page.listNames(), "b c");
    QCOMPARE(m_page.shownNames(), "a b c");
    QCOMPARE(FakeHost::instance().readConfig(), file);

    m_page.show();
    QCOMPARE(m_page.shownNames(), "b c");
}

void PageNewFailuresTest::editedLinksShareTheNewId()
{
    m_page.begin(links("a b c"));
    m_page.select(1);
    m_page.click("m_editBtn");
    m_page.enter("m_appNameEdit", "changed");
    m_page.pressOk();
    m_page.addLink(1, "d");
    QStringList ids;
    for (const QuickLinkRecord& record : *m_page.page->m_recordList)
        ids.append(record.id);
    QCOMPARE(ids.join(" "), "0 3 2 3");
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("4"));
}

REGISTER_TEST(PageNewFailuresTest)
#include "PageNewFailuresTest.moc"
