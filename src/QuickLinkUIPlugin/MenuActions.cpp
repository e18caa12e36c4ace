// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The links as menu actions, which the host asks for.

#include <QAction>

#include "QuickLinkSettingPluginDlg.h"
#include "Trace.h"

int QuickLinkSettingPluginDlg::GetQuickLinkRecordSize()
{
    return m_recordList ? m_recordList->size() : -1;
}

QAction* QuickLinkSettingPluginDlg::GetActionFromQuickLink(int index)
{
    if (!m_recordList) {
        TRACE_NULL();
        return nullptr;
    }
    // value() of Qt 6 makes a default record at every call, wanted or not.
    const bool isLink = index >= 0 && index < m_recordList->size();
    const QuickLinkRecord record = isLink ? m_recordList->at(index) : QuickLinkRecord();
    // The action opens the link as it was now, also after the list has changed.
    QAction* const action = new QAction(record.name, this);
    m_actionMap.insert(action, record);
    return action;
}
