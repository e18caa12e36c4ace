// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The texts of the settings page: its caption, its widgets, and both again in another language.

#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>

#include "PluginTexts.h"
#include "Pointers.h"
#include "QuickLinkSettingNewEditDlg.h"
#include "QuickLinkSettingPluginDlg.h"
#include "QuickLinkXmlParse.h"
#include "Trace.h"

QString QuickLinkSettingPluginDlg::tr(QString key)
{
    return PluginTexts::translated(key);
}

QString QuickLinkSettingPluginDlg::GetModuleName()
{
    TRACE("Returning Module Name %s: %s: %d: ", __FILE__, __func__, __LINE__);
    // A page without a caption is one that the host does not offer.
    if (m_store && m_store->m_visible == QLatin1String("0"))
        return QString();
    return tr(QLatin1String("IDS_SETTING_NAME"));
}

void QuickLinkSettingPluginDlg::setDisplayString()
{
    TRACE_START();
    if (anyNull({m_launchOrderLbl, m_upBtn, m_downBtn, m_QLinkTabWidget, m_newBtn, m_editBtn, m_deleteBtn})) {
        TRACE_NULL();
        return;
    }
    m_launchOrderLbl->setText(tr(QLatin1String("IDS_LINK_SETTING_ORDER")));
    // What a screen reader calls the table; a buddy would not do, tables do not ask for it.
    if (m_QLinkListTblView)
        m_QLinkListTblView->setAccessibleName(m_launchOrderLbl->text());
    m_upBtn->setText(tr(QLatin1String("IDS_LINK_SETTING_UP")));
    m_downBtn->setText(tr(QLatin1String("IDS_LINK_SETTING_DOWN")));
    m_QLinkTabWidget->setTabText(m_QLinkTabWidget->indexOf(m_QLinkTab), tr(QLatin1String("IDS_LINK_SETTING_TAB")));
    m_newBtn->setText(tr(QLatin1String("IDS_LINK_SETTING_NEW")));
    m_editBtn->setText(tr(QLatin1String("IDS_LINK_SETTING_EDIT")));
    m_deleteBtn->setText(tr(QLatin1String("IDS_LINK_SETTING_DEL")));
    TRACE_END();
}

int QuickLinkSettingPluginDlg::retranslate()
{
    if (!m_pageWidget || !hasNamedWidgets()) {
        TRACE_NULL();
        return -1;
    }
    setDisplayString();
    if (m_nameHeaderItem && m_typeHeaderItem) {
        m_nameHeaderItem->setText(tr(QLatin1String("IDS_LINK_SETTING_NAME")));
        m_typeHeaderItem->setText(tr(QLatin1String("IDS_LINK_SETTING_TYPE")));
    }
    // Only the Edit dialog follows; the New dialog keeps the language that it was opened in.
    if (m_editDlg)
        m_editDlg->SetLanguage();
    return 0;
}

int QuickLinkSettingPluginDlg::ChangeLang(const QString& language)
{
    TRACE_START();
    // The texts follow the notification that the host sends afterwards.
    TRACE_END();
    return language.isEmpty() ? 0 : 1;
}
