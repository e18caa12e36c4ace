// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QAction;

/** A plug-in that offers quick links for the host's menu. */
class IQuickLinkPlugin
{
public:
    virtual ~IQuickLinkPlugin() {}

    /** The number of links, or -1 while none are loaded. */
    virtual int GetQuickLinkRecordSize() = 0;

    /**
     * A new action for the link at index (from 0), named after the link; null while no links are loaded.
     * The plug-in owns it and frees it only with itself, so ask when the links changed and not at every
     * opening of a menu.
     */
    virtual QAction* GetActionFromQuickLink(int index) = 0;

    /** Opens the link that action was made for. An action of somebody else, or null, does nothing. */
    virtual void LaunchQuickLinkAction(QAction* action) = 0;
};

Q_DECLARE_INTERFACE(IQuickLinkPlugin, "com.norvik.vellumconnect.plugin.IQuickLinkPlugin")
