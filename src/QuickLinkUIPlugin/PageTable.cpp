// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The table of the settings page: one row a link, each row with a record of its own, and the states of the buttons.

#include <new>

#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QTableWidgetItem>

#include "Pointers.h"
#include "QuickLinkSettingPluginDlg.h"
#include "Trace.h"

namespace
{
const int rowHeight = 14; // pixels
const int nameColumn = 0;
const int typeColumn = 1;
const int columnCount = 2;

QVariant recordToData(QuickLinkRecord* record)
{
    return QVariant(static_cast<qulonglong>(reinterpret_cast<quintptr>(record)));
}
} // namespace

void QuickLinkSettingPluginDlg::fillTable()
{
    TRACE_START();
    releaseHeaderItems();
    m_nameHeaderItem = new (std::nothrow) QTableWidgetItem;
    m_typeHeaderItem = new (std::nothrow) QTableWidgetItem;
    release(m_gridDelegate);
    m_gridDelegate = new GridDelegateLayout;
    if (anyNull({m_nameHeaderItem, m_typeHeaderItem, m_QLinkListTblView, m_recordList})) {
        TRACE_NULL();
        return;
    }
    configureTable();
    // Setting the height of a row costs time in proportion to all rows while updates are on.
    m_QLinkListTblView->setUpdatesEnabled(false);
    const bool isFilled = fillRows();
    m_QLinkListTblView->setUpdatesEnabled(true);
    if (!isFilled)
        return;
    m_QLinkListTblView->setCurrentCell(0, 0);
    onClickQuickLinkRow(0);
    TRACE_END();
}

void QuickLinkSettingPluginDlg::configureTable()
{
    QTableWidget* const table = m_QLinkListTblView;
    table->horizontalHeader()->setStretchLastSection(false);
    table->setShowGrid(false);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setItemDelegate(m_gridDelegate);
    table->verticalHeader()->hide();
    table->setColumnCount(columnCount);
    table->setWordWrap(false);
    table->setSelectionMode(QAbstractItemView::SingleSelection);

    table->setHorizontalHeaderItem(nameColumn, m_nameHeaderItem);
    m_nameHeaderItem->setText(tr(QLatin1String("IDS_LINK_SETTING_NAME")));
    m_nameHeaderItem->setTextAlignment(Qt::AlignLeft);
    table->setHorizontalHeaderItem(typeColumn, m_typeHeaderItem);
    m_typeHeaderItem->setText(tr(QLatin1String("IDS_LINK_SETTING_TYPE")));
    m_typeHeaderItem->setTextAlignment(Qt::AlignLeft);
    m_headerOwner = table->model();
    m_watch.watch(m_headerOwner);
}

void QuickLinkSettingPluginDlg::releaseHeaderItems()
{
    // An item takes itself out of its table.
    release(m_nameHeaderItem);
    release(m_typeHeaderItem);
    m_headerOwner = nullptr;
}

bool QuickLinkSettingPluginDlg::fillRows()
{
    m_QLinkListTblView->setRowCount(m_recordList->size());
    for (int row = 0; row < m_recordList->size(); ++row) {
        QuickLinkRecord* const copy = new (std::nothrow) QuickLinkRecord(m_recordList->at(row));
        if (!copy) {
            TRACE_NULL();
            return false;
        }
        populateTableRow(copy, row);
        if (!m_rowRecords.contains(copy))
            delete copy;
    }
    return true;
}

void QuickLinkSettingPluginDlg::populateTableRow(QuickLinkRecord* record, int row)
{
    TRACE("%s: %s: %s : Entered ", __FILE__, __func__, Trace::now());
    if (anyNull({record, m_QLinkListTblView})) {
        TRACE_NULL();
        return;
    }
    if (row < 0 || row >= m_QLinkListTblView->rowCount()) {
        TRACE_REFUSED("no such row");
        return;
    }
    // Qt 5 and 6 make no row lower than the header's minimum, which follows the font.
    if (m_QLinkListTblView->verticalHeader()->minimumSectionSize() > rowHeight)
        m_QLinkListTblView->verticalHeader()->setMinimumSectionSize(rowHeight);
    m_QLinkListTblView->setRowHeight(row, rowHeight);
    if (!setCell(row, nameColumn, record->name, record))
        return;
    m_rowRecords.insert(record);
    setCell(row, typeColumn, tr(record->type), nullptr);
}

bool QuickLinkSettingPluginDlg::setCell(int row, int column, const QString& text, QuickLinkRecord* record)
{
    QTableWidgetItem* item = m_QLinkListTblView->item(row, column);
    const bool isNew = !item;
    if (isNew)
        item = new (std::nothrow) QTableWidgetItem;
    if (!item) {
        TRACE("%s: %s: %s : Memory not available ", __FILE__, "populateTableRow", Trace::now());
        return false;
    }
    item->setText(text);
    item->setData(Qt::UserRole, recordToData(record));
    item->setTextAlignment(Qt::AlignLeft);
    item->setFlags(item->flags() & ~Qt::ItemIsEditable);
    // The table warns when it is handed an item that it has already.
    if (isNew)
        m_QLinkListTblView->setItem(row, column, item);
    return true;
}

QuickLinkRecord* QuickLinkSettingPluginDlg::rowRecord(int row) const
{
    return recordOf(m_QLinkListTblView->item(row, nameColumn));
}

void QuickLinkSettingPluginDlg::releaseTable()
{
    TRACE_START();
    if (m_QLinkListTblView) {
        for (int row = 0; row < m_QLinkListTblView->rowCount(); ++row) {
            QuickLinkRecord* const record = rowRecord(row);
            // Behind a row without a record nothing is known to be a record either.
            if (!record)
                break;
            freeRecord(record);
        }
    } else {
        // The host deleted the table; the records of its rows are left.
        qDeleteAll(m_rowRecords);
    }
    m_rowRecords.clear();
    TRACE_END();
}

void QuickLinkSettingPluginDlg::freeRecord(QuickLinkRecord* record)
{
    // An address that no row owns has been freed before.
    if (m_rowRecords.remove(record))
        delete record;
}

QuickLinkRecord* QuickLinkSettingPluginDlg::recordOf(const QTableWidgetItem* item)
{
    if (!item)
        return nullptr;
    bool isNumber = false;
    const qulonglong address = item->data(Qt::UserRole).toULongLong(&isNumber);
    return isNumber ? reinterpret_cast<QuickLinkRecord*>(static_cast<quintptr>(address)) : nullptr;
}

const QTableWidgetItem* QuickLinkSettingPluginDlg::selectedItem() const
{
    const QList<QTableWidgetItem*> items = m_QLinkListTblView->selectedItems();
    return items.isEmpty() ? nullptr : items.first();
}

void QuickLinkSettingPluginDlg::enableDeleteEditButton()
{
    TRACE_START();
    if (anyNull({m_QLinkListTblView, m_deleteBtn, m_editBtn})) {
        TRACE_NULL();
        return;
    }
    const QTableWidgetItem* const item = selectedItem();
    if (!item) {
        TRACE_NULL();
        return;
    }
    if (const QuickLinkRecord* const record = recordOf(item)) {
        m_deleteBtn->setEnabled(isSet(record->delete_));
        m_editBtn->setEnabled(isSet(record->edit));
    }
    TRACE_END();
}

void QuickLinkSettingPluginDlg::onClickQuickLinkRow(int row)
{
    TRACE_START();
    // The selection decides, not the cell that was clicked.
    Q_UNUSED(row);
    if (anyNull({m_QLinkListTblView, m_upBtn, m_downBtn})) {
        TRACE_NULL();
        return;
    }
    const int currentRow = m_QLinkListTblView->currentRow();
    const int rowCount = m_QLinkListTblView->rowCount();
    if (m_QLinkListTblView->selectedItems().size() / columnCount == 0) {
        // Nothing selected: the buttons keep their states.
    } else if (rowCount == 1) {
        m_upBtn->setEnabled(false);
        m_downBtn->setEnabled(false);
        enableDeleteEditButton();
    } else {
        enableDeleteEditButton();
        m_upBtn->setEnabled(currentRow != 0);
        m_downBtn->setEnabled(currentRow == 0 || currentRow != rowCount - 1);
    }
    TRACE_END();
}

void QuickLinkSettingPluginDlg::onTableSelectionChanged()
{
    TRACE_START();
    if (!m_QLinkListTblView) {
        TRACE_NULL();
        return;
    }
    const int currentRow = m_QLinkListTblView->currentRow();
    if (currentRow != -1)
        onClickQuickLinkRow(currentRow);
    TRACE_END();
}

bool QuickLinkSettingPluginDlg::isRowOfList(int row) const
{
    return row >= 0 && row < m_QLinkListTblView->rowCount() && row < m_recordList->size();
}

void QuickLinkSettingPluginDlg::selectRow(int row)
{
    m_QLinkListTblView->setFocus(Qt::OtherFocusReason);
    m_QLinkListTblView->setCurrentCell(row, 0);
}
