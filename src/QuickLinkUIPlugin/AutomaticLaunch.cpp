// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Opening the marked links by themselves.

#include "CommonUtils.h"
#include "LinkTarget.h"
#include "QuickLinkSettingPluginDlg.h"
#include "Trace.h"

namespace
{
/**
 * Opens the links whose flag is set, in order. Of the Internet links only the last one opens, after all others, so
 * that one event never fills the browser with tabs. The list is a copy: opening may come back and change it.
 */
void launchMarked(const QuickLinkRecordList records, QString QuickLinkRecord::*flag)
{
    QString lastAddress;
    bool hasAddress = false;
    for (int i = 0; i < records.size(); ++i) {
        const QuickLinkRecord& record = records.at(i);
        if (!isSet(record.*flag))
            continue;
        if (record.type == LinkType::application() || record.type == LinkType::email()) {
            openTarget(record);
        } else if (record.type == LinkType::internet()) {
            lastAddress = record.url;
            hasAddress = true;
        }
    }
    if (hasAddress)
        CommonUtils::OpenUrl(lastAddress);
}
} // namespace

void QuickLinkSettingPluginDlg::launchOnConnection()
{
    TRACE_START();
    if (!m_recordList) {
        TRACE_NULL();
        return;
    }
    launchMarked(*m_recordList, &QuickLinkRecord::startconnect);
    TRACE_END();
}

void QuickLinkSettingPluginDlg::launchOnSoftwareLaunch()
{
    TRACE_START();
    if (!m_recordList) {
        TRACE_NULL();
        return;
    }
    launchMarked(*m_recordList, &QuickLinkRecord::startmobile);
    TRACE_END();
}
