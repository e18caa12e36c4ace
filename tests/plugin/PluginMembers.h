// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include "QuickLinkSettingNewEditDlg.h"
#include "ShownPage.h"

/** Every pointer that the plug-in's object holds and lets go of in OnDestroy(); without object where it is no QObject.
 */
inline QList<PointerMember> releasedMembers(QuickLinkSettingPluginDlg* plugin)
{
    const PointerMember plain[] = {{"m_nameHeaderItem", &plugin->m_nameHeaderItem, nullptr},
                                   {"m_typeHeaderItem", &plugin->m_typeHeaderItem, nullptr},
                                   {"m_store", &plugin->m_store, nullptr},
                                   {"m_recordList", &plugin->m_recordList, nullptr}};
    QList<PointerMember> members = membersOf(plugin);
    members << pointerMember("m_gridDelegate", plugin->m_gridDelegate) << pointerMember("m_newDlg", plugin->m_newDlg)
            << pointerMember("m_editDlg", plugin->m_editDlg)
            << pointerMember("m_pInstance", QuickLinkSettingPluginDlg::m_pInstance);
    for (const PointerMember& member : plain)
        members << member;
    return members;
}

/** The names of those that are null now, or that are not. */
inline QStringList releasedMembersThatAre(bool areNull, QuickLinkSettingPluginDlg* plugin)
{
    QStringList names;
    const QList<PointerMember> members = releasedMembers(plugin);
    for (const PointerMember& member : members) {
        if (member.isNull() == areNull)
            names << member.name;
    }
    return names;
}
