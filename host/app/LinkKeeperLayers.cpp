// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What comes of the operator's links, at the start and while the program runs.

#include "LinkKeeper.h"

#include "LayersLog.h"
#include "SettingsDialog.h"

/** The user's links, to which the operator's are added; nothing where they are no good. */
static QByteArray linksOf(const LinkFile& file)
{
    const bool isNone = file.condition == LinkFile::Missing || file.condition == LinkFile::Empty;
    if (isNone)
        return LinkFile::withoutLinks();
    return file.isGood() ? file.content : QByteArray();
}

void LinkKeeper::seed()
{
    using Event = LinkGuard::Event;
    if (m_isUnprepared || m_found.kind == Event::Gone || m_found.kind == Event::Lost)
        return;
    // What there is no trace of was not deleted link by link.
    if (m_found.kind == Event::FirstStart || m_found.kind == Event::NothingKept)
        m_layers.forget();
    if (m_layers.isIdle())
        return;
    const QByteArray links = linksOf(m_guard.look());
    if (!links.isEmpty())
        m_layers.seed(links, [this](const QByteArray& content) { return m_guard.startWith(content); });
}

void LinkKeeper::layersChanged()
{
    followLayers();
    if (m_layersRetry.isActive())
        qCInfo(layersLog, "the operator's links changed; they wait until nobody works on the user's");
}

/**
 * While the program runs. The file and the plug-in's memory change together, or the plug-in would save over it; and
 * what another program has just written is the guard's first.
 */
void LinkKeeper::followLayers()
{
    m_layersRetry.stop();
    if (m_isUnprepared)
        return;
    const LinkFile file = m_guard.look();
    const bool isTaken = file.isGood() ? file.content == m_guard.current() : m_guard.current().isEmpty();
    if (isPluginBusy() || m_settings || !isTaken) {
        m_layersRetry.start();
        return;
    }
    const QByteArray links = linksOf(file);
    if (!links.isEmpty() &&
        m_layers.seed(links, [this](const QByteArray& content) { return m_guard.goBackTo(content); }))
        reload();
}
