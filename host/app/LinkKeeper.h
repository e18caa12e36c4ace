// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>

#include "DroppedFields.h"
#include "GuardMessages.h"
#include "LinkAttempt.h"
#include "LinkGuard.h"
#include "LinkLayers.h"
#include "LinkSteps.h"
#include "PutBackOffer.h"

class MainWindow;
class MenuManager;
class PluginContainer;
class SettingsDialog;

/**
 * Brings together the guard of the links, the plug-ins that hold them in memory, and the user: what the guard puts in
 * place is loaded by taking the plug-in down and starting it again, and what it finds is told.
 */
class LinkKeeper : public QObject
{
    Q_OBJECT

public:
    /** Keeps the links below userFolder, which the plug-ins of container have and menu shows; both outlive the keeper.
     */
    LinkKeeper(const QString& userFolder, PluginContainer& container, MenuManager& menu);

    ~LinkKeeper() override;

    LinkKeeper(const LinkKeeper&) = delete;
    LinkKeeper& operator=(const LinkKeeper&) = delete;

    /** The guard of the links. */
    LinkGuard& guard() { return m_guard; }

    /** What was done to the links in this run. */
    LinkSteps& steps() { return m_steps; }

    /** Looks at the links before plug-ins are loaded, and mends what is no good; see LinkGuard::start(). */
    void prepare(bool wasInterrupted);

    /** What was prepared for the user could not be put in place: watch() tells so, and the next start tries again. */
    void repeatFirstStart();

    /**
     * Before plug-ins are loaded, and after prepare(): gives the user the operator's links. Where links wait to be
     * brought back or put in place, that comes first, and this at the next start.
     */
    void seed();

    /** With the plug-ins loaded: tells in and over window what prepare() found, and stands by from now on. */
    void watch(MainWindow* window);

    /**
     * The end of watch(): plug-ins and window may go. False where the links are kept, but could not be put in place;
     * see LinkGuard::finish(). Harmless when repeated.
     */
    bool endWatch();

    /**
     * The settings that are open, so that their pages follow; null when they close. They stay the caller's. At their
     * end the menu follows what was saved without telling it, as the order of links is.
     */
    void setSettings(SettingsDialog* settings);

    /** Lets the links be as in content again, as a step of its own. False where it cannot be done, and the user is
     * told. */
    bool goBackTo(const QByteArray& content);

    /**
     * Lets the links be as in to, for another program that has seen them as in from, as a step of its own. False where
     * they are others meanwhile, where to is no good, or where the user is at work on them.
     */
    bool replace(const QByteArray& from, const QByteArray& to);

Q_SIGNALS:
    /** What the user wants to do again needs the settings. */
    void settingsRequested();

private:
    bool isQuickLinks(const void* code) const;
    void layersChanged();
    void followLayers();
    void reload();
    void reloadWhenQuiet();
    void reloadAfter(const LinkGuard::Event& event);
    bool isPluginBusy() const;
    void askWhoseLinks(const QByteArray& theirs, const QByteArray& ours);
    void followOutside(const QByteArray& theirs, const QByteArray& ours, bool isLost);
    void decide(bool isTheirs);
    void followSave(const QByteArray& from, const QByteArray& to);
    void mendEdit(const QByteArray& edited, const DroppedFields& dropped);
    void putBack();
    void saveFailed(const LinkGuard::Event& event);
    void tryAgain();
    void repeatAttempt();

    LinkGuard m_guard;
    LinkLayers m_layers;
    PluginContainer& m_container;
    MenuManager& m_menu;
    LinkGuard::Event m_found;
    LinkSteps m_steps;
    PutBackOffer m_offer;
    DroppedFields m_dropped;     ///< what the offer is about
    LinkAttempt m_attempt;       ///< what the plug-in saved last
    LinkGuard::Event m_failure;  ///< of the last save that failed
    LinkAttempt m_failedAttempt; ///< and what it was about
    LinkAttempt m_again;         ///< to be done as soon as it can be
    QPointer<MainWindow> m_window;
    std::unique_ptr<GuardMessages> m_messages;
    QPointer<SettingsDialog> m_settings;
    QTimer m_retry;
    QTimer m_layersRetry;
    bool m_isWatching = false;
    bool m_isUnprepared = false; ///< repeatFirstStart()
    bool m_isReloading = false;
    bool m_isMenuTold = false;   ///< since the plug-in used the file last
    bool m_isMenuBehind = false; ///< shows what was before a save
    QByteArray m_theirs;         ///< what the question is about
    QByteArray m_ours;
};
