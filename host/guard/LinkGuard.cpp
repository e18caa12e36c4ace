// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// While the program runs: what plug-ins and others do to the file. The start is in LinkGuardStart.cpp.

#include "LinkGuard.h"

#include <QFileInfo>
#include <QLoggingCategory>
#include <QStorageInfo>

#include <utility>

#include "DurableFile.h"

Q_LOGGING_CATEGORY(guardLog, "vellum.guard")

static const int quietTime = 1000; // ms: a program that writes a file in pieces is not disturbed

LinkGuard::LinkGuard(const QString& userFolder)
    : m_userFolder(userFolder)
    , m_file(userFolder + QStringLiteral("/plugins/QuickLinkUIPlugin/config.xml"))
    , m_history(userFolder, userFolder + QStringLiteral("/history"))
{
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(quietTime);
    m_idle.setSingleShot(true);
    connect(&m_idle, &QTimer::timeout, this, &LinkGuard::settle);
    connect(&m_quiet, &QTimer::timeout, this, &LinkGuard::settle);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_quiet, QOverload<>::of(&QTimer::start));
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_quiet, QOverload<>::of(&QTimer::start));
}

LinkFile LinkGuard::look() const
{
    return LinkFile::look(m_file, m_current.isEmpty() ? m_found : m_current);
}

void LinkGuard::watch()
{
    keepLock();
    // That there is a history tells the next start that it is not the first.
    if (!m_isFirstStartRepeated)
        m_history.prepare();
    const LinkFile file = look();
    if (file.isGood() && file.content != m_current)
        take(file.content);
    m_stamp = FileStamp::of(m_file);
    keepWatching();
}

/** From now on the file may be missing for a moment. After a power cut then, the lock tells that nobody removed it. */
void LinkGuard::keepLock() const
{
    DurableFile::syncFolder(m_userFolder);
}

void LinkGuard::beforeUse(Use use)
{
    if (m_hasAnswered)
        settle();
    m_isSaved = m_isSaved || use == Saving;
    if (m_isUsed)
        return;
    m_isUsed = true;
    const FileStamp stamp = FileStamp::of(m_file);
    if (stamp != m_stamp) {
        // The plug-in does not know of this change, and what it writes will not have it.
        const LinkFile file = look();
        if (file.isGood() && file.content != m_current) {
            m_theirs = file.content;
            m_history.keep(file.content);
        }
    }
    QMetaObject::invokeMethod(this, "answered", Qt::QueuedConnection);
}

/** The plug-in's call is over. The user sees what it did first, and then the disk is waited for. */
void LinkGuard::answered()
{
    m_hasAnswered = true;
    m_idle.start();
}

void LinkGuard::settle()
{
    m_hasAnswered = false;
    keepWatching();
    const bool isOwn = std::exchange(m_isUsed, false);
    const bool isSaved = std::exchange(m_isSaved, false);
    const QByteArray theirs = std::exchange(m_theirs, QByteArray());
    const bool isUntouched = FileStamp::of(m_file) == m_stamp;
    if (isUntouched && !isOwn)
        return;
    const LinkFile file = look();
    // Nobody had links, and nobody has.
    const bool isNothing = file.condition == LinkFile::Missing && m_current.isEmpty() && !isSaved;
    if (isNothing)
        return;
    if (!file.isGood() || (isSaved && isUntouched))
        tellFailure(file, isOwn);
    else
        tellChange(file.content, theirs, isOwn);
}

/** The file is no good, or a save did not write it. */
void LinkGuard::tellFailure(const LinkFile& file, bool isOwn)
{
    const Event event = repair(file.condition, !isOwn);
    if (isOwn)
        Q_EMIT saveFailed(event);
    else
        Q_EMIT damagedOutside(event);
}

/** The file is good. theirs is what another program had written before the plug-in used it; empty for nothing. */
void LinkGuard::tellChange(const QByteArray& content, const QByteArray& theirs, bool isOwn)
{
    const QByteArray before = m_current;
    take(content);
    const bool isSave = isOwn && content != theirs;
    if (!isSave && content != before)
        Q_EMIT changedOutside(content, before, false);
    if (isSave && content != before)
        Q_EMIT saved(before, content);
    if (isSave && !theirs.isEmpty())
        Q_EMIT changedOutside(theirs, content, true);
}

bool LinkGuard::finish()
{
    settle();
    const LinkFile file = look();
    return file.isGood() || m_current.isEmpty() || repair(file.condition, false).kind == Event::PutBack;
}

/** A watch ends with what it is on, which every save removes. */
void LinkGuard::keepWatching()
{
    const QString folder = QFileInfo(m_file).path();
    const QStringList places = {m_file, folder, QFileInfo(folder).path()};
    for (const QString& place : places) {
        if (QFileInfo::exists(place))
            m_watcher.addPath(place);
    }
}

void LinkGuard::take(const QByteArray& content)
{
    m_stamp = FileStamp::of(m_file);
    // Whoever wrote it did not wait, and at the next start a file of before would look as good as this one.
    DurableFile::syncFile(m_file);
    keep(content);
}

/** The file holds content, and that is on the disk. */
void LinkGuard::keep(const QByteArray& content)
{
    const QByteArray before = std::exchange(m_current, content);
    if (!m_history.keep(content))
        qCWarning(guardLog, "the links cannot be kept in %s", qUtf8Printable(m_userFolder));
    if (!before.isEmpty() && content != before)
        Q_EMIT stateChanged(before, content);
}

bool LinkGuard::goBackTo(const QByteArray& content)
{
    if (m_isUsed)
        settle();
    if (content != m_current && !putBack(content))
        return false;
    m_stamp = FileStamp::of(m_file);
    keep(content);
    return true;
}

LinkGuard::Event LinkGuard::repair(LinkFile::Condition condition, bool isSetAside)
{
    Event event;
    event.condition = condition;
    event.reason = reasonOfFailure();
    const LinkHistory::State state = m_current.isEmpty() ? m_history.newestGood() : m_history.find(m_current);
    QByteArray content = m_current.isEmpty() ? LinkHistory::contentOf(state) : m_current;
    if (content.isEmpty())
        content = LinkFile::withoutLinks();
    if (isSetAside && condition != LinkFile::Missing)
        event.setAside = setAside();
    event.time = state.isNull() ? QDateTime::currentDateTimeUtc() : state.time;
    event.links = LinkFile::names(content).size();
    event.kind = condition == LinkFile::Good || putBack(content) ? Event::PutBack : Event::Lost;
    if (event.kind == Event::PutBack)
        take(content);
    qCWarning(guardLog, "the links' file was no good (%d); %s", int(condition),
              event.kind == Event::PutBack ? "the state before is back" : "the state before could not be put back");
    return event;
}

LinkGuard::Event::Reason LinkGuard::reasonOfFailure() const
{
    const QString folder = QFileInfo(m_file).path();
    if (!QFileInfo(folder).isWritable())
        return Event::NotWritable;
    const QStorageInfo disk(folder);
    return disk.isValid() && disk.bytesAvailable() < 4096 ? Event::DiskFull : Event::Unknown;
}

bool LinkGuard::putBack(const QByteArray& content)
{
    DurableFile::makePrivateFolder(QFileInfo(m_file).path());
    if (!DurableFile::liesBelow(m_userFolder, m_file)) {
        qCWarning(guardLog, "%s leads out of the user's folder; nothing is written there", qUtf8Printable(m_file));
        return false;
    }
    if (DurableFile::write(m_file, content))
        return true;
    const LinkHistory::State kept = m_history.find(content);
    return !kept.isNull() && DurableFile::takePlaceOf(kept.file, m_file);
}
