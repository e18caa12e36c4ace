// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The life of the plug-in that has the links, and what others do to them. What comes of its saves is in
// LinkKeeperSaves.cpp, what comes of the operator's links in LinkKeeperLayers.cpp.

#include "LinkKeeper.h"

#include <QApplication>
#include <QThread>

#include <dlfcn.h>
#include <utility>

#include "HostContract.h"
#include "IQuickLinkPlugin.h"
#include "ISettingUIPlugin.h"
#include "LinkPage.h"
#include "MainWindow.h"
#include "MenuManager.h"
#include "Places.h"
#include "PluginContainer.h"
#include "SettingsDialog.h"
#include "UserFolder.h"

/** The folders with the operator's links. */
static QStringList layerFolders()
{
    QStringList folders = Places::operatorFolders();
    for (QString& folder : folders)
        folder += QStringLiteral("/links.d");
    return folders;
}

LinkKeeper::LinkKeeper(const QString& userFolder, PluginContainer& container, MenuManager& menu)
    : m_guard(userFolder)
    , m_layers(layerFolders(), userFolder + QStringLiteral("/seeded.xml"))
    , m_container(container)
    , m_menu(menu)
    , m_steps([this](const QByteArray& content) { return goBackTo(content); })
{
    m_retry.setSingleShot(true);
    m_retry.setInterval(200); // ms
    connect(&m_retry, &QTimer::timeout, this, &LinkKeeper::reloadWhenQuiet);
    m_layersRetry.setSingleShot(true);
    m_layersRetry.setInterval(200); // ms
    connect(&m_layersRetry, &QTimer::timeout, this, &LinkKeeper::followLayers);
}

LinkKeeper::~LinkKeeper()
{
    endWatch();
}

void LinkKeeper::prepare(bool wasInterrupted)
{
    m_found = m_guard.start(wasInterrupted);
}

void LinkKeeper::repeatFirstStart()
{
    m_isUnprepared = true;
    m_guard.repeatFirstStart();
}

void LinkKeeper::watch(MainWindow* window)
{
    m_window = window;
    m_offer.setLine(&window->offerLine());
    connect(&m_offer, &PutBackOffer::accepted, this, &LinkKeeper::putBack);
    m_messages = std::make_unique<GuardMessages>(window);
    connect(m_messages.get(), &GuardMessages::decided, this, &LinkKeeper::decide);
    connect(m_messages.get(), &GuardMessages::bringBackRequested, this, [this] {
        if (m_guard.bringBack())
            reloadWhenQuiet();
    });
    // When the message is gone, which keeps plug-ins from being taken down.
    connect(m_messages.get(), &GuardMessages::tryAgainRequested, this, &LinkKeeper::tryAgain, Qt::QueuedConnection);
    connect(&m_menu, &MenuManager::rebuilt, this, [this] {
        m_isMenuTold = true;
        m_isMenuBehind = false;
    });
    connect(&m_guard, &LinkGuard::saved, this, &LinkKeeper::followSave);
    connect(&m_guard, &LinkGuard::stateChanged, this, [this](const QByteArray& from, const QByteArray& to) {
        m_offer.withdraw();
        m_steps.add(from, to);
    });
    connect(&m_guard, &LinkGuard::changedOutside, this, &LinkKeeper::followOutside);
    connect(&m_guard, &LinkGuard::damagedOutside, this, [this](const LinkGuard::Event& event) {
        m_messages->tell(event);
        reloadAfter(event);
    });
    connect(&m_guard, &LinkGuard::saveFailed, this, &LinkKeeper::saveFailed);
    m_guard.watch();
    connect(&m_layers, &LinkLayers::changed, this, &LinkKeeper::layersChanged);
    m_layers.watch();
    UserFolder::setListener([this](const void* caller) {
        // What another plug-in has in the folder is its own business.
        if (!m_isReloading && !isQuickLinks(caller))
            return;
        m_isMenuTold = false;
        // Once it is loaded, the plug-in uses the file for saves only.
        m_guard.beforeUse(m_isReloading ? LinkGuard::Reading : LinkGuard::Saving);
        if (!m_isReloading)
            m_attempt = LinkAttempt::now(LinkPage(m_settings));
    });
    m_isWatching = true;
    m_messages->tell(m_found);
    if (m_isUnprepared)
        m_messages->tellUnprepared();
}

bool LinkKeeper::endWatch()
{
    UserFolder::setListener(nullptr);
    m_retry.stop();
    m_layersRetry.stop();
    m_layers.disconnect(this);
    m_guard.disconnect(this);
    m_menu.disconnect(this);
    m_offer.disconnect(this);
    m_offer.setLine(nullptr);
    m_messages.reset();
    if (!std::exchange(m_isWatching, false))
        return true;
    m_layers.finish();
    return m_guard.finish();
}

void LinkKeeper::setSettings(SettingsDialog* settings)
{
    m_settings = settings;
    m_offer.setLine(m_settings ? &m_settings->offerLine() : m_window ? &m_window->offerLine() : nullptr);
    if (m_settings) {
        QMetaObject::invokeMethod(this, &LinkKeeper::repeatAttempt, Qt::QueuedConnection);
        return;
    }
    if (m_messages)
        m_messages->leaveModalWindow();
    if (m_isMenuBehind)
        m_menu.rebuild();
}

/** Whether this is code of the quick links. Their table of virtual functions lies in the same file. */
bool LinkKeeper::isQuickLinks(const void* code) const
{
    const QObject* const links = m_container.GetPlugin(QLatin1String(HostContract::quickLinks.clsid), 0);
    Dl_info ours;
    Dl_info theirs;
    return links && dladdr(*reinterpret_cast<const void* const*>(links), &ours) && dladdr(code, &theirs) &&
           ours.dli_fbase == theirs.dli_fbase;
}

void LinkKeeper::reload()
{
    m_menu.clear();
    const int row = LinkPage(m_settings).row();
    if (m_settings)
        m_settings->leavePages();
    const QList<PluginWith<IQuickLinkPlugin>> plugins = m_container.all<IQuickLinkPlugin>();
    m_isReloading = true;
    for (const PluginWith<IQuickLinkPlugin>& plugin : plugins)
        m_container.reload(plugin.object);
    m_isReloading = false;
    m_menu.rebuild();
    if (m_settings)
        m_settings->setPlugins(m_container.all<ISettingUIPlugin>());
    LinkPage(m_settings).select(row);
    QMetaObject::invokeMethod(this, &LinkKeeper::repeatAttempt, Qt::QueuedConnection);
}

void LinkKeeper::reloadWhenQuiet()
{
    if (isPluginBusy())
        m_retry.start();
    else
        reload();
}

/** Where nothing could be put in place, the plug-in's memory is the best place for the links. */
void LinkKeeper::reloadAfter(const LinkGuard::Event& event)
{
    if (event.kind == LinkGuard::Event::PutBack)
        reloadWhenQuiet();
}

/** Whether a plug-in's call may be on the stack, or the user fills in something of a plug-in's. */
bool LinkKeeper::isPluginBusy() const
{
    // Each window that waits for an answer has a loop of its own; only that of the settings is ours.
    const int ownLoops = m_settings ? 2 : 1;
    const QWidget* const modal = QApplication::activeModalWidget();
    return QThread::currentThread()->loopLevel() > ownLoops || (modal && modal != m_settings);
}

void LinkKeeper::followOutside(const QByteArray& theirs, const QByteArray& ours, bool isLost)
{
    if (isLost || isPluginBusy() || m_settings)
        askWhoseLinks(theirs, ours);
    else
        reload();
}

void LinkKeeper::askWhoseLinks(const QByteArray& theirs, const QByteArray& ours)
{
    m_theirs = theirs;
    m_ours = ours;
    m_messages->askWhoseLinks();
}

void LinkKeeper::decide(bool isTheirs)
{
    // Where the plug-in has saved since, the links are the user's own already, with what was done to them meanwhile.
    const bool isPlaced = m_guard.current() == m_theirs ? isTheirs : !isTheirs;
    if (isPlaced || m_guard.goBackTo(isTheirs ? m_theirs : m_ours))
        reloadWhenQuiet();
}

bool LinkKeeper::goBackTo(const QByteArray& content)
{
    const bool isDone = m_guard.goBackTo(content);
    if (isDone)
        reloadWhenQuiet();
    else
        m_messages->tellSaveFailed(LinkGuard::Event(), false);
    return isDone;
}

bool LinkKeeper::replace(const QByteArray& from, const QByteArray& to)
{
    // What a plug-in or another program has written just now is not known to the guard yet.
    const bool isSeen = m_guard.current() == from && LinkFile::look(m_guard.file()).content == from;
    return m_isWatching && isSeen && !m_settings && !isPluginBusy() && LinkFile::ofContent(to).isGood() && goBackTo(to);
}
