// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "UnguardedHost.h"

#include "ConnectionPanel.h"
#include "FirstStart.h"
#include "ISettingUIPlugin.h"
#include "LanguageMenu.h"
#include "PluginNotifications.h"
#include "SettingsDialog.h"
#include "StartupContainer.h"
#include "UserFolder.h"

UnguardedHost::UnguardedHost()
    : m_dialupService(m_monitor)
    , m_notifyService(m_container)
    , m_menuManager(m_container)
{
    installPluginContainer(&m_container);
    add(HostContract::notifyService, &m_notifyService);
    add(HostContract::menuManager, &m_menuManager);
    add(HostContract::dialupService, &m_dialupService);
}

UnguardedHost::~UnguardedHost()
{
    m_window.reset();
    m_menuManager.clear();
    m_container.shutdown();
    installPluginContainer(nullptr);
}

void UnguardedHost::add(const HostContract::Component& identity, QObject* component)
{
    m_container.registerComponent(QLatin1String(identity.clsid), identity.kind, QLatin1String(identity.name),
                                  component);
}

void UnguardedHost::loadPlugins(const QString& folder)
{
    FirstStart::makePluginFolders(folder, UserFolder::path());
    m_container.loadFolder(folder);
}

void UnguardedHost::showWindow()
{
    m_window = std::make_unique<MainWindow>(new ConnectionPanel(m_monitor, ConnectionKind::Manual),
                                            new LanguageMenu({}, QString()));
    QObject::connect(&m_menuManager, &MenuManager::rebuilt, m_window.get(), &MainWindow::setLinks);
    QObject::connect(m_window.get(), &MainWindow::settingsRequested, m_window.get(), [this] { showSettings(); });
    QObject::connect(m_window.get(), &MainWindow::appeared, m_window.get(),
                     [this] { PluginNotifications::tellStarted(m_container); });
    m_menuManager.rebuild();
    m_window->show();
}

void UnguardedHost::showSettings()
{
    SettingsDialog dialog(m_container.all<ISettingUIPlugin>(), m_window.get());
    dialog.exec();
    // The order of links is saved without a word to the menu.
    m_menuManager.rebuild();
}
