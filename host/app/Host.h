// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <memory>
#include <optional>

#include "ConnectionChoice.h"
#include "ConnectionDecisions.h"
#include "ConnectionMonitor.h"
#include "Decisions.h"
#include "DesktopNotices.h"
#include "DialupService.h"
#include "FixedSettings.h"
#include "Gatekeeper.h"
#include "HostContract.h"
#include "LinkAddresses.h"
#include "LinkIcons.h"
#include "LinkKeeper.h"
#include "LinkOpener.h"
#include "MenuManager.h"
#include "NotifyService.h"
#include "PluginContainer.h"
#include "SleepWatch.h"

class ConnectionPanel;
class ConnectionTexts;
class MainWindow;
class PluginMessages;
class ProgramPage;
class RunningProgram;
class Tray;
class Translator;
class WhyWindow;

/** The program put together: container, services, plug-ins and window, in the order in which they need each other. */
class Host
{
public:
    /**
     * Installs the container and registers the host's own components. Texts come from translator, which must outlive
     * the host. One Host at a time.
     */
    explicit Host(Translator& translator);

    /** Closes the window, then takes the plug-ins down. */
    ~Host();

    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    /**
     * Looks after the links from now on: to be called before loadPlugins() by a program that shows its window.
     * wasInterrupted says that the run before did not end by itself.
     */
    void guardLinks(bool wasInterrupted);

    /**
     * Prepares the user's folder and loads every plug-in of folder that may be loaded, see Gatekeeper; empty stands for
     * the installed ones.
     */
    void loadPlugins(const QString& folder);

    /** Loads them for a program that only looks: nothing is made or written in the user's folder. */
    void lookAtPlugins(const QString& folder);

    /** The container with the loaded plug-ins. */
    const PluginContainer& container() const;

    /** What the program is to be started with together with the session, when the user chooses that. */
    void setSessionArguments(const QStringList& arguments);

    /** What the operator of the computer has fixed: it counts instead of what the user chose. Before showWindow(). */
    void setFixedSettings(const FixedSettings& fixed);

    /**
     * Builds the menu from the plug-ins, shows the main window and follows the connections that the user chose from now
     * on, or in this run those of kind. The plug-ins are told of the start when the window is on the screen, or at once
     * where it is hidden: it then waits in the tray, and shows where there is none.
     */
    void showWindow(std::optional<ConnectionKind> kind, bool isHidden = false);

    /** The end of looking after the links. False where they are kept, but could not be put in place. */
    bool endLinks();

    /** Shows every text in language from now on, and tells the plug-ins; empty stands for the system's language. */
    void setLanguage(const QString& language);

private:
    void registerComponent(const HostContract::Component& identity, QObject* component);
    void takeOverLinks();
    void connectMessages();
    void giveIcons(const QList<QAction*>& actions);
    void loadFolder(const QString& pluginFolder);
    void tellMissing(const QString& asked) const;
    void connectWindow();
    void tellStarted();
    void tellConnectionChanged(bool isUp, const QString& reason);
    void tellPassedOver(const QString& mark);
    void announce();
    void showConnection();
    void windowClosed();
    void keepWindowPlace();
    void quit();
    void follow(const ConnectionChoice& choice);
    ProgramPage* newConnectionPage();
    ProgramPage* newGeneralPage();
    void keepConnection(const ConnectionChoice& choice) const;
    void startWithSessionAsFixed() const;
    void showWhy();
    void showSettings(const QString& link = QString());
    void editLink(const QString& link);
    bool isSeen() const;
    void showRefusals();
    void decideAboutLeftOut(bool isLoadedAgain);

    // Each uses only members above it: their order is their life, and they are destroyed in reverse.
    Translator& m_translator;
    Gatekeeper m_gatekeeper;
    PluginContainer m_container;
    Decisions m_decisions;
    ConnectionMonitor m_monitor;
    ConnectionDecisions m_connectionDecisions; ///< hears of a connection before plug-ins do
    DialupService m_dialupService;
    NotifyService m_notifyService;
    MenuManager m_menuManager;
    LinkKeeper m_linkKeeper;
    LinkOpener m_linkOpener;
    LinkAddresses m_links; ///< as the menu shows them
    DesktopNotices m_notices;
    LinkIcons m_icons;
    QString m_linkToEdit;
    QTimer m_editing; ///< goes off when that link is to be edited
    QStringList m_sessionArguments;
    FixedSettings m_fixed;
    std::optional<ConnectionKind> m_kindOfThisRun; ///< where the user's choice is not to count
    ConnectionChoice m_choice;                     ///< the user's, of a kind that may be fixed
    std::unique_ptr<ConnectionTexts> m_texts;
    ConnectionPanel* m_panel = nullptr; ///< the window's
    std::unique_ptr<MainWindow> m_window;
    QPointer<WhyWindow> m_whyWindow; ///< the window's; null while it is closed
    std::unique_ptr<PluginMessages> m_pluginMessages;
    std::unique_ptr<Tray> m_tray;
    std::unique_ptr<RunningProgram> m_runningProgram;
    std::unique_ptr<SleepWatch> m_sleepWatch; ///< only with a window: it opens the system bus
};
