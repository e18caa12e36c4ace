// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Changes of a row that has no link behind it: refused, with nothing changed and nobody told.

#include <QComboBox>
#include <QLineEdit>

#include "PageOperations.h"
#include "QuickLinkSettingNewEditDlg.h"
#include "ShownPage.h"
#include "Test.h"

class PageRefusalsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void refused_data();
    void refused();
    void rowOutsideTheTable_data();
    void rowOutsideTheTable();
    void editOpensEmpty_data();
    void editOpensEmpty();
    void lostRecordIsNotFreedTwice_data();
    void lostRecordIsNotFreedTwice();

private:
    void clearCurrentRow();

    ShownPage m_page;
};

void PageRefusalsTest::clearCurrentRow()
{
    m_page.table()->selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
}

void PageRefusalsTest::refused_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("linksLeft");
    QTest::addColumn<int>("takenItem");
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<QString>("trace");
    const QVariant kept("kept"), nothing, noNumber("record");
    const QString refusal = tracePattern("%F: [A-Za-z]*: refused, .*");
    const QString null = nullTrace("[A-Za-z]*");
    const QString none;
    QTest::newRow("Up on the first row") << "Up" << 0 << 3 << -1 << kept << refusal;
    QTest::newRow("Up without a current row") << "Up" << -1 << 3 << -1 << kept << refusal;
    QTest::newRow("Up from beyond the list") << "Up" << 2 << 2 << -1 << kept << refusal;
    QTest::newRow("Up with an empty list") << "Up" << 1 << 0 << -1 << kept << refusal;
    QTest::newRow("Up from a row without an item") << "Up" << 1 << 3 << 1 << kept << null;
    QTest::newRow("Up to a row without an item") << "Up" << 1 << 3 << 0 << kept << null;
    QTest::newRow("Down on the last row") << "Down" << 2 << 3 << -1 << kept << refusal;
    QTest::newRow("Down without a current row") << "Down" << -1 << 3 << -1 << kept << refusal;
    QTest::newRow("Down beyond the list") << "Down" << 1 << 2 << -1 << kept << refusal;
    QTest::newRow("Down with an empty list") << "Down" << 0 << 0 << -1 << kept << refusal;
    QTest::newRow("Down from a row without an item") << "Down" << 1 << 3 << 1 << kept << null;
    QTest::newRow("Down to a row without an item") << "Down" << 1 << 3 << 2 << kept << null;
    QTest::newRow("Delete without a current row") << "Delete" << -1 << 3 << -1 << kept << refusal;
    QTest::newRow("Delete beyond the list") << "Delete" << 2 << 2 << -1 << kept << refusal;
    QTest::newRow("Delete with nothing selected") << "Delete" << -2 << 3 << -1 << kept << null;
    QTest::newRow("Delete, 0 in the row") << "Delete" << 1 << 3 << -1 << QVariant(0) << none;
    QTest::newRow("Delete, nothing in the row") << "Delete" << 1 << 3 << -1 << nothing << none;
    QTest::newRow("Delete, no number in the row") << "Delete" << 1 << 3 << -1 << noNumber << none;
    QTest::newRow("Edit's OK without a current row") << "Edit" << -1 << 3 << -1 << kept << refusal;
    QTest::newRow("Edit's OK beyond the list") << "Edit" << 2 << 2 << -1 << kept << refusal;
    QTest::newRow("Edit's OK in a row without an item") << "Edit" << 1 << 3 << 1 << kept << refusal;
}

void PageRefusalsTest::refused()
{
    QFETCH(QString, change);
    QFETCH(int, row);
    QFETCH(int, linksLeft);
    QFETCH(int, takenItem);
    QFETCH(QVariant, data);
    QFETCH(QString, trace);
    m_page.begin(links("a b c"));
    m_page.select(1);
    const QByteArray file = m_page.file();
    if (change == "Edit") {
        m_page.click("m_editBtn");
        m_page.enter("m_appNameEdit", "changed");
    }
    // What a host may do to the table and the list from outside.
    if (row == -1)
        clearCurrentRow();
    else if (row == -2)
        m_page.table()->clearSelection();
    else
        m_page.select(row);
    QTableWidgetItem* const taken = takenItem < 0 ? nullptr : m_page.table()->takeItem(takenItem, 0);
    QTableWidgetItem* const item = m_page.table()->item(row < 0 ? 0 : row, 0);
    const QVariant before = item ? item->data(Qt::UserRole) : QVariant();
    if (data != QVariant("kept"))
        item->setData(Qt::UserRole, data);
    const QuickLinkRecordList all = *m_page.page->m_recordList;
    m_page.page->m_recordList->resize(linksLeft);
    const QString buttons = m_page.enabledButtons();
    const int currentRow = m_page.currentRow();
    {
        RecordingTrace lines;
        if (change == "Edit")
            m_page.pressOk();
        else if (change == "Delete")
            m_page.page->onDeleteBtnClick();
        else if (change == "Up")
            m_page.page->onUpBtnClick();
        else
            m_page.page->ondownBtnClick();
        QCOMPARE(lines.countDebug(trace), trace.isEmpty() ? 0 : 1);
        QCOMPARE(lines.countDebug("Arg is NULL.*"), trace.startsWith("Arg") ? 1 : 0);
    }
    QCOMPARE(m_page.page->m_recordList->size(), linksLeft);
    *m_page.page->m_recordList = all;
    if (data != QVariant("kept"))
        item->setData(Qt::UserRole, before);
    if (taken)
        m_page.table()->setItem(takenItem, 0, taken);
    QCOMPARE(m_page.currentRow(), currentRow);
    QCOMPARE(m_page.enabledButtons(), buttons);
    QCOMPARE(m_page.linkNames(), "a b c");
    QCOMPARE(m_page.file(), file);
    QCOMPARE(m_page.told(), 0);
    QCOMPARE(FakeHost::instance().lookups.size(), 0);
    QCOMPARE(FakeHost::instance().messages.size(), change == "Delete" ? 1 : 0);
}

void PageRefusalsTest::rowOutsideTheTable_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<int>("row");
    QTest::newRow("row before") << "populateTableRow" << -1;
    QTest::newRow("row behind") << "populateTableRow" << 3;
    QTest::newRow("link before") << "addRecordOnUpButtonClick" << -1;
    QTest::newRow("link behind") << "addRecordOnUpButtonClick" << 3;
}

void PageRefusalsTest::rowOutsideTheTable()
{
    QFETCH(QString, operation);
    QFETCH(int, row);
    m_page.begin(links("a b c"));
    const QByteArray file = m_page.file();
    const QScopedPointer<QuickLinkRecord> record(new QuickLinkRecord(makeRecord("other", "email", "mailto:")));
    const RecordProbe probe(record.data());
    if (operation == "populateTableRow")
        m_page.page->populateTableRow(record.data(), row);
    else
        m_page.page->addRecordOnUpButtonClick(record.data(), row);
    QCOMPARE(m_page.linkNames(), "a b c");
    QCOMPARE(m_page.file(), file);
    QCOMPARE(m_page.told(), 0);
    // The record stays the caller's: it does not go with the page.
    delete m_page.host;
    m_page.page->OnDestroy();
    QVERIFY(!probe.isFreed());
}

void PageRefusalsTest::editOpensEmpty_data()
{
    QTest::addColumn<QString>("lacks");
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<int>("traces");
    QTest::newRow("no table") << "table" << QVariant() << 1;
    QTest::newRow("nothing selected") << "selection" << QVariant() << 1;
    QTest::newRow("0 in the row") << "record" << QVariant(0) << 0;
    QTest::newRow("nothing in the row") << "record" << QVariant() << 0;
    QTest::newRow("no number in the row") << "record" << QVariant("record") << 0;
}

void PageRefusalsTest::editOpensEmpty()
{
    QFETCH(QString, lacks);
    QFETCH(QVariant, data);
    QFETCH(int, traces);
    m_page.begin(links("a b"));
    QTableWidget* const table = m_page.table();
    QTableWidgetItem* const item = table->item(0, 0);
    const QVariant before = item->data(Qt::UserRole);
    if (lacks == "selection")
        table->clearSelection();
    else if (lacks == "record")
        item->setData(Qt::UserRole, data);
    {
        const Replaced<QTableWidget> other(m_page.page->m_QLinkListTblView, lacks == "table" ? nullptr : table);
        RecordingTrace trace;
        m_page.page->onEditBtnClick();
        QCOMPARE(trace.countDebug(nullTrace("onEditBtnClick")), traces);
    }
    item->setData(Qt::UserRole, before);

    // It is shown all the same, with its title, but in New mode and connected to nothing.
    QVERIFY(m_page.frame()->isVisible());
    QCOMPARE(FakeHost::instance().frames.first().titles, QStringList() << shown("IDS_LINK_SETTING_EDIT_TITLE"));
    QCOMPARE(m_page.inDialog<QLineEdit>("m_appNameEdit")->text(), QString());
    QCOMPARE(m_page.inDialog<QComboBox>("m_appTypeChoice")->currentIndex(), 0);
    QVERIFY(!m_page.page->m_editDlg->m_isEdit);
    QVERIFY(!m_page.page->m_isEditing);
    QCOMPARE(m_page.page->m_editDlg->receivers(SIGNAL(addRecord(QuickLinkRecord*))), 0);
    QCOMPARE(m_page.page->m_editDlg->receivers(SIGNAL(cancelNewButton())), 0);
}

void PageRefusalsTest::lostRecordIsNotFreedTwice_data()
{
    QTest::addColumn<bool>("isEdit");
    QTest::addColumn<QString>("names");
    QTest::newRow("Edit") << true << "a changed c";
    QTest::newRow("Delete") << false << "a c";
}

void PageRefusalsTest::lostRecordIsNotFreedTwice()
{
    QFETCH(bool, isEdit);
    QFETCH(QString, names);
    m_page.begin(links("a b c"));
    const QScopedPointer<QuickLinkRecord> lost(m_page.recordOf(1));
    if (isEdit) {
        m_page.select(1);
        m_page.click("m_editBtn");
        m_page.enter("m_appNameEdit", "changed");
    } else {
        // The selected row has a record, only the current one has lost its own.
        m_page.table()->selectionModel()->setCurrentIndex(m_page.table()->model()->index(1, 0),
                                                          QItemSelectionModel::NoUpdate);
    }
    m_page.table()->item(1, 0)->setData(Qt::UserRole, 0);
    if (isEdit)
        m_page.pressOk();
    else
        m_page.click("m_deleteBtn");
    QCOMPARE(m_page.linkNames(), names);
    QCOMPARE(lost->name, "b");
}

REGISTER_TEST(PageRefusalsTest)
#include "PageRefusalsTest.moc"
