// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Host.h"

#include <QApplication>
#include <QFileInfo>

#include "CommonUtils.h"
#include "ConnectionPanel.h"
#include "ConnectionTexts.h"
#include "FirstStart.h"
#include "ISettingUIPlugin.h"
#include "LanguageMenu.h"
#include "MainWindow.h"
#include "Places.h"
#include "PluginNotifications.h"
#include "SettingsDialog.h"
#include "StartupContainer.h"
#include "SystemSource.h"
#include "Translator.h"
#include "Tray.h"
#include "UserSettings.h"

Host::Host(Translator& translator)
    : m_translator(translator)
    , m_dialupService(m_monitor)
    , m_notifyService(m_container)
    , m_menuManager(m_container)
{
    installPluginContainer(&m_container);
    registerComponent(HostContract::notifyService, &m_notifyService);
    registerComponent(HostContract::menuManager, &m_menuManager);
    registerComponent(HostContract::dialupService, &m_dialupService);
}

Host::~Host()
{
    // The menu's entries point into the plug-ins, and pages of plug-ins may stand in the window.
    m_tray.reset();
    m_window.reset();
    m_menuManager.clear();
    m_container.shutdown();
    installPluginContainer(nullptr);
}

void Host::registerComponent(const HostContract::Component& identity, QObject* component)
{
    m_container.registerComponent(QLatin1String(identity.clsid), identity.kind, QLatin1String(identity.name),
                                  component);
}

void Host::loadPlugins(const QString& folder)
{
    const QString pluginFolder = folder.isEmpty() ? Places::pluginFolder() : folder;
    const QString userFolder = CommonUtils::GetPluginLibraryPath();
    FirstStart::copyDefaults(Places::defaultsFolder(), userFolder);
    FirstStart::makePluginFolders(pluginFolder, userFolder);
    m_container.loadFolder(pluginFolder);
}

const PluginContainer& Host::container() const
{
    return m_container;
}

void Host::showWindow(ConnectionKind kind)
{
    // Whether the program ends with its window depends on the tray.
    QApplication::setQuitOnLastWindowClosed(false);
    m_texts = std::make_unique<ConnectionTexts>(m_monitor, kind);
    const QString language = m_translator.followsSystem() ? QString() : m_translator.current();
    LanguageMenu* const languages = new LanguageMenu(Translator::languages(), language);
    QObject::connect(languages, &LanguageMenu::languageChosen, languages, [this](const QString& chosen) {
        UserSettings::setLanguage(chosen);
        setLanguage(chosen);
    });
    m_window = std::make_unique<MainWindow>(new ConnectionPanel(m_monitor, kind), languages);
    m_tray = std::make_unique<Tray>(*m_window, m_window->linkMenu());
    connectWindow();
    m_menuManager.rebuild();
    showRefusals();
    // Before the window shows, so that it shows the real state from the beginning.
    m_monitor.start(newSystemSource(kind));
    m_window->show();
}

void Host::connectWindow()
{
    MainWindow* const window = m_window.get();
    QObject::connect(&m_menuManager, &MenuManager::rebuilt, window, &MainWindow::setLinks);
    QObject::connect(window, &MainWindow::settingsRequested, window, [this] { showSettings(); });
    QObject::connect(window, &MainWindow::appeared, window, [this] { PluginNotifications::tellStarted(m_container); });
    QObject::connect(window, &MainWindow::closed, window, [this] { windowClosed(); });
    QObject::connect(window, &MainWindow::quitRequested, window, [this] { quit(); });
    QObject::connect(m_tray.get(), &Tray::quitRequested, window, [this] { quit(); });
    QObject::connect(&m_monitor, &ConnectionMonitor::changed, window, [this] { showConnection(); });
    QObject::connect(&m_monitor, &ConnectionMonitor::announced, window, [this](bool isUp, const QString& reason) {
        PluginNotifications::tellConnectionChanged(m_container, isUp, reason);
    });
    m_sleepWatch = std::make_unique<SleepWatch>();
    QObject::connect(m_sleepWatch.get(), &SleepWatch::fallingAsleep, &m_monitor, &ConnectionMonitor::fallAsleep);
    QObject::connect(m_sleepWatch.get(), &SleepWatch::wokeUp, &m_monitor, &ConnectionMonitor::wakeUp);
}

void Host::setLanguage(const QString& language)
{
    m_translator.use(language);
    PluginNotifications::tellLanguageChanged(m_container, m_translator.current());
    m_menuManager.retranslate();
    if (m_window)
        showConnection();
}

void Host::showConnection()
{
    m_tray->setState(m_monitor.state().isUp, m_texts->summary());
    m_window->setPermanentStatus(m_texts->missingService());
}

void Host::windowClosed()
{
    if (Tray::isAvailable())
        m_tray->tellThatItKeepsRunning();
    else
        quit();
}

void Host::quit()
{
    // Qt 6 closes the window on the way, which is not the user's doing then.
    QObject::disconnect(m_window.get(), &MainWindow::closed, nullptr, nullptr);
    QCoreApplication::quit();
}

void Host::showSettings()
{
    SettingsDialog dialog(m_container.all<ISettingUIPlugin>(), m_window.get());
    dialog.exec();
}

void Host::showRefusals()
{
    QStringList files;
    const QList<PluginContainer::Refusal> refusals = m_container.refusals();
    for (const PluginContainer::Refusal& refusal : refusals)
        files.append(QFileInfo(refusal.file).fileName());
    if (!files.isEmpty())
        m_window->showNotLoaded(files);
}
