// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "OpenedLink.h"

static const OpenedLink*& innermost()
{
    static const OpenedLink* link = nullptr;
    return link;
}

static OpenedLink::Known& currentlyKnown()
{
    static OpenedLink::Known known;
    return known;
}

OpenedLink::OpenedLink(const QString& name, int place)
    : m_name(name)
    , m_place(place)
    , m_former(innermost())
{
    innermost() = this;
}

OpenedLink::~OpenedLink()
{
    innermost() = m_former;
}

const OpenedLink* OpenedLink::current()
{
    return innermost();
}

void OpenedLink::setKnown(const Known& known)
{
    currentlyKnown() = known;
}

QString OpenedLink::nameFor(const QString& address)
{
    if (innermost())
        return innermost()->name();
    return currentlyKnown().nameOf ? currentlyKnown().nameOf(address) : QString();
}

QString OpenedLink::address() const
{
    return currentlyKnown().addressOf ? currentlyKnown().addressOf(m_name, m_place) : QString();
}
