// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <memory>

#include "ConnectionMonitor.h"
#include "DialupService.h"
#include "HostContract.h"
#include "MainWindow.h"
#include "MenuManager.h"
#include "NotifyService.h"
#include "PluginContainer.h"

/**
 * The program as it is without anybody who looks after the links: the same window, menu, settings and plug-ins as in
 * Host, no lock, no guard, no history. It is what the guard is compared with.
 */
class UnguardedHost
{
public:
    /** Installs the container and registers what the plug-ins ask for. One at a time, and no Host beside it. */
    UnguardedHost();

    /** Closes the window, then takes the plug-ins down. */
    ~UnguardedHost();

    UnguardedHost(const UnguardedHost&) = delete;
    UnguardedHost& operator=(const UnguardedHost&) = delete;

    /** Makes the plug-ins' folders below the user's, and loads every plug-in of folder. */
    void loadPlugins(const QString& folder);

    /** Shows the window with the links, and tells the plug-ins of the start. */
    void showWindow();

    /** The container with the loaded plug-ins. */
    const PluginContainer& container() const { return m_container; }

private:
    void add(const HostContract::Component& identity, QObject* component);
    void showSettings();

    PluginContainer m_container;
    ConnectionMonitor m_monitor;
    DialupService m_dialupService;
    NotifyService m_notifyService;
    MenuManager m_menuManager;
    std::unique_ptr<MainWindow> m_window;
};
