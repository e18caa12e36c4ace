// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The plug-in's life: made, Init(), in use, OnDestroy(), deleted.

#include "Pointers.h"
#include "QuickLinkSettingPluginDlg.h"
#include "QuickLinkXmlParse.h"
#include "Trace.h"

QuickLinkSettingPluginDlg* QuickLinkSettingPluginDlg::m_pInstance = nullptr;

QuickLinkSettingPluginDlg::QuickLinkSettingPluginDlg()
    : QObject(nullptr)
    , m_watch(this, &QuickLinkSettingPluginDlg::onWatchedObjectGone)
{
}

QuickLinkSettingPluginDlg::~QuickLinkSettingPluginDlg()
{
    // Whoever deletes the single object by hand must not leave the pointer to it behind.
    if (m_pInstance == this)
        m_pInstance = nullptr;
}

QuickLinkSettingPluginDlg* QuickLinkSettingPluginDlg::GetInstance()
{
    if (!m_pInstance)
        m_pInstance = new QuickLinkSettingPluginDlg;
    return m_pInstance;
}

void QuickLinkSettingPluginDlg::Destroy()
{
    release(m_pInstance);
}

int QuickLinkSettingPluginDlg::Init()
{
    TRACE("%s: %s: %s: called", Trace::now(), __FILE__, __func__);
    m_store = QuickLinkXmlParse::GetInstance();
    if (m_store) {
        m_store->ReadXmlInformation();
        m_recordList = m_store->m_recordList;
    }
    // The single object is a second one beside the one that the loader made; OnDestroy() deletes it.
    if (!m_pInstance)
        m_pInstance = new QuickLinkSettingPluginDlg;
    return 1;
}

/*
 * The order of release:
 *   1. the New dialog;                    5. the record list, whose owner of the pointer is the store;
 *   2. the records of the table's rows;   6. the single object;
 *   3. the table's delegate;              7. the page's frame: tab, tab widget, page widget;
 *   4. the rest of the page and the       8. the store.
 *      Edit dialog;
 */
void QuickLinkSettingPluginDlg::OnDestroy()
{
    TRACE_START();
    disposeDialog(m_newDlg);
    releaseRows();
    release(m_gridDelegate);
    releasePageContents();
    disposeDialog(m_editDlg);
    m_isEditing = false;
    if (m_store && m_store->m_recordList == m_recordList)
        m_store->m_recordList = nullptr;
    release(m_recordList);
    // Called on the single object itself, that object stays its caller's to delete.
    if (m_pInstance == this)
        m_pInstance = nullptr;
    release(m_pInstance);
    releasePageFrame();
    QuickLinkXmlParse::Destroy();
    m_store = nullptr;
    TRACE_END();
}
