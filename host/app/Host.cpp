// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Host.h"

#include <QFileInfo>
#include <QStatusBar>

#include "CommonUtils.h"
#include "FirstStart.h"
#include "MainWindow.h"
#include "Places.h"
#include "SettingsDialog.h"
#include "StartupContainer.h"

namespace
{
const int notifyServiceKind = 0x2011;
const int menuManagerKind = 0x2012;
} // namespace

Host::Host()
    : m_notifyService(m_container)
    , m_menuManager(m_container)
{
    installPluginContainer(&m_container);
    m_container.registerComponent(QStringLiteral("8B42D0E5-1C7F-4A93-9E26-5D8F03B7C412"), notifyServiceKind,
                                  QStringLiteral("NotifyService"), &m_notifyService);
    m_container.registerComponent(QStringLiteral("0F6E2B94-83D1-4C57-A6B0-91E5D27C3A48"), menuManagerKind,
                                  QStringLiteral("MenuMgrPlugin"), &m_menuManager);
}

Host::~Host()
{
    // The menu's entries point into the plug-ins, and pages of plug-ins may stand in the window.
    m_window.reset();
    m_menuManager.clear();
    m_container.shutdown();
    installPluginContainer(nullptr);
}

void Host::loadPlugins(const QString& folder)
{
    const QString pluginFolder = folder.isEmpty() ? Places::pluginFolder() : folder;
    const QString userFolder = CommonUtils::GetPluginLibraryPath();
    FirstStart::copyDefaults(Places::defaultsFolder(), userFolder);
    FirstStart::makePluginFolders(pluginFolder, userFolder);
    m_container.loadFolder(pluginFolder);
}

QList<QObject*> Host::plugins() const
{
    return m_container.plugins();
}

void Host::showWindow()
{
    m_window = std::make_unique<MainWindow>();
    QObject::connect(&m_menuManager, &MenuManager::rebuilt, m_window.get(), &MainWindow::setLinks);
    QObject::connect(m_window.get(), &MainWindow::settingsRequested, m_window.get(), [this] { showSettings(); });
    m_menuManager.rebuild();
    showRefusals();
    m_window->show();
}

void Host::showSettings()
{
    SettingsDialog dialog(m_container.plugins(), m_window.get());
    dialog.exec();
}

void Host::showRefusals()
{
    QStringList names;
    const QList<PluginContainer::Refusal> refusals = m_container.refusals();
    for (const PluginContainer::Refusal& refusal : refusals)
        names.append(QFileInfo(refusal.file).fileName());
    if (!names.isEmpty())
        m_window->statusBar()->showMessage(MainWindow::tr("Not loaded: %1").arg(names.join(QStringLiteral(", "))));
}
