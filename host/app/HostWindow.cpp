// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the program does when it has a window: shows it, lets its parts hear of each other, and answers the user.

#include "Host.h"

#include <QApplication>
#include <QFileInfo>

#include "BringToFront.h"
#include "ConnectionPanel.h"
#include "ConnectionTexts.h"
#include "DecisionsOnBus.h"
#include "EditLinkButton.h"
#include "IQuickLinkPlugin.h"
#include "LanguageMenu.h"
#include "LinksOnBus.h"
#include "MainWindow.h"
#include "NetworkManagerSource.h"
#include "Notice.h"
#include "OpeningCause.h"
#include "PluginMessages.h"
#include "PluginNotifications.h"
#include "ProgramIcon.h"
#include "RunningProgram.h"
#include "Translator.h"
#include "Tray.h"
#include "UserFolder.h"
#include "UserSettings.h"
#include "WhyWindow.h"

void Host::showWindow(std::optional<ConnectionKind> kind, bool isHidden)
{
    m_kindOfThisRun = kind;
    m_choice = UserSettings::connection();
    m_choice.kind = m_fixed.connection.value_or(m_choice.kind);
    startWithSessionAsFixed();
    ConnectionChoice choice = m_choice;
    choice.kind = kind.value_or(choice.kind);
    // Whether the program ends with its window depends on the tray.
    QApplication::setQuitOnLastWindowClosed(false);
    m_texts = std::make_unique<ConnectionTexts>(m_monitor, choice.kind);
    const QString language = m_translator.followsSystem() ? QString() : m_translator.current();
    LanguageMenu* const languages = new LanguageMenu(Translator::languages(), language);
    if (m_fixed.language)
        languages->setFixed();
    QObject::connect(languages, &LanguageMenu::languageChosen, languages, [this](const QString& chosen) {
        UserSettings::setLanguage(chosen);
        setLanguage(chosen);
    });
    m_panel = new ConnectionPanel(m_monitor, choice.kind);
    m_window = std::make_unique<MainWindow>(m_panel, languages);
    m_window->restorePlace(UserSettings::windowPlace());
    m_tray = std::make_unique<Tray>(*m_window, m_window->linkMenu());
    connectWindow();
    connectMessages();
    m_menuManager.rebuild();
    // Before the window shows, so that it shows the real state from the beginning.
    follow(choice);
    if (isHidden)
        m_window->stayHidden();
    else
        m_window->show();
}

void Host::follow(const ConnectionChoice& choice)
{
    m_texts->setKind(choice.kind);
    m_panel->setKind(choice.kind);
    const bool isManual = choice.kind == ConnectionKind::Manual;
    m_monitor.start(isManual ? nullptr : std::make_unique<NetworkManagerSource>(choice));
}

void Host::connectWindow()
{
    MainWindow* const window = m_window.get();
    QObject::connect(&m_menuManager, &MenuManager::rebuilt, window, &MainWindow::setLinks);
    QObject::connect(&m_menuManager, &MenuManager::rebuilt, window,
                     [this](const QList<QAction*>& actions) { giveIcons(actions); });
    QObject::connect(window, &MainWindow::settingsRequested, window, [this] { showSettings(); });
    QObject::connect(window, &MainWindow::appeared, window, [this] {
        // Not before: for a picture the toolkit loads all libraries that it has for pictures.
        QApplication::setWindowIcon(programIcon());
        // Nor this: it waits for the disk.
        m_linkKeeper.watch(m_window.get());
        showRefusals();
        tellStarted();
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
    QObject::connect(window, &MainWindow::whyRequested, window, [this] { showWhy(); });
    QObject::connect(window, &MainWindow::closed, window, [this] { windowClosed(); });
    QObject::connect(window, &MainWindow::hidden, window, [this] { keepWindowPlace(); });
    QObject::connect(window, &MainWindow::quitRequested, window, [this] { quit(); });
    QObject::connect(m_tray.get(), &Tray::quitRequested, window, [this] { quit(); });
    QObject::connect(&m_monitor, &ConnectionMonitor::changed, window, [this] { showConnection(); });
    QObject::connect(&m_monitor, &ConnectionMonitor::announced, window,
                     [this](bool isUp, const QString& reason) { tellConnectionChanged(isUp, reason); });
    m_sleepWatch = std::make_unique<SleepWatch>();
    QObject::connect(m_sleepWatch.get(), &SleepWatch::fallingAsleep, &m_monitor, &ConnectionMonitor::fallAsleep);
    QObject::connect(m_sleepWatch.get(), &SleepWatch::wokeUp, &m_monitor, &ConnectionMonitor::wakeUp);
}

void Host::tellStarted()
{
    const OpeningCause cause(QCoreApplication::translate("Host", "The program started"));
    PluginNotifications::tellStarted(m_container);
    tellPassedOver(QStringLiteral("startmobile"));
}

void Host::tellConnectionChanged(bool isUp, const QString& reason)
{
    const OpeningCause cause(QCoreApplication::translate("Host", "A connection came up"));
    PluginNotifications::tellConnectionChanged(m_container, isUp, reason);
    if (isUp)
        tellPassedOver(QStringLiteral("startconnect"));
}

/** Where there is no plug-in for links, none opened in the place of another. */
void Host::tellPassedOver(const QString& mark)
{
    if (!m_container.all<IQuickLinkPlugin>().isEmpty())
        m_links.tellPassedOver(mark);
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
    new DecisionsOnBus(m_decisions, *program);
    new LinksOnBus(m_linkKeeper, m_menuManager, *program);
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

void Host::showWhy()
{
    if (!m_whyWindow) {
        m_whyWindow = new WhyWindow(m_decisions, m_window.get());
        m_whyWindow->setAttribute(Qt::WA_DeleteOnClose);
    }
    bringToFront(m_whyWindow, QByteArray());
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
