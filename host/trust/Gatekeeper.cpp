// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Gatekeeper.h"

#include <QFileInfo>

#include "HostContract.h"

static QString nameOf(PluginGate::Call call)
{
    switch (call) {
    case PluginGate::Loading:
        return QStringLiteral("its constructor");
    case PluginGate::Init:
        return QStringLiteral("Init");
    case PluginGate::OnDestroy:
        return QStringLiteral("OnDestroy");
    case PluginGate::Unloading:
        break;
    }
    return QStringLiteral("its destructor");
}

static QString wordsFor(Gatekeeper::Problem problem)
{
    switch (problem) {
    case Gatekeeper::ForeignOwner:
        return QStringLiteral("another user owns ");
    case Gatekeeper::OthersWrite:
        return QStringLiteral("other users may write to ");
    case Gatekeeper::NotKnown:
        return QStringLiteral("it cannot be found out who may write to ");
    case Gatekeeper::FalseLinks:
        break;
    }
    return QStringLiteral("it has the class identifier of the quick links, which only this may have: ");
}

static Gatekeeper::Problem problemOf(FileTrust::Problem problem)
{
    if (problem == FileTrust::ForeignOwner)
        return Gatekeeper::ForeignOwner;
    return problem == FileTrust::OthersWrite ? Gatekeeper::OthersWrite : Gatekeeper::NotKnown;
}

Gatekeeper::Gatekeeper(std::chrono::milliseconds limit)
    : m_watch(limit, [this] { m_record.noteHung(); })
{
}

void Gatekeeper::open(const QString& userFolder, const QString& pluginFolder)
{
    m_pluginFolder = pluginFolder;
    m_leftOut.open(userFolder, CallRecord::takeLeftBehind(userFolder));
    m_record.open(userFolder);
}

void Gatekeeper::look(const QString& userFolder, const QString& pluginFolder)
{
    m_pluginFolder = pluginFolder;
    m_leftOut.look(userFolder, CallRecord::leftBehind(userFolder));
}

QString Gatekeeper::objectionTo(const QString& file)
{
    if (m_pluginFolder.isEmpty())
        return QString();
    const FileTrust::Finding finding = FileTrust::look(m_pluginFolder, file);
    if (finding.problem != FileTrust::None)
        return refuse(file, problemOf(finding.problem), finding.place);
    const LeftOutPlugins::Entry* const entry = m_leftOut.find(PluginFile::at(file));
    if (!entry)
        return QString();
    return QStringLiteral("it is left out, because it %1 in %2 in an earlier run")
        .arg(entry->call.isHung ? QStringLiteral("hung") : QStringLiteral("did not come back"),
             nameOf(entry->call.call));
}

QString Gatekeeper::objectionTo(const QString& file, const QString& clsid)
{
    if (m_pluginFolder.isEmpty() || clsid != QLatin1String(HostContract::quickLinks.clsid))
        return QString();
    const QString installed =
        QStringLiteral("%1/%2/lib%2.so").arg(m_pluginFolder, QLatin1String(HostContract::quickLinks.name));
    const bool isInstalled = QFileInfo(file).canonicalFilePath() == QFileInfo(installed).canonicalFilePath();
    return isInstalled ? QString() : refuse(file, FalseLinks, installed);
}

void Gatekeeper::begin(const QString& file, Call call)
{
    m_running.append({PluginFile::at(file), call});
    m_watch.begin([this] { note(); });
}

void Gatekeeper::end()
{
    m_running.removeLast();
    m_watch.end([this] { m_record.clear(); });
    // The call in which it was nested goes on.
    if (!m_running.isEmpty())
        m_watch.begin([this] { note(); });
}

void Gatekeeper::note()
{
    m_record.note(m_running.constLast().file, m_running.constLast().call);
}

QString Gatekeeper::refuse(const QString& file, Problem problem, const QString& place)
{
    m_refusals.append({file, problem, place});
    return wordsFor(problem) + place;
}
