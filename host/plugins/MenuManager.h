// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>
#include <QList>
#include <QObject>

#include "INotify.h"
#include "PluginWith.h"

class IQuickLinkPlugin;
class PluginContainer;

/**
 * Keeps one action of the host for every quick link of every plug-in. Menu and buttons show these; a triggered one is
 * handed back to its plug-in as the plug-in's own action. It listens as "MenuMgrPlugin" for changed links.
 */
class MenuManager : public QObject, public INotify
{
    Q_OBJECT
    Q_INTERFACES(INotify)

public:
    /** Asks the plug-ins of container, which must outlive the manager. */
    explicit MenuManager(const PluginContainer& container);

    /** 2309: the links changed, so they are asked for again. Other codes are ignored. 0 in any case. */
    int Notify(unsigned int code, unsigned int param1, unsigned int param2) override;

    /**
     * Asks every plug-in for its links. A plug-in keeps each action that it hands out until its end, so this is done at
     * the start and when links changed, never when a menu opens. Safe while an action is being triggered.
     */
    void rebuild();

    /** Opens the first link of this name as if it were picked, once the caller is done. False where there is none. */
    bool open(const QString& name);

    /** Shows the texts of the actions in the current language. Asks no plug-in. */
    void retranslate();

    /** Deletes all its actions, to be called before the plug-ins are unloaded. */
    void clear();

Q_SIGNALS:
    /** The actions in the order of plug-ins and links, each with the link's name as data. They stay the manager's. */
    void rebuilt(const QList<QAction*>& actions);

private:
    void addLinks(const PluginWith<IQuickLinkPlugin>& plugin);
    static void setTexts(QAction* action);
    QAction* newAction(const PluginWith<IQuickLinkPlugin>& plugin, QAction* theirs, int place);

    const PluginContainer& m_container;
    QList<QAction*> m_actions;
};
