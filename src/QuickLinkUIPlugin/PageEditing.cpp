// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// New, Edit and Delete on the settings page. Every change is saved and told to the menu at once.

#include <new>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTableWidget>

#include "ExtendDialog.h"
#include "PluginTexts.h"
#include "Pointers.h"
#include "QuickLinkSettingNewEditDlg.h"
#include "QuickLinkSettingPluginDlg.h"
#include "QuickLinkXmlParse.h"
#include "Trace.h"

void QuickLinkSettingPluginDlg::onNewBtnClick()
{
    TRACE_START();
    disposeDialog(m_newDlg);
    m_newDlg = new (std::nothrow) QuickLinkSettingNewEditDlg;
    if (!m_newDlg) {
        TRACE_NULL();
        return;
    }
    m_newDlg->ShowNewEditDlg(m_parentWidget);
    m_isEditing = false;
    if (!m_newDlg->m_frameDialog) {
        TRACE_NULL();
        return;
    }
    m_newDlg->m_frameDialog->setWindowTitle(tr(QLatin1String("IDS_LINK_SETTING_NEW_TITLE")));
    m_newDlg->onNewEditClicked(false, QString());
    connectDialog(m_newDlg);
    TRACE_END();
}

void QuickLinkSettingPluginDlg::onEditBtnClick()
{
    TRACE_START();
    disposeDialog(m_editDlg);
    m_editDlg = new (std::nothrow) QuickLinkSettingNewEditDlg;
    if (!m_editDlg) {
        TRACE_NULL();
        return;
    }
    m_editDlg->ShowNewEditDlg(m_parentWidget);
    if (m_editDlg->m_frameDialog)
        m_editDlg->m_frameDialog->setWindowTitle(tr(QLatin1String("IDS_LINK_SETTING_EDIT_TITLE")));
    if (anyNull({m_QLinkListTblView, m_editDlg->m_appNameEdit, m_editDlg->m_frameDialog, m_editDlg->m_appTypeChoice,
                 m_editDlg->m_appPathEdit, m_editDlg->m_appParamEdit, m_editDlg->m_EditUrlName,
                 m_editDlg->m_launchWhenConnectCB, m_editDlg->m_launchWhenSWLaunchCB,
                 m_editDlg->m_launchWhenConnectCBForEmail, m_editDlg->m_launchWhenSWLaunchCBForEmail,
                 m_editDlg->m_launchWhenConnectCBForInternet, m_editDlg->m_launchWhenSWLaunchCBForInternet})) {
        TRACE_NULL();
        return;
    }
    const QTableWidgetItem* const item = selectedItem();
    if (!item) {
        TRACE_NULL();
        return;
    }
    if (!recordOf(item))
        return;
    fillEditDialog(*recordOf(item));
    m_editDlg->onNewEditClicked(true, m_editDlg->m_appNameEdit->text());
    m_isEditing = true;
    connectDialog(m_editDlg);
    TRACE_END();
}

void QuickLinkSettingPluginDlg::fillEditDialog(const QuickLinkRecord& record)
{
    // The order matters: choosing the type clears what the fields of that type held.
    const bool onConnect = isSet(record.startconnect);
    const bool onStart = isSet(record.startmobile);
    QuickLinkSettingNewEditDlg* const dialog = m_editDlg;
    dialog->m_appNameEdit->setText(record.name);
    if (record.type == LinkType::application()) {
        dialog->OnSelectComboItem(0);
        dialog->m_appTypeChoice->setCurrentIndex(0);
        dialog->m_appPathEdit->setText(QString(record.url).replace(QLatin1Char('\\'), QLatin1Char('/')));
        dialog->m_appParamEdit->setText(record.para);
        dialog->m_launchWhenConnectCB->setChecked(onConnect);
        dialog->m_launchWhenSWLaunchCB->setChecked(onStart);
    } else if (record.type == LinkType::email()) {
        dialog->OnSelectComboItem(1);
        dialog->m_appTypeChoice->setCurrentIndex(1);
        dialog->m_launchWhenConnectCBForEmail->setChecked(onConnect);
        dialog->m_launchWhenSWLaunchCBForEmail->setChecked(onStart);
    } else {
        dialog->OnSelectComboItem(2);
        dialog->m_appTypeChoice->setCurrentIndex(2);
        dialog->m_EditUrlName->setText(record.url);
        dialog->m_launchWhenConnectCBForInternet->setChecked(onConnect);
        dialog->m_launchWhenSWLaunchCBForInternet->setChecked(onStart);
    }
}

void QuickLinkSettingPluginDlg::connectDialog(QuickLinkSettingNewEditDlg* dialog)
{
    connect(dialog, SIGNAL(addRecord(QuickLinkRecord*)), this, SLOT(AddRecord(QuickLinkRecord*)));
    connect(dialog, SIGNAL(cancelNewButton()), this, SLOT(onCancelNewEditor()));
}

void QuickLinkSettingPluginDlg::disposeDialog(QuickLinkSettingNewEditDlg*& dialog)
{
    if (!dialog)
        return;
    ExtendDialog* frame = dialog->m_frameDialog;
    release(dialog);
    release(frame);
}

void QuickLinkSettingPluginDlg::onCancelNewEditor()
{
    TRACE_START();
    m_isEditing = false;
    TRACE_END();
}

void QuickLinkSettingPluginDlg::AddRecord(QuickLinkRecord* record)
{
    TRACE_START();
    if (anyNull({record, m_QLinkListTblView})) {
        TRACE_NULL();
        return;
    }
    if (m_isEditing)
        replaceRecordWithEditedRecord(record);
    else
        appendRecord(record);
    TRACE_END();
}

void QuickLinkSettingPluginDlg::appendRecord(QuickLinkRecord* record)
{
    if (!m_recordList) {
        TRACE_NULL();
        return;
    }
    const int row = m_QLinkListTblView->rowCount();
    m_QLinkListTblView->insertRow(row);
    populateTableRow(record, row);
    tellRecordTaken(record);
    selectRow(row);
    m_recordList->append(*record);
    if (m_store) {
        m_store->SaveToConfigFile(m_recordList, 0);
        // Reading back gives the new link its id. The list held until now is gone.
        m_store->ReadXmlInformation();
        m_recordList = m_store->m_recordList;
    }
    m_QLinkListTblView->setCurrentCell(row, 0);
    sendNotifyToMenu();
}

void QuickLinkSettingPluginDlg::replaceRecordWithEditedRecord(QuickLinkRecord* record)
{
    TRACE_START();
    if (anyNull({record, m_QLinkListTblView, m_recordList})) {
        TRACE_NULL();
        return;
    }
    const int row = m_QLinkListTblView->currentRow();
    if (!isRowOfList(row) || !m_QLinkListTblView->item(row, 0)) {
        TRACE_REFUSED("no link in the current row");
        return;
    }
    QuickLinkRecord* const oldRecord = rowRecord(row);
    (*m_recordList)[row] = *record;
    populateTableRow(record, row);
    tellRecordTaken(record);
    freeRecord(oldRecord);
    m_isEditing = false;
    selectRow(row);
    if (!m_store) {
        TRACE_NULL();
        return;
    }
    m_store->SaveToConfigFile(m_recordList, 1);
    sendNotifyToMenu();
    TRACE_END();
}

void QuickLinkSettingPluginDlg::tellRecordTaken(QuickLinkRecord* record)
{
    if (!m_rowRecords.contains(record))
        return;
    if (m_newDlg)
        m_newDlg->recordTaken(record);
    if (m_editDlg)
        m_editDlg->recordTaken(record);
}

void QuickLinkSettingPluginDlg::onDeleteBtnClick()
{
    TRACE_START();
    const QPointer<QObject> self(this);
    const int answer =
        PluginTexts::showMessage(QMessageBox::Question, m_pageWidget, QLatin1String("IDS_LINK_SETTING_DELETE_CONFORM"),
                                 QLatin1String("IDS_CANCEL"));
    // While the user thought about it the host may have deleted the page, or the plug-in.
    if (!self) {
        TRACE_END();
        return;
    }
    if (anyNull({m_QLinkListTblView, m_editBtn, m_deleteBtn})) {
        TRACE_NULL();
        return;
    }
    if (answer == QMessageBox::Ok && !deleteCurrentLink())
        return;
    if (m_QLinkListTblView->rowCount() == 0) {
        m_editBtn->setEnabled(false);
        m_deleteBtn->setEnabled(false);
    }
    TRACE_END();
    sendNotifyToMenu();
}

bool QuickLinkSettingPluginDlg::deleteCurrentLink()
{
    if (anyNull({m_recordList, m_upBtn, m_downBtn})) {
        TRACE_NULL();
        return false;
    }
    const int row = m_QLinkListTblView->currentRow();
    if (!selectedItem()) {
        TRACE_NULL();
        return false;
    }
    if (!recordOf(selectedItem()))
        return false;
    if (!isRowOfList(row)) {
        TRACE_REFUSED("no link in the current row");
        return false;
    }
    QuickLinkRecord* const record = rowRecord(row);
    m_QLinkListTblView->removeRow(row);
    m_recordList->remove(row);
    // Not before the row is gone: the buttons look at the selection while it goes.
    freeRecord(record);
    if (m_QLinkListTblView->rowCount() == 1) {
        m_upBtn->setEnabled(false);
        m_downBtn->setEnabled(false);
    }
    if (m_store)
        m_store->SaveToConfigFile(m_recordList, 1);
    else
        TRACE_NULL();
    return true;
}
