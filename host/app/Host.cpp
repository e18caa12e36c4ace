// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The program before it has a window, and its end. With a window it goes on in HostWindow.cpp.

#include "Host.h"

#include "CommandLine.h"
#include "ConnectionTexts.h"
#include "EditLinkButton.h"
#include "FirstStart.h"
#include "LinkSchemes.h"
#include "MainWindow.h"
#include "Notice.h"
#include "OpenedLink.h"
#include "Opening.h"
#include "Places.h"
#include "PluginMessages.h"
#include "PluginNotifications.h"
#include "RunningProgram.h"
#include "StartupContainer.h"
#include "Translator.h"
#include "Tray.h"
#include "UserFolder.h"
#include "UserSettings.h"
#include "WhyWindow.h"

/** The one that was asked for, or else that of the installation. */
static QString folderOfPlugins(const QString& asked)
{
    return asked.isEmpty() ? Places::pluginFolder() : asked;
}

Host::Host(Translator& translator)
    : m_translator(translator)
    , m_connectionDecisions(m_monitor, m_decisions)
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
    Opening::setListener([this](const Decision& decision) { m_decisions.add(decision); });
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
    Opening::setListener(nullptr);
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
    m_linkKeeper.seed();
    FirstStart::makePluginFolders(pluginFolder, userFolder);
    m_gatekeeper.open(userFolder, pluginFolder);
    loadFolder(pluginFolder);
    tellMissing(folder);
}

void Host::lookAtPlugins(const QString& folder)
{
    const QString pluginFolder = folderOfPlugins(folder);
    m_gatekeeper.look(UserFolder::path(), pluginFolder);
    loadFolder(pluginFolder);
    tellMissing(folder);
}

void Host::loadFolder(const QString& pluginFolder)
{
    // Its reader would wait for ever.
    if (m_linkKeeper.guard().isSafeToRead())
        m_container.loadFolder(pluginFolder);
    else
        qWarning("%s is no file; no plug-in is loaded", qUtf8Printable(m_linkKeeper.guard().file()));
}

/** Of a folder that the user named; what is wrong with a plug-in in it was told. */
void Host::tellMissing(const QString& asked) const
{
    if (!asked.isEmpty() && m_container.plugins().isEmpty() && m_container.refusals().isEmpty())
        qWarning("vellumconnect: %s", qUtf8Printable(CommandLine::noPlugins(asked)));
}

bool Host::endLinks()
{
    return m_linkKeeper.endWatch();
}

void Host::takeOverLinks()
{
    const QByteArray content = m_linkKeeper.guard().look().content;
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

void Host::setFixedSettings(const FixedSettings& fixed)
{
    m_fixed = fixed;
}

void Host::setLanguage(const QString& language)
{
    m_translator.use(language);
    PluginNotifications::tellLanguageChanged(m_container, m_translator.current());
    m_menuManager.retranslate();
    if (m_window)
        showConnection();
}
