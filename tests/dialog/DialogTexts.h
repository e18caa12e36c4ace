// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>
#include <QStringList>
#include <QTabWidget>

/** A widget of the dialog, by object name, and the key of its text; of a tab widget the text of its first tab. */
struct DialogText {
    const char* widget;
    const char* key;
};

const DialogText dialogTexts[] = {{"m_nameLbl", "IDS_LINK_SETTING_NEW_NAME"},
                                  {"m_typeLbl", "IDS_LINK_SETTING_NEW_TYPE"},
                                  {"m_applicationPathLbl", "IDS_LINK_SETTING_NEW_TAB_APP_URL"},
                                  {"m_browseBtn", "IDS_LINK_SETTING_NEW_TAB_APP_BROWSER"},
                                  {"m_applicationParamLbl", "IDS_LINK_SETTING_NEW_TAB_APP_PARA"},
                                  {"m_launchWhenSWLaunchCB", "IDS_LINK_SETTING_NEW_CHECK_STARTUP"},
                                  {"m_launchWhenSWLaunchCBForEmail", "IDS_LINK_SETTING_NEW_CHECK_STARTUP"},
                                  {"m_launchWhenSWLaunchCBForInternet", "IDS_LINK_SETTING_NEW_CHECK_STARTUP"},
                                  {"m_launchWhenConnectCB", "IDS_LINK_SETTING_NEW_CHECK"},
                                  {"m_launchWhenConnectCBForEmail", "IDS_LINK_SETTING_NEW_CHECK"},
                                  {"m_launchWhenConnectCBForInternet", "IDS_LINK_SETTING_NEW_CHECK"},
                                  {"m_appTabWidget", "IDS_LINK_TYPE_APPLICATION"},
                                  {"m_okBtn", "IDS_LINK_SETTING_NEW_OK"},
                                  {"m_cancelBtn", "IDS_LINK_SETTING_NEW_CANCEL"},
                                  {"m_UrlLabel", "IDS_LINK_SETTING_NEW_TAB_IE_URL"},
                                  {"m_DefaultLbl", "IDS_LINK_SETTING_NEW_TAB_EMAIL_URL"}};

/** The keys of the link types, in the order of the choice. */
const char* const typeKeys[] = {"IDS_LINK_TYPE_APPLICATION", "IDS_LINK_TYPE_E-MAIL", "IDS_LINK_TYPE_INTERNET"};

/** "widget: text" for every text in a dialog's frame, the types of the choice last. */
inline QStringList textsIn(const QWidget* frame)
{
    QStringList texts;
    for (const DialogText& entry : dialogTexts) {
        const QWidget* const widget = frame->findChild<QWidget*>(entry.widget);
        const QTabWidget* const tabs = qobject_cast<const QTabWidget*>(widget);
        texts << QString("%1: %2").arg(entry.widget, tabs ? tabs->tabText(0) : widget->property("text").toString());
    }
    const QComboBox* const choice = frame->findChild<QComboBox*>("m_appTypeChoice");
    for (int i = 0; i < choice->count(); ++i)
        texts << "type: " + choice->itemText(i);
    return texts;
}

/** What textsIn() gives in a language, while nothing but the language has set a text. */
inline QStringList textsInLanguage(const QString& language)
{
    QStringList texts;
    for (const DialogText& entry : dialogTexts)
        texts << QString("%1: %2:%3").arg(entry.widget, language, entry.key);
    for (const char* key : typeKeys)
        texts << QString("type: %1:%2").arg(language, key);
    return texts;
}
