// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Memory is short while the page makes a dialog, fills its table or moves a link.

#include "FailingAllocation.h"
#include "ShownPage.h"
#include "Test.h"

class PageShortMemoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void dialog_data();
    void dialog();
    void move_data();
    void move();
    void tableHeader_data();
    void tableHeader();
    void tableRecord_data();
    void tableRecord();
    void tableItem_data();
    void tableItem();

private:
    void build();

    ShownPage m_page;
};

void PageShortMemoryTest::build()
{
    m_page.beginHidden(links("a b c"));
    m_page.page->createWidgetMemory(m_page.host);
    m_page.page->initializeUI();
}

void PageShortMemoryTest::dialog_data()
{
    QTest::addColumn<bool>("isEdit");
    QTest::newRow("New") << false;
    QTest::newRow("Edit") << true;
}

void PageShortMemoryTest::dialog()
{
    QFETCH(bool, isEdit);
    m_page.begin(links("a"));
    m_page.click(isEdit ? "m_editBtn" : "m_newBtn");
    m_page.pressCancel();
    {
        const FailingAllocation failing(0);
        RecordingTrace trace;
        if (isEdit)
            m_page.page->onEditBtnClick();
        else
            m_page.page->onNewBtnClick();
        QVERIFY(failing.hasFailed());
        QCOMPARE(trace.countDebug(nullTrace(isEdit ? "onEditBtnClick" : "onNewBtnClick")), 1);
    }
    QVERIFY(!(isEdit ? m_page.page->m_editDlg : m_page.page->m_newDlg));
    QVERIFY(!m_page.page->m_isEditing);
    QCOMPARE(m_page.liveFrames(), 0);
}

void PageShortMemoryTest::move_data()
{
    QTest::addColumn<bool>("isUp");
    QTest::addColumn<int>("which");
    QTest::newRow("Up, first record") << true << 0;
    QTest::newRow("Up, second record") << true << 1;
    QTest::newRow("Down, first record") << false << 0;
    QTest::newRow("Down, second record") << false << 1;
}

void PageShortMemoryTest::move()
{
    QFETCH(bool, isUp);
    QFETCH(int, which);
    m_page.begin(links("a b c"));
    m_page.select(1);
    const QByteArray before = m_page.file();
    {
        const FailingAllocation failing(which);
        if (isUp)
            m_page.page->onUpBtnClick();
        else
            m_page.page->ondownBtnClick();
        QVERIFY(failing.hasFailed());
    }
    QCOMPARE(m_page.linkNames(), "a b c");
    QCOMPARE(m_page.file(), before);
    QCOMPARE(m_page.told(), 0);
}

void PageShortMemoryTest::tableHeader_data()
{
    QTest::addColumn<int>("which");
    QTest::newRow("name") << 0;
    QTest::newRow("type") << 1;
}

void PageShortMemoryTest::tableHeader()
{
    QFETCH(int, which);
    build();
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

void PageShortMemoryTest::tableRecord_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("first row") << 0;
    QTest::newRow("second row") << 1;
    QTest::newRow("last row") << 2;
}

void PageShortMemoryTest::tableRecord()
{
    QFETCH(int, row);
    build();
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

void PageShortMemoryTest::tableItem_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::newRow("name of the first row") << 0 << 0;
    QTest::newRow("type of the first row") << 0 << 1;
    QTest::newRow("name of the second row") << 1 << 0;
    QTest::newRow("type of the second row") << 1 << 1;
}

void PageShortMemoryTest::tableItem()
{
    QFETCH(int, row);
    QFETCH(int, column);
    build();
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
        delete m_page.recordOf(each);
}

REGISTER_TEST(PageShortMemoryTest)
#include "PageShortMemoryTest.moc"
