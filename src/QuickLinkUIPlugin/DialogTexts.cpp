// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The texts of the New/Edit dialog, set when it is built and again when the language changes.

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

#include "PluginTexts.h"
#include "Pointers.h"
#include "QuickLinkSettingNewEditDlg.h"
#include "Trace.h"

QString QuickLinkSettingNewEditDlg::tr(QString key)
{
    return PluginTexts::translated(key);
}

bool QuickLinkSettingNewEditDlg::hasTexts() const
{
    return !anyNull({m_nameLbl, m_typeLbl, m_applicationPathLbl, m_browseBtn, m_applicationParamLbl,
                     m_launchWhenSWLaunchCB, m_launchWhenSWLaunchCBForEmail, m_launchWhenSWLaunchCBForInternet,
                     m_launchWhenConnectCB, m_launchWhenConnectCBForEmail, m_launchWhenConnectCBForInternet,
                     m_appTabWidget, m_okBtn, m_cancelBtn, m_UrlLabel, m_DefaultLbl});
}

void QuickLinkSettingNewEditDlg::setDisplayString()
{
    TRACE_START();
    if (!hasTexts()) {
        TRACE_NULL();
        return;
    }
    const QString onStart = tr(QLatin1String("IDS_LINK_SETTING_NEW_CHECK_STARTUP"));
    const QString onConnect = tr(QLatin1String("IDS_LINK_SETTING_NEW_CHECK"));
    m_nameLbl->setText(tr(QLatin1String("IDS_LINK_SETTING_NEW_NAME")));
    m_typeLbl->setText(tr(QLatin1String("IDS_LINK_SETTING_NEW_TYPE")));
    m_applicationPathLbl->setText(tr(QLatin1String("IDS_LINK_SETTING_NEW_TAB_APP_URL")));
    m_browseBtn->setText(tr(QLatin1String("IDS_LINK_SETTING_NEW_TAB_APP_BROWSER")));
    m_applicationParamLbl->setText(tr(QLatin1String("IDS_LINK_SETTING_NEW_TAB_APP_PARA")));
    m_launchWhenSWLaunchCB->setText(onStart);
    m_launchWhenSWLaunchCBForEmail->setText(onStart);
    m_launchWhenSWLaunchCBForInternet->setText(onStart);
    m_launchWhenConnectCB->setText(onConnect);
    m_launchWhenConnectCBForEmail->setText(onConnect);
    m_launchWhenConnectCBForInternet->setText(onConnect);
    // Whatever type is chosen: the title follows the type again when the user chooses one.
    m_appTabWidget->setTabText(0, tr(LinkType::application()));
    m_okBtn->setText(tr(QLatin1String("IDS_LINK_SETTING_NEW_OK")));
    m_cancelBtn->setText(tr(QLatin1String("IDS_LINK_SETTING_NEW_CANCEL")));
    m_UrlLabel->setText(tr(QLatin1String("IDS_LINK_SETTING_NEW_TAB_IE_URL")));
    m_DefaultLbl->setText(tr(QLatin1String("IDS_LINK_SETTING_NEW_TAB_EMAIL_URL")));
    TRACE_END();
}

void QuickLinkSettingNewEditDlg::SetLanguage()
{
    TRACE_START();
    if (!hasTexts() || !m_appTypeChoice) {
        TRACE_NULL();
        return;
    }
    setDisplayString();
    m_appTypeChoice->setItemText(1, tr(LinkType::email()));
    m_appTypeChoice->setItemText(0, tr(LinkType::application()));
    m_appTypeChoice->setItemText(2, tr(LinkType::internet()));
    TRACE_END();
}
