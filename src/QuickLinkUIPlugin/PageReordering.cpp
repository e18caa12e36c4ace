// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Up and Down on the settings page. A move is saved at once but not told to the menu, which keeps its order.

#include <new>

#include <QPushButton>
#include <QTableWidget>

#include "Pointers.h"
#include "QuickLinkSettingPluginDlg.h"
#include "QuickLinkXmlParse.h"
#include "Trace.h"

void QuickLinkSettingPluginDlg::onUpBtnClick()
{
    TRACE_START();
    if (anyNull({m_QLinkListTblView, m_recordList})) {
        TRACE_NULL();
        return;
    }
    const int above = m_QLinkListTblView->currentRow() - 1;
    if (!swapWithNext(above))
        return;
    if (above == 0 && m_upBtn)
        m_upBtn->setEnabled(false);
    finishMove(above);
    TRACE_END();
}

void QuickLinkSettingPluginDlg::ondownBtnClick()
{
    TRACE_START();
    if (anyNull({m_QLinkListTblView, m_recordList, m_downBtn})) {
        TRACE_NULL();
        return;
    }
    const int row = m_QLinkListTblView->currentRow();
    if (!swapWithNext(row))
        return;
    if (row + 1 == m_QLinkListTblView->rowCount() - 1)
        m_downBtn->setEnabled(false);
    finishMove(row + 1);
    TRACE_END();
}

bool QuickLinkSettingPluginDlg::swapWithNext(int row)
{
    // The states of the buttons alone do not keep the user from here: see what deleting the first row leaves.
    if (!isRowOfList(row) || !isRowOfList(row + 1)) {
        TRACE_REFUSED("no neighbour to change places with");
        return false;
    }
    if (anyNull({m_QLinkListTblView->item(row, 0), m_QLinkListTblView->item(row + 1, 0)})) {
        TRACE_NULL();
        return false;
    }
    QuickLinkRecord* const upper = new (std::nothrow) QuickLinkRecord(m_recordList->at(row));
    QuickLinkRecord* const lower = new (std::nothrow) QuickLinkRecord(m_recordList->at(row + 1));
    if (anyNull({upper, lower})) {
        TRACE_NULL();
        delete upper;
        delete lower;
        return false;
    }
    addRecordOnUpButtonClick(upper, row + 1);
    addRecordOnUpButtonClick(lower, row);
    return true;
}

void QuickLinkSettingPluginDlg::addRecordOnUpButtonClick(QuickLinkRecord* record, int row)
{
    TRACE_START();
    if (anyNull({record, m_QLinkListTblView, m_recordList})) {
        TRACE_NULL();
        return;
    }
    if (!isRowOfList(row)) {
        TRACE_REFUSED("no such row");
        return;
    }
    QuickLinkRecord* const oldRecord = rowRecord(row);
    populateTableRow(record, row);
    (*m_recordList)[row] = *record;
    freeRecord(oldRecord);
    TRACE_END();
}

void QuickLinkSettingPluginDlg::finishMove(int row)
{
    selectRow(row);
    if (m_store)
        m_store->SaveToConfigFile(m_recordList, 1);
    else
        TRACE_NULL();
}
