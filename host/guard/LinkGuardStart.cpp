// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The look at the file before any plug-in reads it.

#include "LinkGuard.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>

#include "DurableFile.h"

LinkGuard::Event LinkGuard::start(bool wasInterrupted)
{
    const LinkFile file = look();
    if (file.isGood()) {
        m_found = file.content;
        return Event();
    }
    if (file.condition == LinkFile::Missing)
        return withoutFile(wasInterrupted);
    return m_history.newestGood().isNull() ? withoutHistory(file) : repair(file.condition, true);
}

bool LinkGuard::startWith(const QByteArray& content)
{
    // Another program may have written it since the last run, so that nobody has kept it yet.
    const LinkFile file = look();
    return (!file.isGood() || m_history.keep(file.content)) && goBackTo(content);
}

bool LinkGuard::isSafeToRead() const
{
    // A stat(2) is enough: the file was looked into already.
    const QFileInfo file(m_file);
    return !file.exists() || file.isFile();
}

bool LinkGuard::bringBack()
{
    return !m_gone.isEmpty() && goBackTo(m_gone);
}

LinkGuard::Event LinkGuard::withoutFile(bool wasInterrupted)
{
    Event event;
    event.condition = LinkFile::Missing;
    if (!m_history.exists()) {
        event.kind = Event::FirstStart;
        return event;
    }
    const LinkHistory::State state = m_history.newestGood();
    if (wasInterrupted && !state.isNull())
        return repair(LinkFile::Missing, false);
    m_gone = LinkHistory::contentOf(state);
    event.time = state.time;
    event.links = LinkFile::names(m_gone).size();
    if (event.links > 0) {
        event.kind = Event::Gone;
        // Told once: from the next start on this is how things are.
        m_history.keep(LinkFile::withoutLinks());
    }
    return event;
}

LinkGuard::Event LinkGuard::withoutHistory(const LinkFile& file)
{
    Event event;
    event.condition = file.condition;
    // A file without anything in it is no loss.
    if (file.condition == LinkFile::Empty)
        return event;
    event.kind = Event::NothingKept;
    if (file.condition != LinkFile::Damaged) {
        event.setAside = setAside();
        return event;
    }
    const QString copy = newNameAside();
    if (DurableFile::liesBelow(m_userFolder, copy) && DurableFile::write(copy, file.content))
        event.setAside = copy;
    return event;
}

/** A name beside the file that nothing has. */
QString LinkGuard::newNameAside() const
{
    const QString time = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    const QString name = QStringLiteral("%1.damaged-%2").arg(m_file, time);
    QString free = name;
    for (int i = 2; QFileInfo::exists(free) || QFileInfo(free).isSymLink(); ++i)
        free = QStringLiteral("%1-%2").arg(name).arg(i);
    return free;
}

/** Moves the file aside, whatever it is. Where it lies now; empty when it could not be moved. */
QString LinkGuard::setAside() const
{
    keepLock();
    const QString aside = newNameAside();
    // Not by QFile, which copies what it cannot rename, and so would open a pipe.
    const bool isDone = std::rename(QFile::encodeName(m_file).constData(), QFile::encodeName(aside).constData()) == 0;
    return isDone ? aside : QString();
}
