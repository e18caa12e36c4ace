// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Host.h"

#include <QApplication>
#include <QFileInfo>

#include "Autostart.h"
#include "BringToFront.h"
#include "ConnectionPanel.h"
#include "ConnectionTexts.h"
#include "EditLinkButton.h"
#include "FirstStart.h"
#include "GeneralPage.h"
#include "HistoryPage.h"
#include "ISettingUIPlugin.h"
#include "LanguageMenu.h"
#include "LinkSchemes.h"
#include "MainWindow.h"
#include "Notice.h"
#include "OpenedLink.h"
#include "Places.h"
#include "PluginMessages.h"
#include "PluginNotifications.h"
#include "RunningProgram.h"
#include "SettingsDialog.h"
#include "StartupContainer.h"
#include "SystemSource.h"
#include "Translator.h"
#include "Tray.h"
#include "UserFolder.h"
#include "UserSettings.h"

/** The one that was asked for, or else that of the installation. */
static QString folderOfPlugins(const QString& asked)
{
    return asked.isEmpty() ? Places::pluginFolder() : asked;
}

Host::Host(Translator& translator)
    : m_translator(translator)
    , m_dialupService(m_monitor)
    , m_notifyService(m_container)
    , m_menuManager(m_container)
    , m_linkKeeper(UserFolder::path(), m_container, m_menuManager)
    , m_linkOpener({&UserSettings::isAgreed, &UserSettings::addAgreed})
{
    QObject::connect(&m_menuManager, &MenuManager::rebuilt, &m_linkOpener, [this] { takeOverLinks(); });
    OpenedLink::setKnown({[this](const QString& name, int place) { return m_links.addressOf(name, place); },
                          [this](const QString& address) {
                              return m_links.nameOf(address);
                          }});
    m_container.setGate(&m_gatekeeper);
    installPluginContainer(&m_container);
    registerComponent(HostContract::notifyService, &m_notifyService);
    registerComponent(HostContract::menuManager, &m_menuManager);
    registerComponent(HostContract::dialupService, &m_dialupService);
}

Host::~Host()
{
    setNoticeOutlet(nullptr);
    EditLinkButton::setEditor(nullptr);
    OpenedLink::setKnown({});
    // The menu's entries point into the plug-ins, and pages of plug-ins may stand in the window.
    m_runningProgram.reset();
    m_tray.reset();
    // One toolkit hides the window at the end, the other does not.
    if (m_window && m_window->isVisible())
        keepWindowPlace();
    endLinks();
    m_pluginMessages.reset();
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

void Host::guardLinks(bool wasInterrupted)
{
    UserSettings::removeLeftLock();
    m_linkKeeper.prepare(wasInterrupted);
}

void Host::loadPlugins(const QString& folder)
{
    const QString pluginFolder = folderOfPlugins(folder);
    const QString userFolder = UserFolder::path();
    // Later the links are the user's, who may have removed them on purpose.
    const bool isFirstStart = !m_linkKeeper.guard().history().exists();
    if (isFirstStart && !FirstStart::copyDefaults(Places::defaultsFolder(), userFolder))
        m_linkKeeper.repeatFirstStart();
    FirstStart::makePluginFolders(pluginFolder, userFolder);
    m_gatekeeper.open(userFolder, pluginFolder);
    loadFolder(pluginFolder);
}

void Host::lookAtPlugins(const QString& folder)
{
    const QString pluginFolder = folderOfPlugins(folder);
    m_gatekeeper.look(UserFolder::path(), pluginFolder);
    loadFolder(pluginFolder);
}

void Host::loadFolder(const QString& pluginFolder)
{
    // Its reader would wait for ever.
    if (m_linkKeeper.guard().isSafeToRead())
        m_container.loadFolder(pluginFolder);
    else
        qWarning("%s is no file; no plug-in is loaded", qUtf8Printable(m_linkKeeper.guard().file()));
}

bool Host::endLinks()
{
    return m_linkKeeper.endWatch();
}

void Host::takeOverLinks()
{
    const QByteArray content = LinkFile::look(m_linkKeeper.guard().file()).content;
    m_linkOpener.takeOver(LinkSchemes::of(content));
    m_links = LinkAddresses(content);
}

const PluginContainer& Host::container() const
{
    return m_container;
}

void Host::setSessionArguments(const QStringList& arguments)
{
    m_sessionArguments = arguments;
}

void Host::showWindow(ConnectionKind kind, bool isHidden)
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
    m_window->restorePlace(UserSettings::windowPlace());
    m_tray = std::make_unique<Tray>(*m_window, m_window->linkMenu());
    connectWindow();
    connectMessages();
    m_menuManager.rebuild();
    // Before the window shows, so that it shows the real state from the beginning.
    m_monitor.start(newSystemSource(kind));
    if (isHidden)
        m_window->stayHidden();
    else
        m_window->show();
}

void Host::connectWindow()
{
    MainWindow* const window = m_window.get();
    QObject::connect(&m_menuManager, &MenuManager::rebuilt, window, &MainWindow::setLinks);
    QObject::connect(&m_menuManager, &MenuManager::rebuilt, window,
                     [this](const QList<QAction*>& actions) { giveIcons(actions); });
    QObject::connect(window, &MainWindow::settingsRequested, window, [this] { showSettings(); });
    QObject::connect(window, &MainWindow::appeared, window, [this] {
        // Not before: it waits for the disk.
        m_linkKeeper.watch(m_window.get());
        showRefusals();
        PluginNotifications::tellStarted(m_container);
        announce();
        m_icons.start();
    });
    QUndoStack* const steps = &m_linkKeeper.steps().stack();
    QObject::connect(&m_linkKeeper, &LinkKeeper::settingsRequested, window, &MainWindow::settingsRequested);
    QObject::connect(window, &MainWindow::undoRequested, steps, &QUndoStack::undo);
    QObject::connect(window, &MainWindow::redoRequested, steps, &QUndoStack::redo);
    QObject::connect(steps, &QUndoStack::indexChanged, window,
                     [window, steps] { window->setSteps(steps->canUndo(), steps->canRedo()); });
    m_pluginMessages = std::make_unique<PluginMessages>(window);
    QObject::connect(window, &MainWindow::leftOutPluginsRequested, m_pluginMessages.get(),
                     [this] { m_pluginMessages->ask(m_gatekeeper.leftOut().all()); });
    QObject::connect(m_pluginMessages.get(), &PluginMessages::decided, window,
                     [this](bool isLoadedAgain) { decideAboutLeftOut(isLoadedAgain); });
    QObject::connect(window, &MainWindow::closed, window, [this] { windowClosed(); });
    QObject::connect(window, &MainWindow::hidden, window, [this] { keepWindowPlace(); });
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

void Host::giveIcons(const QList<QAction*>& actions)
{
    QList<LinkIcons::Link> links;
    for (int i = 0; i < actions.size(); ++i)
        links.append({actions.at(i), m_links.addressOf(actions.at(i)->data().toString(), i)});
    m_icons.setLinks(links);
}

/** What messages need of the window. */
void Host::connectMessages()
{
    // When the message is gone, or the plug-in that showed it has its answer.
    m_editing.setSingleShot(true);
    QObject::connect(&m_editing, &QTimer::timeout, m_window.get(), [this] { editLink(m_linkToEdit); });
    EditLinkButton::setEditor([this](const QString& link) {
        m_linkToEdit = link;
        m_editing.start(0);
    });
    setNoticeOutlet([this](const QString& title, const QString& text, const QString& subject, const QString& link) {
        if (isSeen())
            return false;
        m_notices.add(title, text, subject, link);
        return true;
    });
    MainWindow* const window = m_window.get();
    QObject::connect(&m_notices, &DesktopNotices::windowRequested, window,
                     [window](const QByteArray& token) { bringToFront(window, token); });
    QObject::connect(
        &m_notices, &DesktopNotices::editRequested, window, [this](const QString& link) { editLink(link); },
        Qt::QueuedConnection);
}

/** Whether the user has a window of the program on the screen. */
bool Host::isSeen() const
{
    return QApplication::activeWindow() || (m_window->isVisible() && !m_window->isMinimized());
}

void Host::announce()
{
    MainWindow* const window = m_window.get();
    m_runningProgram = std::make_unique<RunningProgram>(UserFolder::path());
    RunningProgram* const program = m_runningProgram.get();
    QObject::connect(program, &RunningProgram::windowRequested, window,
                     [window](const QByteArray& token) { bringToFront(window, token); });
    // When the caller has its answer. One dialog of settings is enough.
    QObject::connect(
        program, &RunningProgram::settingsRequested, window,
        [this] {
            if (!QApplication::activeModalWidget())
                showSettings();
        },
        Qt::QueuedConnection);
    QObject::connect(
        program, &RunningProgram::quitRequested, window, [this] { quit(); }, Qt::QueuedConnection);
    program->announce();
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
    if (m_tray->isAvailable())
        m_tray->tellThatItKeepsRunning();
    else
        quit();
}

void Host::keepWindowPlace()
{
    UserSettings::setWindowPlace(m_window->saveGeometry());
}

void Host::quit()
{
    // Qt 6 closes the window on the way, which is not the user's doing then.
    QObject::disconnect(m_window.get(), &MainWindow::closed, nullptr, nullptr);
    QCoreApplication::quit();
}

/** In the settings, those that are open or new ones. Whoever is asked something else answers that first. */
void Host::editLink(const QString& link)
{
    QWidget* const modal = QApplication::activeModalWidget();
    if (SettingsDialog* const settings = qobject_cast<SettingsDialog*>(modal))
        settings->chooseLink(link);
    else if (!modal)
        showSettings(link);
}

void Host::showSettings(const QString& link)
{
    SettingsDialog dialog(m_container.all<ISettingUIPlugin>(), m_window.get());
    LinkGuard& guard = m_linkKeeper.guard();
    HistoryPage* const history = new HistoryPage(guard.history());
    QObject::connect(&guard, &LinkGuard::stateChanged, history, &HistoryPage::refresh);
    QObject::connect(history, &HistoryPage::goBackRequested, &m_linkKeeper, &LinkKeeper::goBackTo);
    dialog.addPage(history);
    GeneralPage* const general = new GeneralPage(Autostart::isOn());
    QObject::connect(general, &GeneralPage::startWithSessionChosen, general, [this, general](bool isOn) {
        const bool isDone = isOn ? Autostart::turnOn(m_sessionArguments) : Autostart::turnOff();
        general->setStartsWithSession(Autostart::isOn(), isDone ? QString() : Autostart::file());
    });
    dialog.addPage(general);
    dialog.setParametersNote(LinkAddresses(guard.current()).haveParameters());
    QObject::connect(&guard, &LinkGuard::stateChanged, &dialog, [&dialog](const QByteArray&, const QByteArray& to) {
        dialog.setParametersNote(LinkAddresses(to).haveParameters());
    });
    dialog.chooseLink(link);
    m_linkKeeper.setSettings(&dialog);
    dialog.exec();
    m_linkKeeper.setSettings(nullptr);
}

void Host::showRefusals()
{
    QStringList files;
    const QList<PluginContainer::Refusal> refusals = m_container.refusals();
    for (const PluginContainer::Refusal& refusal : refusals)
        files.append(QFileInfo(refusal.file).fileName());
    if (!files.isEmpty())
        m_window->showNotLoaded(files);
    PluginMessages::tell(m_gatekeeper.refusals());
    m_window->setLeftOutPlugins(!m_gatekeeper.leftOut().all().isEmpty());
    if (m_gatekeeper.leftOut().isNew())
        m_pluginMessages->ask(m_gatekeeper.leftOut().all());
}

void Host::decideAboutLeftOut(bool isLoadedAgain)
{
    if (isLoadedAgain)
        m_gatekeeper.leftOut().letAllIn();
    else
        m_gatekeeper.leftOut().answer();
    m_window->setLeftOutPlugins(!isLoadedAgain);
}
