// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkLayers.h"

#include <QFileInfo>

#include <utility>

#include "LayerFiles.h"
#include "LayerRules.h"
#include "LayersLog.h"
#include "LinkFile.h"
#include "SeedRecord.h"

Q_LOGGING_CATEGORY(layersLog, "vellum.layers")

LinkLayers::LinkLayers(const QStringList& folders, const QString& record, int quiet)
    : m_folders(folders)
    , m_record(record)
{
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(quiet);
    connect(&m_quiet, &QTimer::timeout, this, [this] {
        keepWatching();
        Q_EMIT changed();
    });
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_quiet, QOverload<>::of(&QTimer::start));
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_quiet, QOverload<>::of(&QTimer::start));
}

/** What rewriting made of content; empty where it is not what was wanted. */
static QByteArray rewritten(const QByteArray& content, const LinkRewrite& links, int count)
{
    const QByteArray made = links.applied(content);
    const int wanted = count - int(links.removed.size()) + int(links.added.size());
    QList<LinkItems::Fields> found;
    const bool isGood = LinkFile::ofContent(made, &found).isGood() && int(found.size()) == wanted;
    return isGood ? made : QByteArray();
}

bool LinkLayers::isIdle() const
{
    return m_given.isEmpty() && LayerFiles::areNone(m_folders) && !QFileInfo::exists(m_record);
}

bool LinkLayers::seed(const QByteArray& content, const Place& place)
{
    const LayerFiles layers = LayerFiles::read(m_folders);
    m_files = layers.paths;
    if (m_isWatching)
        keepWatching();
    tellUnreadable(layers.unreadable);
    if (layers.isUnknown) {
        qCWarning(layersLog, "a folder of the operator's links may not be read; all links stay as they are");
        return false;
    }
    read();
    const QList<LinkItems::Fields> users = LinkItems::of(content);
    const LayerRules::Outcome outcome = LayerRules::outcome(users, m_given, layers.links, layers.unreadable);
    const bool isChange = !outcome.links.isNone();
    if (isChange) {
        const QByteArray made = rewritten(content, outcome.links, int(users.size()));
        if (made.isEmpty() || !place(made)) {
            qCWarning(layersLog, "the operator's links cannot be put in place; the next start tries again");
            return false;
        }
        qCInfo(layersLog, "the operator's links: %d new, %d changed, %d taken away", int(outcome.links.added.size()),
               int(outcome.links.changed.size()), int(outcome.links.removed.size()));
    }
    // Not before: were it interrupted in between, a link that is noted and not there would be one that the user
    // deleted.
    remember(outcome.given);
    return isChange;
}

void LinkLayers::read()
{
    if (!std::exchange(m_isRead, true))
        m_given = SeedRecord::read(m_record);
}

void LinkLayers::forget()
{
    m_isRead = true;
    m_given.clear();
    m_isNoted = !QFileInfo::exists(m_record);
}

void LinkLayers::remember(const QList<GivenLink>& given)
{
    m_isNoted = m_isNoted && m_given == given;
    m_given = given;
    finish();
}

void LinkLayers::finish()
{
    if (m_isNoted)
        return;
    m_isNoted = SeedRecord::write(m_record, m_given);
    if (!m_isNoted)
        qCWarning(layersLog, "%s cannot be written: links of the operator that are deleted now may come back",
                  qUtf8Printable(m_record));
}

void LinkLayers::tellUnreadable(const QStringList& names)
{
    for (const QString& name : names) {
        if (!m_toldBroken.contains(name))
            qCWarning(layersLog, "the operator's file %s is no good; its links stay as they are", qUtf8Printable(name));
    }
    m_toldBroken = names;
}

void LinkLayers::watch()
{
    m_isWatching = true;
    keepWatching();
}

/** A watch ends with what it is on; of a folder that is missing, the one in which it would be is watched. */
void LinkLayers::keepWatching()
{
    QStringList places = m_files;
    for (const QString& folder : std::as_const(m_folders)) {
        QFileInfo place(folder);
        while (!place.exists() && !place.isRoot())
            place.setFile(place.path());
        places.append(place.filePath());
    }
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    for (const QString& place : std::as_const(places)) {
        if (!watched.contains(place) && QFileInfo::exists(place))
            m_watcher.addPath(place);
    }
}
