// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Edit where something is missing: before the dialog is filled, and when its record comes back.

#include <QComboBox>
#include <QLineEdit>
#include <QtTest>

#include "FailingAllocations.h"
#include "PageFixture.h"
#include "QuickLinkSettingNewEditDlg.h"

class PageEditFailures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void emptyDialog_data();
    void emptyDialog();
    void noMemoryForTheDialog();
    void recordComesBackWithout_data();
    void recordComesBackWithout();
    void noStore();
    void recordComesBackToNoRow_data();
    void recordComesBackToNoRow();
    void cannotReplaceWithNothing();
    void rowWithoutOldRecord();
    void pageNotShown();

private:
    void openWithChanges();
    void checkUnchanged(const QByteArray& file);

    ShownPage m_page;
};

void PageEditFailures::openWithChanges()
{
    m_page.select(1);
    m_page.click("m_editBtn");
    m_page.enter("m_appNameEdit", QLatin1String("changed"));
}

void PageEditFailures::checkUnchanged(const QByteArray& file)
{
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a b c"));
    QCOMPARE(m_page.listNames(), QString::fromLatin1("a b c"));
    QCOMPARE(FakeHost::instance().readConfig(), file);
    QCOMPARE(FakeHost::instance().notifications, QStringList());
}

void PageEditFailures::emptyDialog_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<int>("traces");
    QTest::newRow("no table") << QString::fromLatin1("table") << 1;
    QTest::newRow("nothing selected") << QString::fromLatin1("selection") << 1;
    QTest::newRow("0 in the row") << QString::fromLatin1("0") << 0;
    QTest::newRow("nothing in the row") << QString::fromLatin1("nothing") << 0;
    QTest::newRow("no number in the row") << QString::fromLatin1("text") << 0;
}

void PageEditFailures::emptyDialog()
{
    QFETCH(QString, what);
    QFETCH(int, traces);
    m_page.begin(links("a b"));
    QTableWidget* const table = m_page.table();
    QTableWidgetItem* const item = table->item(0, 0);
    const QVariant before = item->data(Qt::UserRole);
    if (what == QLatin1String("selection"))
        table->clearSelection();
    else if (what == QLatin1String("0"))
        item->setData(Qt::UserRole, 0);
    else if (what == QLatin1String("nothing"))
        item->setData(Qt::UserRole, QVariant());
    else if (what == QLatin1String("text"))
        item->setData(Qt::UserRole, QLatin1String("record"));
    {
        const Replaced<QTableWidget> missing(m_page.page->m_QLinkListTblView,
                                             what == QLatin1String("table") ? nullptr : table);
        TraceRecorder trace;
        m_page.page->onEditBtnClick();
        QCOMPARE(trace.countDebug(nullTrace("onEditBtnClick")), traces);
    }
    item->setData(Qt::UserRole, before);

    // It is shown all the same, with its title, but empty, in New mode and connected to nothing.
    QVERIFY(m_page.frame()->isVisible());
    QCOMPARE(FakeHost::instance().frames.first().titles, QStringList() << shown("IDS_LINK_SETTING_EDIT_TITLE"));
    QCOMPARE(m_page.inDialog<QLineEdit>("m_appNameEdit")->text(), QString());
    QCOMPARE(m_page.inDialog<QComboBox>("m_appTypeChoice")->currentIndex(), 0);
    QVERIFY(!m_page.page->m_editDlg->m_isEdit);
    QVERIFY(!m_page.page->m_isEditing);
    QCOMPARE(m_page.page->m_editDlg->receivers(SIGNAL(addRecord(QuickLinkRecord*))), 0);
    QCOMPARE(m_page.page->m_editDlg->receivers(SIGNAL(cancelNewButton())), 0);
}

void PageEditFailures::noMemoryForTheDialog()
{
    m_page.begin(links("a"));
    m_page.click("m_editBtn");
    m_page.pressCancel();
    {
        const FailingAllocation failing(0);
        TraceRecorder trace;
        m_page.page->onEditBtnClick();
        QVERIFY(failing.hasFailed());
        QCOMPARE(trace.countDebug(nullTrace("onEditBtnClick")), 1);
    }
    QVERIFY(!m_page.page->m_editDlg);
    QVERIFY(!m_page.page->m_isEditing);
    QCOMPARE(m_page.liveFrames(), 0);
}

void PageEditFailures::recordComesBackWithout_data()
{
    QTest::addColumn<QString>("missing");
    QTest::addColumn<QString>("function");
    QTest::newRow("no table") << QString::fromLatin1("table") << QString::fromLatin1("AddRecord");
    QTest::newRow("no list") << QString::fromLatin1("list") << QString::fromLatin1("replaceRecordWithEditedRecord");
}

void PageEditFailures::recordComesBackWithout()
{
    QFETCH(QString, missing);
    QFETCH(QString, function);
    m_page.begin(links("a b c"));
    const QByteArray before = FakeHost::instance().readConfig();
    openWithChanges();
    const RecordProbe probe(m_page.recordOf(1));
    {
        const bool noTable = missing == QLatin1String("table");
        const Replaced<QTableWidget> table(m_page.page->m_QLinkListTblView, noTable ? nullptr : m_page.table());
        const Replaced<QuickLinkRecordList> list(m_page.page->m_recordList,
                                                 noTable ? m_page.page->m_recordList : nullptr);
        TraceRecorder trace;
        m_page.pressOk();
        QCOMPARE(trace.countDebug(nullTrace(function.toLatin1().constData())), 1);
    }
    QVERIFY(!probe.isFreed());
    QVERIFY(m_page.page->m_isEditing);
    checkUnchanged(before);
}

void PageEditFailures::noStore()
{
    m_page.begin(links("a b c"));
    const QByteArray before = FakeHost::instance().readConfig();
    openWithChanges();
    {
        const Replaced<QuickLinkXmlParse> store(m_page.page->m_store, nullptr);
        m_page.pressOk();
    }
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a changed c"));
    QCOMPARE(m_page.listNames(), QString::fromLatin1("a changed c"));
    QVERIFY(!m_page.page->m_isEditing);
    // Unlike after New, the menu is not told.
    QCOMPARE(FakeHost::instance().notifications, QStringList());
    QCOMPARE(FakeHost::instance().readConfig(), before);
}

void PageEditFailures::recordComesBackToNoRow_data()
{
    QTest::addColumn<QString>("what");
    QTest::newRow("no current row") << QString::fromLatin1("current");
    QTest::newRow("row beyond the list") << QString::fromLatin1("list");
    QTest::newRow("row without an item") << QString::fromLatin1("item");
}

void PageEditFailures::recordComesBackToNoRow()
{
    QFETCH(QString, what);
    m_page.begin(links("a b c"));
    const QByteArray before = FakeHost::instance().readConfig();
    openWithChanges();
    const QuickLinkRecord link = m_page.page->m_recordList->last();
    QTableWidgetItem* taken = nullptr;
    if (what == QLatin1String("current")) {
        m_page.table()->selectionModel()->clearCurrentIndex();
    } else if (what == QLatin1String("list")) {
        m_page.table()->setCurrentCell(2, 0);
        m_page.page->m_recordList->removeLast();
    } else {
        taken = m_page.table()->takeItem(1, 0);
    }
    {
        TraceRecorder trace;
        m_page.pressOk();
        QCOMPARE(trace.countDebug(tracePattern("%F: replaceRecordWithEditedRecord: refused, .*")), 1);
    }
    if (taken)
        m_page.table()->setItem(1, 0, taken);
    if (what == QLatin1String("list"))
        m_page.page->m_recordList->append(link);
    checkUnchanged(before);
    QCOMPARE(m_page.disorder(), QString());
}

void PageEditFailures::cannotReplaceWithNothing()
{
    m_page.begin(links("a b c"));
    const QByteArray before = FakeHost::instance().readConfig();
    TraceRecorder trace;
    m_page.page->replaceRecordWithEditedRecord(nullptr);
    QCOMPARE(trace.countDebug(nullTrace("replaceRecordWithEditedRecord")), 1);
    checkUnchanged(before);
}

void PageEditFailures::rowWithoutOldRecord()
{
    m_page.begin(links("a b c"));
    openWithChanges();
    QuickLinkRecord* const lost = m_page.recordOf(1);
    m_page.table()->item(1, 0)->setData(Qt::UserRole, 0);
    m_page.pressOk();
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a changed c"));
    QCOMPARE(m_page.disorder(), QString());
    m_page.page->freeRecord(lost);
}

void PageEditFailures::pageNotShown()
{
    m_page.beginHidden(links("a"));
    m_page.page->onEditBtnClick();
    QCOMPARE(m_page.liveFrames(), 1);
    QCOMPARE(FakeHost::instance().frames.first().titles, QStringList() << shown("IDS_LINK_SETTING_EDIT_TITLE"));
    QVERIFY(!m_page.page->m_isEditing);
}

QTEST_MAIN(PageEditFailures)
#include "tst_page_edit_failures.moc"
