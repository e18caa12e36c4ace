// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinksOnBus.h"

#include "LinkFile.h"
#include "LinkKeeper.h"
#include "MenuManager.h"
#include "RunningProgram.h"

LinksOnBus::LinksOnBus(LinkKeeper& keeper, MenuManager& menu, RunningProgram& program)
    : QDBusAbstractAdaptor(&program)
    , m_keeper(keeper)
    , m_menu(menu)
{
    connect(&m_keeper.guard(), &LinkGuard::stateChanged, this, &LinksOnBus::Changed);
}

QStringList LinksOnBus::List()
{
    return LinkFile::names(m_keeper.guard().current());
}

bool LinksOnBus::Open(const QString& name)
{
    return m_menu.open(name);
}

bool LinksOnBus::Replace(const QByteArray& from, const QByteArray& to)
{
    return m_keeper.replace(from, to);
}
