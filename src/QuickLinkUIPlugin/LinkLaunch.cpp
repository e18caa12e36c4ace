// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Opening the link that the user picked from the menu.

#include <QUrl>

#include "AddressCheck.h"
#include "CommonUtils.h"
#include "LinkTarget.h"
#include "PluginTexts.h"
#include "QuickLinkSettingPluginDlg.h"
#include "Trace.h"

void QuickLinkSettingPluginDlg::LaunchQuickLinkAction(QAction* action)
{
    TRACE_START();
    // A strange action gives a default record, whose type is none: nothing opens.
    const QuickLinkRecord record = m_actionMap.value(action);
    if (record.type == LinkType::application() || record.type == LinkType::email()) {
        openTarget(record);
    } else if (record.type == LinkType::internet()) {
        if (isValidUrl(record.url))
            CommonUtils::OpenUrl(QUrl(record.url).toString());
        else
            PluginTexts::showMessage(QMessageBox::Information, m_pageWidget,
                                     QLatin1String("IDS_LINK_SETTING_INVALID_URL"), QString());
    }
    TRACE_END();
}

bool QuickLinkSettingPluginDlg::isValidUrl(QString url)
{
    return AddressCheck::passes(url);
}
