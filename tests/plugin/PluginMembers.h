// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHBoxLayout>
#include <QLabel>
#include <QList>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include "QuickLinkSettingNewEditDlg.h"
#include "QuickLinkSettingPluginDlg.h"
#include "QuickLinkXmlParse.h"

/** A pointer member of the plug-in's object. */
struct PluginMember {
    const char* name;
    const void* pointer;
    QObject* object; ///< the same, where it is a QObject; else null
};

/** The pointers that the object holds at this moment and lets go of in OnDestroy(). */
inline QList<PluginMember> releasedMembers(QuickLinkSettingPluginDlg* plugin)
{
    return {{"m_pageWidget", plugin->m_pageWidget, plugin->m_pageWidget},
            {"m_QLinkTabWidget", plugin->m_QLinkTabWidget, plugin->m_QLinkTabWidget},
            {"m_QLinkTab", plugin->m_QLinkTab, plugin->m_QLinkTab},
            {"m_QLinkListTblView", plugin->m_QLinkListTblView, plugin->m_QLinkListTblView},
            {"m_launchOrderLbl", plugin->m_launchOrderLbl, plugin->m_launchOrderLbl},
            {"m_upBtn", plugin->m_upBtn, plugin->m_upBtn},
            {"m_downBtn", plugin->m_downBtn, plugin->m_downBtn},
            {"m_newBtn", plugin->m_newBtn, plugin->m_newBtn},
            {"m_editBtn", plugin->m_editBtn, plugin->m_editBtn},
            {"m_deleteBtn", plugin->m_deleteBtn, plugin->m_deleteBtn},
            {"m_pageLayout", plugin->m_pageLayout, plugin->m_pageLayout},
            {"m_tabLayout", plugin->m_tabLayout, plugin->m_tabLayout},
            {"m_buttonColumnLayout", plugin->m_buttonColumnLayout, plugin->m_buttonColumnLayout},
            {"m_orderButtonsLayout", plugin->m_orderButtonsLayout, plugin->m_orderButtonsLayout},
            {"m_nameHeaderItem", plugin->m_nameHeaderItem, nullptr},
            {"m_typeHeaderItem", plugin->m_typeHeaderItem, nullptr},
            {"m_gridDelegate", plugin->m_gridDelegate, plugin->m_gridDelegate},
            {"m_newDlg", plugin->m_newDlg, plugin->m_newDlg},
            {"m_editDlg", plugin->m_editDlg, plugin->m_editDlg},
            {"m_store", plugin->m_store, nullptr},
            {"m_recordList", plugin->m_recordList, nullptr},
            {"m_pInstance", QuickLinkSettingPluginDlg::m_pInstance, QuickLinkSettingPluginDlg::m_pInstance}};
}

/** One row for each of the members, as an index into the list. */
inline void addMemberRows(QuickLinkSettingPluginDlg* plugin)
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const PluginMember& member : releasedMembers(plugin))
        QTest::newRow(member.name) << index++;
}
