// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The table where something is missing or memory is short, and freeing the records of its rows.


#include "FailingAllocation.h"
#include "ShownPage.h"
#include "Test.h"

class PageTableFailuresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void fillWithout_data();
    void fillWithout();
    void rowWithout_data();
    void rowWithout();
    void rowOutsideTheTable_data();
    void rowOutsideTheTable();
    void rightsWithout_data();
    void rightsWithout();
    void rulesWithout_data();
    void rulesWithout();
    void selectionWithoutTable();
    void noMemoryForAHeader_data();
    void noMemoryForAHeader();
    void noMemoryForARecord_data();
    void noMemoryForARecord();
    void noMemoryForAnItem_data();
    void noMemoryForAnItem();
    void releaseFreesEveryRecord();
    void releaseLeavesTheRows();
    void releaseWithoutTable();
    void releaseStopsEarly_data();
    void releaseStopsEarly();

private:
    void buildOnly(const char* names);

    ShownPage m_page;
};

void PageTableFailuresTest::buildOnly(const char* names)
{
    m_page.beginHidden(links(names));
    m_page.page->createWidgetMemory(m_page.host);
    m_page.page->initializeUI();
}

void PageTableFailuresTest::fillWithout_data()
{
    QTest::addColumn<QString>("missing");
    QTest::newRow("no table") << "table";
    QTest::newRow("no list") << "list";
}

void PageTableFailuresTest::fillWithout()
{
    QFETCH(QString, missing);
    buildOnly("a b");
    QTableWidget* const table = m_page.table();
    {
        const bool noTable = missing == "table";
        const Replaced<QTableWidget> otherTable(m_page.page->m_QLinkListTblView, noTable ? nullptr : table);
        const Replaced<QuickLinkRecordList> otherList(m_page.page->m_recordList,
                                                      noTable ? m_page.page->m_recordList : nullptr);
        RecordingTrace trace;
        m_page.page->fillTable();
        QCOMPARE(trace.countDebug(nullTrace("fillTable")), 1);
    }
    // The parts are made before anything is checked.
    QVERIFY(m_page.page->m_nameHeaderItem && m_page.page->m_typeHeaderItem && m_page.page->m_gridDelegate);
    QCOMPARE(table->rowCount(), 0);
    QCOMPARE(table->columnCount(), 0);
    QVERIFY(table->showGrid());
    QCOMPARE(m_page.enabledButtons(), "New");
}

void PageTableFailuresTest::rowWithout_data()
{
    QTest::addColumn<bool>("hasRecord");
    QTest::newRow("no record") << false;
    QTest::newRow("no table") << true;
}

void PageTableFailuresTest::rowWithout()
{
    QFETCH(bool, hasRecord);
    m_page.begin(links("a b"));
    QuickLinkRecord record = makeRecord("Other", "email", "mailto:");
    {
        const Replaced<QTableWidget> table(m_page.page->m_QLinkListTblView, hasRecord ? nullptr : m_page.table());
        RecordingTrace trace;
        m_page.page->populateTableRow(hasRecord ? &record : nullptr, 0);
        QCOMPARE(trace.debugDifference(QStringList() << tracePattern("%F: populateTableRow: %T : Entered ")
                                                     << nullTrace("populateTableRow")),
                 QString());
    }
    QCOMPARE(m_page.disorder(), QString());
}

void PageTableFailuresTest::rowOutsideTheTable_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("-1") << -1;
    QTest::newRow("2") << 2;
}

void PageTableFailuresTest::rowOutsideTheTable()
{
    QFETCH(int, row);
    m_page.begin(links("a b"));
    QuickLinkRecord record = makeRecord("Other", "email", "mailto:");
    m_page.page->populateTableRow(&record, row);
    QCOMPARE(m_page.disorder(), QString());
    QCOMPARE(m_page.page->m_rowRecords.size(), 2);
}

void PageTableFailuresTest::rightsWithout_data()
{
    addMemberRows(names("m_QLinkListTblView m_deleteBtn m_editBtn"));
}

void PageTableFailuresTest::rightsWithout()
{
    QFETCH(QString, member);
    m_page.begin(links("a b"));
    m_page.button("m_editBtn")->setEnabled(false);
    m_page.button("m_deleteBtn")->setEnabled(false);
    {
        const NullMember missing(memberOf(m_page.page, member));
        RecordingTrace trace;
        m_page.page->enableDeleteEditButton();
        QCOMPARE(trace.countDebug(nullTrace("enableDeleteEditButton")), 1);
    }
    QCOMPARE(m_page.enabledButtons(), "New Down");
}

void PageTableFailuresTest::rulesWithout_data()
{
    addMemberRows(names("m_QLinkListTblView m_upBtn m_downBtn"));
}

void PageTableFailuresTest::rulesWithout()
{
    QFETCH(QString, member);
    m_page.begin(links("a b"));
    m_page.button("m_editBtn")->setEnabled(false);
    m_page.button("m_downBtn")->setEnabled(false);
    {
        const NullMember missing(memberOf(m_page.page, member));
        RecordingTrace trace;
        m_page.page->onClickQuickLinkRow(0);
        QCOMPARE(trace.countDebug(nullTrace("onClickQuickLinkRow")), 1);
    }
    QCOMPARE(m_page.enabledButtons(), "New Delete");
}

void PageTableFailuresTest::selectionWithoutTable()
{
    m_page.begin(links("a b"));
    m_page.button("m_editBtn")->setEnabled(false);
    {
        const NullMember missing(memberOf(m_page.page, "m_QLinkListTblView"));
        RecordingTrace trace;
        m_page.page->onTableSelectionChanged();
        QCOMPARE(trace.countDebug(nullTrace("onTableSelectionChanged")), 1);
    }
    QCOMPARE(m_page.enabledButtons(), "New Delete Down");
}

void PageTableFailuresTest::noMemoryForAHeader_data()
{
    QTest::addColumn<int>("which");
    QTest::newRow("name") << 0;
    QTest::newRow("type") << 1;
}

void PageTableFailuresTest::noMemoryForAHeader()
{
    QFETCH(int, which);
    buildOnly("a b");
    {
        const FailingAllocation failing(which);
        RecordingTrace trace;
        m_page.page->fillTable();
        QVERIFY(failing.hasFailed());
        QCOMPARE(trace.countDebug(nullTrace("fillTable")), 1);
    }
    QCOMPARE(m_page.table()->columnCount(), 0);
    QCOMPARE(m_page.table()->rowCount(), 0);
}

void PageTableFailuresTest::noMemoryForARecord_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("first row") << 0;
    QTest::newRow("second row") << 1;
    QTest::newRow("last row") << 2;
}

void PageTableFailuresTest::noMemoryForARecord()
{
    QFETCH(int, row);
    buildOnly("a b c");
    {
        // Two headers, then a record and two items a row.
        const FailingAllocation failing(2 + 3 * row);
        RecordingTrace trace;
        m_page.page->fillTable();
        QVERIFY(failing.hasFailed());
        QCOMPARE(trace.countDebug(tracePattern("Arg is NULL: %T: %F: .* %L")), 1);
        QCOMPARE(trace.countDebug(tracePattern("End of %F: fillTable: %L: ")), 0);
    }
    QCOMPARE(m_page.table()->rowCount(), 3);
    for (int each = 0; each < 3; ++each)
        QCOMPARE(m_page.table()->item(each, 0) != nullptr, each < row);
    QCOMPARE(m_page.currentRow(), -1);
    QCOMPARE(m_page.enabledButtons(), "New");
    QVERIFY(m_page.table()->updatesEnabled());
}

void PageTableFailuresTest::noMemoryForAnItem_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::newRow("name of the first row") << 0 << 0;
    QTest::newRow("type of the first row") << 0 << 1;
    QTest::newRow("name of the second row") << 1 << 0;
    QTest::newRow("type of the second row") << 1 << 1;
}

void PageTableFailuresTest::noMemoryForAnItem()
{
    QFETCH(int, row);
    QFETCH(int, column);
    buildOnly("a b c");
    {
        const FailingAllocation failing(2 + 3 * row + 1 + column);
        RecordingTrace trace;
        m_page.page->fillTable();
        QVERIFY(failing.hasFailed());
        QCOMPARE(trace.countDebug(tracePattern("%F: populateTableRow: %T : Memory not available ")), 1);
        QCOMPARE(trace.countDebug(tracePattern("%F: populateTableRow: %T : Entered ")), 3);
    }
    // Only that row is incomplete; the fill goes on.
    for (int each = 0; each < 3; ++each) {
        QCOMPARE(m_page.table()->item(each, 0) != nullptr, each != row || column == 1);
        QCOMPARE(m_page.table()->item(each, 1) != nullptr, each != row);
    }
    QCOMPARE(m_page.table()->rowHeight(row), 14);
    QCOMPARE(m_page.currentRow(), 0);
    // The release of the table stops at a row without a record and leaves the rows after it to the test.
    for (int each = row + 1; column == 0 && each < 3; ++each)
        m_page.page->freeRecord(m_page.recordOf(each));
}

void PageTableFailuresTest::releaseFreesEveryRecord()
{
    m_page.begin(links("a b c"));
    const RecordProbe first(m_page.recordOf(0));
    const RecordProbe second(m_page.recordOf(1));
    const RecordProbe third(m_page.recordOf(2));
    m_page.page->releaseTable();
    QVERIFY(first.isFreed());
    QVERIFY(second.isFreed());
    QVERIFY(third.isFreed());
}

void PageTableFailuresTest::releaseLeavesTheRows()
{
    m_page.begin(links("a b c"));
    const QVariant before = m_page.table()->item(1, 0)->data(Qt::UserRole);
    m_page.page->releaseTable();
    QCOMPARE(m_page.shownNames(), "a b c");
    QCOMPARE(m_page.table()->item(1, 0)->data(Qt::UserRole), before);
}

void PageTableFailuresTest::releaseWithoutTable()
{
    m_page.beginHidden(links("a"));
    m_page.page->releaseTable();
    QVERIFY(!m_page.page->m_QLinkListTblView);
}

void PageTableFailuresTest::releaseStopsEarly_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QVariant>("data");
    QTest::newRow("0 in the first row") << 0 << QVariant(0);
    QTest::newRow("0 in the second row") << 1 << QVariant(0);
    QTest::newRow("nothing in the second row") << 1 << QVariant();
    QTest::newRow("no number in the second row") << 1 << QVariant("record");
    QTest::newRow("0 in the last row") << 2 << QVariant(0);
}

void PageTableFailuresTest::releaseStopsEarly()
{
    QFETCH(int, row);
    QFETCH(QVariant, data);
    m_page.begin(links("a b c"));
    QList<QuickLinkRecord*> records;
    QList<RecordProbe> probes;
    for (int each = 0; each < 3; ++each) {
        records.append(m_page.recordOf(each));
        probes.append(RecordProbe(records.last()));
    }
    m_page.table()->item(row, 0)->setData(Qt::UserRole, data);
    m_page.page->releaseTable();
    for (int each = 0; each < 3; ++each) {
        QCOMPARE(probes.at(each).isFreed(), each < row);
        if (each >= row)
            delete records.at(each);
    }
}

REGISTER_TEST(PageTableFailuresTest)
#include "PageTableFailuresTest.moc"
