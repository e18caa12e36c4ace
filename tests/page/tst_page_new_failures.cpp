// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// New where something is missing, and a list that the file does not give back as it was.

#include <QtTest>

#include "FailingAllocations.h"
#include "PageFixture.h"
#include "QuickLinkSettingNewEditDlg.h"

class PageNewFailures : public QObject
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

void PageNewFailures::noMemoryForTheDialog()
{
    m_page.begin(links("a"));
    m_page.click("m_newBtn");
    {
        const FailingAllocation failing(0);
        TraceRecorder trace;
        m_page.page->onNewBtnClick();
        QVERIFY(failing.hasFailed());
        QCOMPARE(trace.countDebug(nullTrace("onNewBtnClick")), 1);
    }
    QVERIFY(!m_page.page->m_newDlg);
    QCOMPARE(m_page.liveFrames(), 0);
}

void PageNewFailures::noRecord()
{
    m_page.begin(links("a"));
    const QByteArray before = FakeHost::instance().readConfig();
    TraceRecorder trace;
    m_page.page->AddRecord(nullptr);
    QCOMPARE(trace.countDebug(nullTrace("AddRecord")), 1);
    QCOMPARE(m_page.disorder(), QString());
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a"));
    QCOMPARE(FakeHost::instance().readConfig(), before);
    QCOMPARE(FakeHost::instance().notifications, QStringList());
}

void PageNewFailures::noTable()
{
    m_page.begin(links("a"));
    const QByteArray before = FakeHost::instance().readConfig();
    QuickLinkRecord record = makeRecord("b", "email", "mailto:");
    {
        const NullMember missing(memberOf(m_page.page, QLatin1String("m_QLinkListTblView")));
        TraceRecorder trace;
        m_page.page->AddRecord(&record);
        QCOMPARE(trace.countDebug(nullTrace("AddRecord")), 1);
    }
    QCOMPARE(m_page.listNames(), QString::fromLatin1("a"));
    QCOMPARE(FakeHost::instance().readConfig(), before);
    QCOMPARE(FakeHost::instance().notifications, QStringList());
}

void PageNewFailures::noList()
{
    m_page.begin(links("a"));
    const QByteArray before = FakeHost::instance().readConfig();
    m_page.click("m_newBtn");
    m_page.chooseType(1);
    m_page.enter("m_appNameEdit", QLatin1String("b"));
    {
        const Replaced<QuickLinkRecordList> list(m_page.page->m_recordList, nullptr);
        m_page.pressOk();
    }
    QCOMPARE(FakeHost::instance().readConfig(), before);
    QCOMPARE(m_page.listNames(), QString::fromLatin1("a"));
}

void PageNewFailures::noStore()
{
    m_page.begin(links("a"));
    const QByteArray before = FakeHost::instance().readConfig();
    {
        const Replaced<QuickLinkXmlParse> store(m_page.page->m_store, nullptr);
        m_page.addLink(1, "b");
    }
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a b"));
    QCOMPARE(m_page.listNames(), QString::fromLatin1("a b"));
    QCOMPARE(m_page.page->m_recordList->at(1).id, QString());
    QCOMPARE(m_page.currentRow(), 1);
    QCOMPARE(FakeHost::instance().readConfig(), before);
    QCOMPARE(FakeHost::instance().notifications.size(), 1);
}

void PageNewFailures::noMenuManager()
{
    m_page.begin(links("a"));
    FakeHost::instance().hasContainer = false;
    {
        TraceRecorder trace;
        m_page.addLink(1, "b");
        QCOMPARE(trace.countWarnings(tracePattern("%F: sendNotifyToMenu: Plugin container is null ")), 1);
    }
    QCOMPARE(m_page.disorder(), QString());
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("2"));
}

void PageNewFailures::pageNotShown()
{
    // Before the page is there, New opens a dialog of its own, which has nowhere to put its record.
    m_page.beginHidden(links("a"));
    const QByteArray before = FakeHost::instance().readConfig();
    m_page.page->onNewBtnClick();
    QCOMPARE(m_page.liveFrames(), 1);
    QVERIFY(!m_page.frame()->parent());
    m_page.chooseType(1);
    m_page.enter("m_appNameEdit", QLatin1String("b"));
    m_page.pressOk();
    QCOMPARE(m_page.listNames(), QString::fromLatin1("a"));
    QCOMPARE(FakeHost::instance().readConfig(), before);
    QVERIFY(!m_page.frame()->isVisible());
}

void PageNewFailures::hiddenLinksGoAtTheReRead()
{
    m_page.beginHidden(links("a b"));
    (*m_page.page->m_recordList)[0].visible = QLatin1String("0");
    m_page.show();
    m_page.addLink(1, "c");
    // The table is filled only when the page is shown: it has a row more than the list until then.
    QCOMPARE(m_page.listNames(), QString::fromLatin1("b c"));
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a b c"));
    QCOMPARE(m_page.currentRow(), 2);
    const QByteArray file = FakeHost::instance().readConfig();

    // The row without a link moves nowhere, is not edited and not deleted.
    m_page.click("m_upBtn");
    m_page.click("m_deleteBtn");
    m_page.click("m_editBtn");
    m_page.pressOk();
    QCOMPARE(m_page.listNames(), QString::fromLatin1("b c"));
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a b c"));
    QCOMPARE(FakeHost::instance().readConfig(), file);

    m_page.show();
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("b c"));
}

void PageNewFailures::editedLinksShareTheNewId()
{
    m_page.begin(links("a b c"));
    m_page.select(1);
    m_page.click("m_editBtn");
    m_page.enter("m_appNameEdit", QLatin1String("changed"));
    m_page.pressOk();
    m_page.addLink(1, "d");
    QStringList ids;
    for (const QuickLinkRecord& record : *m_page.page->m_recordList)
        ids.append(record.id);
    QCOMPARE(ids.join(QLatin1String(" ")), QString::fromLatin1("0 3 2 3"));
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("4"));
}

QTEST_MAIN(PageNewFailures)
#include "tst_page_new_failures.moc"
