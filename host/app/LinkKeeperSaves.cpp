// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What comes of a save by the plug-in: what an edit dropped is put back, and what failed is done again.

#include "LinkKeeper.h"

#include <utility>

#include "LinkItems.h"
#include "LinkPage.h"
#include "MainWindow.h"
#include "SettingsDialog.h"

void LinkKeeper::followSave(const QByteArray& from, const QByteArray& to)
{
    m_isMenuBehind = !m_isMenuTold;
    m_attempt.explain(LinkFile::names(from));
    if (m_attempt.kind() != LinkAttempt::Edit)
        return;
    const LinkForm& form = m_attempt.form();
    const DroppedFields dropped = DroppedFields::between(from, to, {form.opensOnConnect(), form.opensOnStart()});
    // The guard is not done with the save yet.
    QMetaObject::invokeMethod(
        this, [this, to, dropped] { mendEdit(to, dropped); }, Qt::QueuedConnection);
}

/** What the operator gave is put back, and what the user may not have meant to lose is offered. */
void LinkKeeper::mendEdit(const QByteArray& edited, const DroppedFields& dropped)
{
    if (m_guard.current() != edited)
        return;
    const QByteArray mended = LinkItems::with(edited, dropped.index, dropped.rights);
    if (!dropped.rights.isEmpty() && m_steps.goQuietly(mended))
        m_steps.amend(edited, mended);
    m_dropped = dropped;
    if (!dropped.marks.isEmpty())
        m_offer.offer(LinkItems::of(edited).value(dropped.index), dropped.marks);
}

void LinkKeeper::putBack()
{
    goBackTo(LinkItems::with(m_guard.current(), m_dropped.index, m_dropped.marks));
}

void LinkKeeper::saveFailed(const LinkGuard::Event& event)
{
    m_failure = event;
    m_failedAttempt = m_attempt;
    m_failedAttempt.explain(LinkFile::names(m_guard.current()));
    m_messages->tellSaveFailed(event, m_failedAttempt.kind() != LinkAttempt::Unknown);
    reloadAfter(event);
}

void LinkKeeper::tryAgain()
{
    // What could not be put in place then has to be now: the change is one of those links.
    if (!m_guard.finish())
        return m_messages->tellSaveFailed(m_failure, true);
    m_again = m_failedAttempt;
    if (std::exchange(m_failure.kind, LinkGuard::Event::PutBack) != LinkGuard::Event::PutBack)
        reloadWhenQuiet();
    else if (!m_retry.isActive())
        repeatAttempt();
}

/** Where the plug-in's memory and the page are what they were before the change. */
void LinkKeeper::repeatAttempt()
{
    if (m_again.kind() == LinkAttempt::Unknown || m_retry.isActive())
        return;
    if (!m_settings)
        return Q_EMIT settingsRequested();
    std::exchange(m_again, LinkAttempt()).repeat(LinkPage(m_settings));
}
