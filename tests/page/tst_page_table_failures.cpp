// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The table where something is missing or memory is short, and freeing the records of its rows.

#include <QtTest>

#include "FailingAllocations.h"
#include "PageFixture.h"

class PageTableFailures : public QObject
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

void PageTableFailures::buildOnly(const char* names)
{
    m_page.beginHidden(links(names));
    m_page.page->createWidgetMemory(m_page.host);
    m_page.page->initializeUI();
}

void PageTableFailures::fillWithout_data()
{
    QTest::addColumn<QString>("missing");
    QTest::newRow("no table") << QString::fromLatin1("table");
    QTest::newRow("no list") << QString::fromLatin1("list");
}

void PageTableFailures::fillWithout()
{
    QFETCH(QString, missing);
    buildOnly("a b");
    QTableWidget* const table = m_page.table();
    {
        const bool noTable = missing == QLatin1String("table");
        const Replaced<QTableWidget> otherTable(m_page.page->m_QLinkListTblView, noTable ? nullptr : table);
        const Replaced<QuickLinkRecordList> otherList(m_page.page->m_recordList,
                                                      noTable ? m_page.page->m_recordList : nullptr);
        TraceRecorder trace;
        m_page.page->fillTable();
        QCOMPARE(trace.countDebug(nullTrace("fillTable")), 1);
    }
    // The parts are made before anything is checked.
    QVERIFY(m_page.page->m_nameHeaderItem && m_page.page->m_typeHeaderItem && m_page.page->m_gridDelegate);
    QCOMPARE(table->rowCount(), 0);
    QCOMPARE(table->columnCount(), 0);
    QVERIFY(table->showGrid());
    QCOMPARE(m_page.enabledButtons(), QString::fromLatin1("New"));
}

void PageTableFailures::rowWithout_data()
{
    QTest::addColumn<bool>("hasRecord");
    QTest::newRow("no record") << false;
    QTest::newRow("no table") << true;
}

void PageTableFailures::rowWithout()
{
    QFETCH(bool, hasRecord);
    m_page.begin(links("a b"));
    QuickLinkRecord record = makeRecord("Other", "email", "mailto:");
    {
        const Replaced<QTableWidget> table(m_page.page->m_QLinkListTblView, hasRecord ? nullptr : m_page.table());
        TraceRecorder trace;
        m_page.page->populateTableRow(hasRecord ? &record : nullptr, 0);
        QCOMPARE(trace.debugDifference(QStringList() << tracePattern("%F: populateTableRow: %T : Entered ")
                                                     << nullTrace("populateTableRow")),
                 QString());
    }
    QCOMPARE(m_page.disorder(), QString());
}

void PageTableFailures::rowOutsideTheTable_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("-1") << -1;
    QTest::newRow("2") << 2;
}

void PageTableFailures::rowOutsideTheTable()
{
    QFETCH(int, row);
    m_page.begin(links("a b"));
    QuickLinkRecord record = makeRecord("Other", "email", "mailto:");
    m_page.page->populateTableRow(&record, row);
    QCOMPARE(m_page.disorder(), QString());
    QCOMPARE(m_page.page->m_rowRecords.size(), 2);
}

void PageTableFailures::rightsWithout_data()
{
    addMemberRows(names("m_QLinkListTblView m_deleteBtn m_editBtn"));
}

void PageTableFailures::rightsWithout()
{
    QFETCH(QString, member);
    m_page.begin(links("a b"));
    m_page.button("m_editBtn")->setEnabled(false);
    m_page.button("m_deleteBtn")->setEnabled(false);
    {
        const NullMember missing(memberOf(m_page.page, member));
        TraceRecorder trace;
        m_page.page->enableDeleteEditButton();
        QCOMPARE(trace.countDebug(nullTrace("enableDeleteEditButton")), 1);
    }
    QCOMPARE(m_page.enabledButtons(), QString::fromLatin1("New Down"));
}

void PageTableFailures::rulesWithout_data()
{
    addMemberRows(names("m_QLinkListTblView m_upBtn m_downBtn"));
}

void PageTableFailures::rulesWithout()
{
    QFETCH(QString, member);
    m_page.begin(links("a b"));
    m_page.button("m_editBtn")->setEnabled(false);
    m_page.button("m_downBtn")->setEnabled(false);
    {
        const NullMember missing(memberOf(m_page.page, member));
        TraceRecorder trace;
        m_page.page->onClickQuickLinkRow(0);
        QCOMPARE(trace.countDebug(nullTrace("onClickQuickLinkRow")), 1);
    }
    QCOMPARE(m_page.enabledButtons(), QString::fromLatin1("New Delete"));
}

void PageTableFailures::selectionWithoutTable()
{
    m_page.begin(links("a b"));
    m_page.button("m_editBtn")->setEnabled(false);
    {
        const NullMember missing(memberOf(m_page.page, QLatin1String("m_QLinkListTblView")));
        TraceRecorder trace;
        m_page.page->onTableSelectionChanged();
        QCOMPARE(trace.countDebug(nullTrace("onTableSelectionChanged")), 1);
    }
    QCOMPARE(m_page.enabledButtons(), QString::fromLatin1("New Delete Down"));
}

void PageTableFailures::noMemoryForAHeader_data()
{
    QTest::addColumn<int>("which");
    QTest::newRow("name") << 0;
    QTest::newRow("type") << 1;
}

void PageTableFailures::noMemoryForAHeader()
{
    QFETCH(int, which);
    buildOnly("a b");
    {
        const FailingAllocation failing(which);
        TraceRecorder trace;
        m_page.page->fillTable();
        QVERIFY(failing.hasFailed());
        QCOMPARE(trace.countDebug(nullTrace("fillTable")), 1);
    }
    QCOMPARE(m_page.table()->columnCount(), 0);
    QCOMPARE(m_page.table()->rowCount(), 0);
}

void PageTableFailures::noMemoryForARecord_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("first row") << 0;
    QTest::newRow("second row") << 1;
    QTest::newRow("last row") << 2;
}

void PageTableFailures::noMemoryForARecord()
{
    QFETCH(int, row);
    buildOnly("a b c");
    {
        // Two headers, then a record and two items a row.
        const FailingAllocation failing(2 + 3 * row);
        TraceRecorder trace;
        m_page.page->fillTable();
        QVERIFY(failing.hasFailed());
        QCOMPARE(trace.countDebug(tracePattern("Arg is NULL: %T: %F: .* %L")), 1);
        QCOMPARE(trace.countDebug(tracePattern("End of %F: fillTable: %L: ")), 0);
    }
    QCOMPARE(m_page.table()->rowCount(), 3);
    for (int each = 0; each < 3; ++each)
        QCOMPARE(m_page.table()->item(each, 0) != nullptr, each < row);
    QCOMPARE(m_page.currentRow(), -1);
    QCOMPARE(m_page.enabledButtons(), QString::fromLatin1("New"));
    QVERIFY(m_page.table()->updatesEnabled());
}

void PageTableFailures::noMemoryForAnItem_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::newRow("name of the first row") << 0 << 0;
    QTest::newRow("type of the first row") << 0 << 1;
    QTest::newRow("name of the second row") << 1 << 0;
    QTest::newRow("type of the second row") << 1 << 1;
}

void PageTableFailures::noMemoryForAnItem()
{
    QFETCH(int, row);
    QFETCH(int, column);
    buildOnly("a b c");
    {
        const FailingAllocation failing(2 + 3 * row + 1 + column);
        TraceRecorder trace;
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

void PageTableFailures::releaseFreesEveryRecord()
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

void PageTableFailures::releaseLeavesTheRows()
{
    m_page.begin(links("a b c"));
    const QVariant before = m_page.table()->item(1, 0)->data(Qt::UserRole);
    m_page.page->releaseTable();
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a b c"));
    QCOMPARE(m_page.table()->item(1, 0)->data(Qt::UserRole), before);
}

void PageTableFailures::releaseWithoutTable()
{
    m_page.beginHidden(links("a"));
    m_page.page->releaseTable();
    QVERIFY(!m_page.page->m_QLinkListTblView);
}

void PageTableFailures::releaseStopsEarly_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QVariant>("data");
    QTest::newRow("0 in the first row") << 0 << QVariant(0);
    QTest::newRow("0 in the second row") << 1 << QVariant(0);
    QTest::newRow("nothing in the second row") << 1 << QVariant();
    QTest::newRow("no number in the second row") << 1 << QVariant(QString::fromLatin1("record"));
    QTest::newRow("0 in the last row") << 2 << QVariant(0);
}

void PageTableFailures::releaseStopsEarly()
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

QTEST_MAIN(PageTableFailures)
#include "tst_page_table_failures.moc"
