// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Edit where something is missing: before the dialog is filled, and when its record comes back.

#include <QComboBox>
#include <QLineEdit>

#include "FailingAllocation.h"
#include "ShownPage.h"
#include "QuickLinkSettingNewEditDlg.h"
#include "Test.h"

class PageEditFailuresTest : public QObject
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

void PageEditFailuresTest::openWithChanges()
{
    m_page.select(1);
    m_page.click("m_editBtn");
    m_page.enter("m_appNameEdit", "changed");
}

void PageEditFailuresTest::checkUnchanged(const QByteArray& file)
{
    QCOMPARE(m_page.shownNames(), "a b c");
    QCOMPARE(m_page.listNames(), "a b c");
    QCOMPARE(FakeHost::instance().readConfig(), file);
    QCOMPARE(FakeHost::instance().notifications, QStringList());
}

void PageEditFailuresTest::emptyDialog_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<int>("traces");
    QTest::newRow("no table") << "table" << 1;
    QTest::newRow("nothing selected") << "selection" << 1;
    QTest::newRow("0 in the row") << "0" << 0;
    QTest::newRow("nothing in the row") << "nothing" << 0;
    QTest::newRow("no number in the row") << "text" << 0;
}

void PageEditFailuresTest::emptyDialog()
{
    QFETCH(QString, what);
    QFETCH(int, traces);
    m_page.begin(links("a b"));
    QTableWidget* const table = m_page.table();
    QTableWidgetItem* const item = table->item(0, 0);
    const QVariant before = item->data(Qt::UserRole);
    if (what == "selection")
        table->clearSelection();
    else if (what == "0")
        item->setData(Qt::UserRole, 0);
    else if (what == "nothing")
        item->setData(Qt::UserRole, QVariant());
    else if (what == "text")
        item->setData(Qt::UserRole, "record");
    {
        const Replaced<QTableWidget> missing(m_page.page->m_QLinkListTblView,
                                             what == "table" ? nullptr : table);
        RecordingTrace trace;
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

void PageEditFailuresTest::noMemoryForTheDialog()
{
    m_page.begin(links("a"));
    m_page.click("m_editBtn");
    m_page.pressCancel();
    {
        const FailingAllocation failing(0);
        RecordingTrace trace;
        m_page.page->onEditBtnClick();
        QVERIFY(failing.hasFailed());
        QCOMPARE(trace.countDebug(nullTrace("onEditBtnClick")), 1);
    }
    QVERIFY(!m_page.page->m_editDlg);
    QVERIFY(!m_page.page->m_isEditing);
    QCOMPARE(m_page.liveFrames(), 0);
}

void PageEditFailuresTest::recordComesBackWithout_data()
{
    QTest::addColumn<QString>("missing");
    QTest::addColumn<QString>("function");
    QTest::newRow("no table") << "table" << "AddRecord";
    QTest::newRow("no list") << "list" << "replaceRecordWithEditedRecord";
}

void PageEditFailuresTest::recordComesBackWithout()
{
    QFETCH(QString, missing);
    QFETCH(QString, function);
    m_page.begin(links("a b c"));
    const QByteArray before = FakeHost::instance().readConfig();
    openWithChanges();
    const RecordProbe probe(m_page.recordOf(1));
    {
        const bool noTable = missing == "table";
        const Replaced<QTableWidget> table(m_page.page->m_QLinkListTblView, noTable ? nullptr : m_page.table());
        const Replaced<QuickLinkRecordList> list(m_page.page->m_recordList,
                                                 noTable ? m_page.page->m_recordList : nullptr);
        RecordingTrace trace;
        m_page.pressOk();
        QCOMPARE(trace.countDebug(nullTrace(function.toLatin1().constData())), 1);
    }
    QVERIFY(!probe.isFreed());
    QVERIFY(m_page.page->m_isEditing);
    checkUnchanged(before);
}

void PageEditFailuresTest::noStore()
{
    m_page.begin(links("a b c"));
    const QByteArray before = FakeHost::instance().readConfig();
    openWithChanges();
    {
        const Replaced<QuickLinkXmlParse> store(m_page.page->m_store, nullptr);
        m_page.pressOk();
    }
    QCOMPARE(m_page.shownNames(), "a changed c");
    QCOMPARE(m_page.listNames(), "a changed c");
    QVERIFY(!m_page.page->m_isEditing);
    // Unlike after New, the menu is not told.
    QCOMPARE(FakeHost::instance().notifications, QStringList());
    QCOMPARE(FakeHost::instance().readConfig(), before);
}

void PageEditFailuresTest::recordComesBackToNoRow_data()
{
    QTest::addColumn<QString>("what");
    QTest::newRow("no current row") << "current";
    QTest::newRow("row beyond the list") << "list";
    QTest::newRow("row without an item") << "item";
}

void PageEditFailuresTest::recordComesBackToNoRow()
{
    QFETCH(QString, what);
    m_page.begin(links("a b c"));
    const QByteArray before = FakeHost::instance().readConfig();
    openWithChanges();
    const QuickLinkRecord link = m_page.page->m_recordList->last();
    QTableWidgetItem* taken = nullptr;
    if (what == "current") {
        m_page.table()->selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
    } else if (what == "list") {
        m_page.table()->setCurrentCell(2, 0);
        m_page.page->m_recordList->pop_back();
    } else {
        taken = m_page.table()->takeItem(1, 0);
    }
    {
        RecordingTrace trace;
        m_page.pressOk();
        QCOMPARE(trace.countDebug(tracePattern("%F: replaceRecordWithEditedRecord: refused, .*")), 1);
    }
    if (taken)
        m_page.table()->setItem(1, 0, taken);
    if (what == "list")
        m_page.page->m_recordList->append(link);
    checkUnchanged(before);
    QCOMPARE(m_page.disorder(), QString());
}

void PageEditFailuresTest::cannotReplaceWithNothing()
{
    m_page.begin(links("a b c"));
    const QByteArray before = FakeHost::instance().readConfig();
    RecordingTrace trace;
    m_page.page->replaceRecordWithEditedRecord(nullptr);
    QCOMPARE(trace.countDebug(nullTrace("replaceRecordWithEditedRecord")), 1);
    checkUnchanged(before);
}

void PageEditFailuresTest::rowWithoutOldRecord()
{
    m_page.begin(links("a b c"));
    openWithChanges();
    QuickLinkRecord* const lost = m_page.recordOf(1);
    m_page.table()->item(1, 0)->setData(Qt::UserRole, 0);
    m_page.pressOk();
    QCOMPARE(m_page.shownNames(), "a changed c");
    QCOMPARE(m_page.disorder(), QString());
    m_page.page->freeRecord(lost);
}

void PageEditFailuresTest::pageNotShown()
{
    m_page.beginHidden(links("a"));
    m_page.page->onEditBtnClick();
    QCOMPARE(m_page.liveFrames(), 1);
    QCOMPARE(FakeHost::instance().frames.first().titles, QStringList() << shown("IDS_LINK_SETTING_EDIT_TITLE"));
    QVERIFY(!m_page.page->m_isEditing);
}

REGISTER_TEST(PageEditFailuresTest)
#include "PageEditFailuresTest.moc"
