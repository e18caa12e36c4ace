// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "MenuManager.h"

#include <QPointer>

#include "HostContract.h"
#include "IQuickLinkPlugin.h"
#include "LinkName.h"
#include "OpenedLink.h"
#include "OpeningCause.h"
#include "PluginContainer.h"
#include "ShownText.h"

// In characters: on a small screen, a menu is not wider than it is high. The rest is in the tool tip.
static const int longestEntry = 60;

MenuManager::MenuManager(const PluginContainer& container)
    : m_container(container)
{
}

int MenuManager::Notify(unsigned int code, unsigned int param1, unsigned int param2)
{
    Q_UNUSED(param1);
    Q_UNUSED(param2);
    if (code == HostContract::linksChanged)
        rebuild();
    return 0;
}

void MenuManager::rebuild()
{
    const QList<QAction*> old = m_actions;
    m_actions.clear();
    const QList<PluginWith<IQuickLinkPlugin>> plugins = m_container.all<IQuickLinkPlugin>();
    for (const PluginWith<IQuickLinkPlugin>& plugin : plugins)
        addLinks(plugin);
    Q_EMIT rebuilt(m_actions);
    // Later: one of them may be what asked for the change.
    for (QAction* action : old)
        action->deleteLater();
}

bool MenuManager::open(const QString& name)
{
    for (QAction* action : qAsConst(m_actions)) {
        if (action->data().toString() == ShownText::onOneLine(name))
            return QMetaObject::invokeMethod(action, "trigger", Qt::QueuedConnection);
    }
    return false;
}

void MenuManager::retranslate()
{
    for (QAction* action : qAsConst(m_actions))
        setTexts(action);
    Q_EMIT rebuilt(m_actions);
}

void MenuManager::clear()
{
    Q_EMIT rebuilt(QList<QAction*>());
    qDeleteAll(m_actions);
    m_actions.clear();
}

void MenuManager::addLinks(const PluginWith<IQuickLinkPlugin>& plugin)
{
    const int count = plugin.interface->GetQuickLinkRecordSize();
    for (int i = 0; i < count; ++i) {
        if (QAction* const theirs = plugin.interface->GetActionFromQuickLink(i))
            m_actions.append(newAction(plugin, theirs, i));
    }
}

void MenuManager::setTexts(QAction* action)
{
    const QString name = action->data().toString();
    action->setToolTip(ShownText::toolTip(tr("Open %1").arg(ShownText::isolatedName(name))));
    action->setStatusTip(tr("Open %1").arg(ShownText::isolatedName(ShownText::shortLine(name, longestEntry))));
}

/** The host's action for a plug-in's own one, which is in this place of the plug-in's list. */
QAction* MenuManager::newAction(const PluginWith<IQuickLinkPlugin>& plugin, QAction* theirs, int place)
{
    const QString name = ShownText::onOneLine(theirs->text());
    QAction* const action = new QAction(LinkName::withAmpersands(ShownText::shortLine(name, longestEntry)), this);
    action->setData(name);
    setTexts(action);
    connect(action, &QAction::triggered, this, [plugin, place, theirs = QPointer<QAction>(theirs)] {
        if (!plugin.object || !theirs)
            return;
        const OpenedLink link(theirs->text(), place);
        const OpeningCause cause(tr("You picked it"));
        plugin.interface->LaunchQuickLinkAction(theirs);
    });
    return action;
}
