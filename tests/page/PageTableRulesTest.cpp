// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Which buttons the selection enables.

#include "ShownPage.h"
#include "Test.h"

class PageTableRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void buttons_data();
    void buttons();
    void rights_data();
    void rights();
    void arrowKeys();
    void argumentIsIgnored_data();
    void argumentIsIgnored();
    void nothingSelected_data();
    void nothingSelected();
    void noCurrentRow();
    void halfARowSelected();
    void selectionDecidesNotTheClickedCell();
    void firstItemWithoutRecord_data();
    void firstItemWithoutRecord();

private:
    ShownPage m_page;
};

void PageTableRulesTest::buttons_data()
{
    QTest::addColumn<QByteArray>("names");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("enabled");
    const struct {
        const char* names;
        int row;
        const char* enabled;
    } rows[] = {{"a", 0, "New Edit Delete"},
                {"a b", 0, "New Edit Delete Down"},
                {"a b", 1, "New Edit Delete Up"},
                {"a b c", 0, "New Edit Delete Down"},
                {"a b c", 1, "New Edit Delete Up Down"},
                {"a b c", 2, "New Edit Delete Up"},
                {"a b c d e", 0, "New Edit Delete Down"},
                {"a b c d e", 1, "New Edit Delete Up Down"},
                {"a b c d e", 3, "New Edit Delete Up Down"},
                {"a b c d e", 4, "New Edit Delete Up"}};
    for (const auto& row : rows)
        QTest::newRow(qPrintable(QString("%1: %2").arg(QLatin1String(row.names)).arg(row.row)))
            << QByteArray(row.names) << row.row << QString(row.enabled);
    QTest::newRow("none") << QByteArray() << -1 << "New";
}

void PageTableRulesTest::buttons()
{
    QFETCH(QByteArray, names);
    QFETCH(int, row);
    QFETCH(QString, enabled);
    m_page.begin(links(names.constData()));
    m_page.table()->setCurrentCell(row, 0);
    QCOMPARE(m_page.enabledButtons(), enabled);
    // A click on either cell selects the whole row.
    for (int column = 0; column < 2 && row >= 0; ++column) {
        m_page.table()->setCurrentCell(0, 0);
        m_page.select(row, column);
        QCOMPARE(m_page.currentRow(), row);
        QCOMPARE(m_page.table()->selectedItems().size(), 2);
        QCOMPARE(m_page.enabledButtons(), enabled);
        // One on the selected row changes no selection, but runs the rules.
        m_page.button("m_editBtn")->setEnabled(false);
        m_page.select(row, column);
        QCOMPARE(m_page.enabledButtons(), enabled);
    }
    // New is never touched.
    m_page.button("m_newBtn")->setEnabled(false);
    m_page.table()->setCurrentCell(row, 0);
    m_page.page->onClickQuickLinkRow(row);
    QVERIFY(!m_page.button("m_newBtn")->isEnabled());
}

void PageTableRulesTest::rights_data()
{
    QTest::addColumn<QString>("deleteFlag");
    QTest::addColumn<QString>("editFlag");
    const char* const values[] = {"1", "0", "", " 1", "1 ", "2", "11", "true"};
    for (const char* value : values) {
        QTest::newRow(qPrintable(QString("delete \"%1\"").arg(QLatin1String(value)))) << QString(value) << "1";
        QTest::newRow(qPrintable(QString("edit \"%1\"").arg(QLatin1String(value)))) << "1" << QString(value);
    }
    QTest::newRow("neither") << "0"
                             << "0";
}

void PageTableRulesTest::rights()
{
    QFETCH(QString, deleteFlag);
    QFETCH(QString, editFlag);
    const QString enabled = QString("New%1%2").arg(editFlag == "1" ? " Edit" : "", deleteFlag == "1" ? " Delete" : "");
    QuickLinkRecordList records = links("a b c");
    records[1].delete_ = deleteFlag;
    records[1].edit = editFlag;
    m_page.begin(records);
    m_page.select(1);
    QCOMPARE(m_page.enabledButtons(), enabled + " Up Down");
    m_page.select(2);
    QCOMPARE(m_page.enabledButtons(), "New Edit Delete Up");
    m_page.end();

    // The same for the only link.
    m_page.begin(QuickLinkRecordList() << records.at(1));
    QCOMPARE(m_page.enabledButtons(), enabled);
}

void PageTableRulesTest::arrowKeys()
{
    m_page.begin(links("a b c"));
    QTest::keyClick(m_page.table(), Qt::Key_Down);
    QCOMPARE(m_page.enabledButtons(), "New Edit Delete Up Down");
    QTest::keyClick(m_page.table(), Qt::Key_Down);
    QCOMPARE(m_page.enabledButtons(), "New Edit Delete Up");
    QTest::keyClick(m_page.table(), Qt::Key_Up);
    QTest::keyClick(m_page.table(), Qt::Key_Up);
    QCOMPARE(m_page.enabledButtons(), "New Edit Delete Down");
}

void PageTableRulesTest::argumentIsIgnored_data()
{
    QTest::addColumn<int>("argument");
    const int arguments[] = {-1, 0, 1, 2, 3, 1000};
    for (int argument : arguments)
        QTest::newRow(qPrintable(QString::number(argument))) << argument;
}

void PageTableRulesTest::argumentIsIgnored()
{
    QFETCH(int, argument);
    m_page.begin(links("a b c"));
    m_page.table()->setCurrentCell(1, 0);
    m_page.button("m_upBtn")->setEnabled(false);
    m_page.button("m_deleteBtn")->setEnabled(false);
    m_page.page->onClickQuickLinkRow(argument);
    QCOMPARE(m_page.enabledButtons(), "New Edit Delete Up Down");
}

void PageTableRulesTest::nothingSelected_data()
{
    QTest::addColumn<bool>("areEnabled");
    QTest::newRow("all enabled") << true;
    QTest::newRow("all disabled") << false;
}

void PageTableRulesTest::nothingSelected()
{
    QFETCH(bool, areEnabled);
    m_page.begin(links("a b"));
    m_page.table()->clearSelection();
    const char* const names[] = {"m_newBtn", "m_editBtn", "m_deleteBtn", "m_upBtn", "m_downBtn"};
    for (const char* name : names)
        m_page.button(name)->setEnabled(areEnabled);
    m_page.page->onClickQuickLinkRow(0);
    m_page.page->onTableSelectionChanged();
    {
        RecordingTrace trace;
        m_page.page->enableDeleteEditButton();
        QCOMPARE(trace.countDebug(nullTrace("enableDeleteEditButton")), 1);
    }
    QCOMPARE(m_page.enabledButtons(), areEnabled ? "New Edit Delete Up Down" : QString());
}

void PageTableRulesTest::noCurrentRow()
{
    m_page.begin(links("a b"));
    m_page.table()->selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
    QCOMPARE(m_page.currentRow(), -1);
    QCOMPARE(m_page.table()->selectedItems().size(), 2);
    m_page.button("m_editBtn")->setEnabled(false);
    m_page.page->onTableSelectionChanged();
    QVERIFY(!m_page.button("m_editBtn")->isEnabled());
}

void PageTableRulesTest::halfARowSelected()
{
    // One item is half a row, which counts as none.
    m_page.begin(links("a b"));
    m_page.table()->selectionModel()->select(m_page.table()->model()->index(1, 0), QItemSelectionModel::ClearAndSelect);
    QCOMPARE(m_page.table()->selectedItems().size(), 1);
    m_page.button("m_editBtn")->setEnabled(false);
    m_page.page->onClickQuickLinkRow(1);
    QVERIFY(!m_page.button("m_editBtn")->isEnabled());
}

void PageTableRulesTest::selectionDecidesNotTheClickedCell()
{
    // The rights are those of the selected row, Up and Down follow the current one.
    QuickLinkRecordList records = links("a b c");
    records[0].edit = "0";
    m_page.begin(records);
    m_page.table()->selectionModel()->setCurrentIndex(m_page.table()->model()->index(2, 0),
                                                      QItemSelectionModel::NoUpdate);
    m_page.page->onClickQuickLinkRow(1);
    QCOMPARE(m_page.enabledButtons(), "New Delete Up");
}

void PageTableRulesTest::firstItemWithoutRecord_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::newRow("0") << QVariant(0);
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("no number") << QVariant("record");
}

void PageTableRulesTest::firstItemWithoutRecord()
{
    QFETCH(QVariant, data);
    m_page.begin(links("a b"));
    QuickLinkRecord* const record = m_page.recordOf(0);
    const QVariant before = m_page.table()->item(0, 0)->data(Qt::UserRole);
    m_page.table()->item(0, 0)->setData(Qt::UserRole, data);
    m_page.button("m_editBtn")->setEnabled(false);
    record->delete_ = "0";
    {
        RecordingTrace trace;
        m_page.page->enableDeleteEditButton();
        QCOMPARE(trace.countDebug("Arg is NULL.*"), 0);
    }
    QCOMPARE(m_page.enabledButtons(), "New Delete Down");
    m_page.table()->item(0, 0)->setData(Qt::UserRole, before);
}

REGISTER_TEST(PageTableRulesTest)
#include "PageTableRulesTest.moc"
