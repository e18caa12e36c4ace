// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

#include <memory>

#include "LinkOpener.h"
#include "MenuManager.h"
#include "NotifyService.h"
#include "PluginContainer.h"

class MainWindow;

/** The program put together: container, services, plug-ins and window, in the order in which they need each other. */
class Host
{
public:
    /** Installs the container and registers the host's own components. One Host at a time. */
    Host();

    /** Closes the window, then takes the plug-ins down. */
    ~Host();

    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    /** Prepares the user's folder and loads every plug-in of folder; empty stands for the installed ones. */
    void loadPlugins(const QString& folder);

    /** The loaded plug-ins in load order, which stay the host's. */
    QList<QObject*> plugins() const;

    /** Builds the menu from the plug-ins and shows the main window. */
    void showWindow();

private:
    void showSettings();
    void showRefusals();

    PluginContainer m_container;
    NotifyService m_notifyService;
    MenuManager m_menuManager;
    LinkOpener m_linkOpener;
    std::unique_ptr<MainWindow> m_window;
};
