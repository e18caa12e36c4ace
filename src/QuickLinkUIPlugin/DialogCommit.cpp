// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// OK and Cancel of the New/Edit dialog.

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPointer>

#include "ExtendDialog.h"
#include "PluginTexts.h"
#include "Pointers.h"
#include "QuickLinkSettingNewEditDlg.h"
#include "QuickLinkXmlParse.h"
#include "Trace.h"

namespace
{
QString textOf(const QLineEdit* edit)
{
    return edit ? edit->text() : QString();
}
} // namespace

void QuickLinkSettingNewEditDlg::onNewEditClicked(bool isEdit, QString editedName)
{
    m_isEdit = isEdit;
    m_editedName = editedName;
}

void QuickLinkSettingNewEditDlg::onClickOkButton()
{
    TRACE_START();
    beginRecord();
    if (anyNull({m_appNameEdit, m_appTypeChoice, m_EditUrlName})) {
        TRACE_NULL();
        return;
    }
    const bool isNameKept = m_isEdit && m_appNameEdit->text() == m_editedName;
    if ((isNameKept || checkNameDuplication()) && fillRecord()) {
        const QPointer<QObject> self(this);
        Q_EMIT addRecord(m_record);
        // Whoever heard it may have disposed of this dialog.
        if (self && m_frameDialog)
            m_frameDialog->close();
    }
    TRACE_END();
}

void QuickLinkSettingNewEditDlg::beginRecord()
{
    // A record that a row of the page owns stays; one that failed a check is nobody's.
    if (m_isRecordTaken)
        m_record = nullptr;
    m_isRecordTaken = false;
    release(m_record);
    m_record = new QuickLinkRecord;
}

bool QuickLinkSettingNewEditDlg::fillRecord()
{
    switch (m_appTypeChoice->currentIndex()) {
    case 0:
        if (!isValidPath())
            return false;
        m_record->type = LinkType::application();
        m_record->url = textOf(m_appPathEdit);
        m_record->para = textOf(m_appParamEdit);
        break;
    case 1:
        m_record->type = LinkType::email();
        m_record->url = QLatin1String("mailto:");
        break;
    default:
        // The address is checked when the link is opened.
        m_record->type = LinkType::internet();
        m_record->url = m_EditUrlName->text();
    }
    m_record->name = m_appNameEdit->text();
    m_record->startmobile = m_launchOnSoftware;
    m_record->startconnect = m_launchOnConnect;
    return true;
}

void QuickLinkSettingNewEditDlg::recordTaken(const QuickLinkRecord* record)
{
    if (record && record == m_record)
        m_isRecordTaken = true;
}

bool QuickLinkSettingNewEditDlg::checkNameDuplication()
{
    TRACE_START();
    const QuickLinkXmlParse* const store = QuickLinkXmlParse::GetInstance();
    if (anyNull({store, m_appNameEdit}) || !store->m_recordList) {
        TRACE_NULL();
        return false;
    }
    const QString name = m_appNameEdit->text();
    const QuickLinkRecordList& records = *store->m_recordList;
    for (int i = 0; i < records.size(); ++i) {
        if (records.at(i).name == name) {
            showMessage(QLatin1String("IDS_LINK_SETTING_NAME_SAME"));
            TRACE_END();
            return false;
        }
    }
    TRACE_END();
    return true;
}

bool QuickLinkSettingNewEditDlg::isValidPath()
{
    TRACE_START();
    const bool isThere = QFile::exists(textOf(m_appPathEdit));
    if (!isThere)
        showMessage(QLatin1String("IDS_LINK_SETTING_FILENOTEXIST"));
    TRACE_END();
    return isThere;
}

void QuickLinkSettingNewEditDlg::showMessage(const QString& textKey)
{
    PluginTexts::showMessage(QMessageBox::Information, m_mainWidget, textKey, QString());
}

void QuickLinkSettingNewEditDlg::onButtonClickCancelNew()
{
    TRACE_START();
    const QPointer<QObject> self(this);
    if (m_frameDialog)
        m_frameDialog->close();
    if (self)
        Q_EMIT cancelNewButton();
    TRACE_END();
}
