// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkHistory.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "DurableFile.h"
#include "LinkFile.h"

// A state is named "20261122T101500123-0123456789abcdef.xml": UTC to the millisecond, and what tells its content.
static const QString timeFormat = QStringLiteral("yyyyMMdd'T'HHmmsszzz");
static const int timeLength = 18;
static const int identityLength = 16;

static QString identityOf(const QByteArray& content)
{
    const QByteArray digest = QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
    return QString::fromLatin1(digest.left(identityLength));
}

/** The state that has this name; null for a name that no state has. */
static LinkHistory::State stateOf(const QFileInfo& file)
{
    const QString name = file.completeBaseName();
    LinkHistory::State state;
    state.time = QDateTime::fromString(name.left(timeLength), timeFormat);
    state.time.setTimeSpec(Qt::UTC);
    state.identity = name.mid(timeLength + 1);
    if (state.time.isValid() && state.identity.size() == identityLength)
        state.file = file.filePath();
    return state;
}

LinkHistory::LinkHistory(const QString& root, const QString& folder)
    : m_root(root)
    , m_folder(folder)
{
}

bool LinkHistory::exists() const
{
    return QFileInfo(m_folder).isDir();
}

bool LinkHistory::prepare() const
{
    return DurableFile::makePrivateFolder(m_folder) &&
           DurableFile::liesBelow(m_root, m_folder + QStringLiteral("/state"));
}

bool LinkHistory::keep(const QByteArray& content) const
{
    if (!prepare())
        return false;
    const QList<State> kept = states();
    const QString identity = identityOf(content);
    if (!kept.isEmpty() && kept.constFirst().identity == identity &&
        LinkFile::read(kept.constFirst().file).content == content)
        return true;
    // The newest stays the newest, also when the clock was put back.
    QDateTime time = QDateTime::currentDateTimeUtc();
    if (!kept.isEmpty() && time <= kept.constFirst().time)
        time = kept.constFirst().time.addMSecs(1);
    const QString file = QStringLiteral("%1/%2-%3.xml").arg(m_folder, time.toString(timeFormat), identity);
    if (!DurableFile::write(file, content))
        return false;
    int others = 0;
    for (const State& state : kept) {
        if (state.identity == identity || ++others >= longest)
            QFile::remove(state.file);
    }
    return true;
}

QList<LinkHistory::State> LinkHistory::states() const
{
    QList<State> states;
    // The newest has the last name.
    const QFileInfoList files = QDir(m_folder).entryInfoList(
        {QStringLiteral("*-*.xml")}, QDir::Files | QDir::NoSymLinks, QDir::Name | QDir::Reversed);
    for (const QFileInfo& file : files) {
        const State state = stateOf(file);
        if (!state.isNull())
            states.append(state);
    }
    return states;
}

QByteArray LinkHistory::contentOf(const State& state)
{
    const LinkFile file = LinkFile::look(state.file);
    return file.isGood() && identityOf(file.content) == state.identity ? file.content : QByteArray();
}

LinkHistory::State LinkHistory::newestGood() const
{
    const QList<State> kept = states();
    for (const State& state : kept) {
        if (!contentOf(state).isEmpty())
            return state;
    }
    return State();
}

LinkHistory::State LinkHistory::find(const QByteArray& content) const
{
    const QString identity = identityOf(content);
    const QList<State> kept = states();
    for (const State& state : kept) {
        if (state.identity == identity)
            return state;
    }
    return State();
}
