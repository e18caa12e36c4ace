// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Opening.h"

#include "OpenedLink.h"
#include "OpeningCause.h"

static Opening::Listener& openingListener()
{
    static Opening::Listener listener;
    return listener;
}

/** A reason is followed by its subject in a message, and by nothing here. */
static QString withoutColon(QString reason)
{
    const QChar wideColon(0xff1a);
    const bool hasColon = reason.endsWith(QLatin1Char(':')) || reason.endsWith(wideColon);
    if (hasColon)
        reason.chop(1);
    return reason.trimmed();
}

Opening::Opening(const QString& target)
    : m_link(OpenedLink::nameFor(target))
    , m_target(target)
    , m_cause(OpeningCause::current())
{
}

void Opening::succeed() const
{
    tell(tr("Opened"));
}

void Opening::wait() const
{
    tell(tr("You were asked first"));
}

void Opening::decline() const
{
    tell(tr("Not opened: you did not agree"));
}

void Opening::refuse(const QString& reason) const
{
    tell(tr("Not opened: %1").arg(withoutColon(reason)));
}

void Opening::fail(const QString& reason) const
{
    tell(tr("Failed: %1").arg(withoutColon(reason)));
}

void Opening::setListener(const Listener& listener)
{
    openingListener() = listener;
}

void Opening::tell(const QString& outcome) const
{
    if (!openingListener())
        return;
    Decision decision;
    decision.time = QDateTime::currentDateTime();
    decision.what = m_link.isEmpty() ? m_target : m_link;
    // An address that is none has no text any more.
    if (decision.what.isEmpty())
        decision.what = tr("Unknown link");
    decision.cause = m_cause;
    decision.outcome = outcome;
    openingListener()(decision);
}
