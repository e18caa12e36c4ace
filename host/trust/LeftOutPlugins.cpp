// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LeftOutPlugins.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

#include "DurableFile.h"

static const QString pathKey = QStringLiteral("file");
static const QString sizeKey = QStringLiteral("size");
static const QString changedKey = QStringLiteral("changed");
static const QString callKey = QStringLiteral("call");
static const QString hungKey = QStringLiteral("hung");
static const QString answeredKey = QStringLiteral("answered");

static QJsonObject toJson(const LeftOutPlugins::Entry& entry)
{
    return {{pathKey, entry.call.file.path},
            {sizeKey, QString::number(entry.call.file.size)},
            {changedKey, QString::number(entry.call.file.changed)},
            {callKey, int(entry.call.call)},
            {hungKey, entry.call.isHung},
            {answeredKey, entry.isAnswered}};
}

static LeftOutPlugins::Entry fromJson(const QJsonObject& object)
{
    LeftOutPlugins::Entry entry;
    entry.call.file.path = object.value(pathKey).toString();
    entry.call.file.size = object.value(sizeKey).toString().toLongLong();
    entry.call.file.changed = object.value(changedKey).toString().toLongLong();
    entry.call.call = PluginGate::Call(qBound(0, object.value(callKey).toInt(), int(PluginGate::Unloading)));
    entry.call.isHung = object.value(hungKey).toBool();
    entry.isAnswered = object.value(answeredKey).toBool();
    return entry;
}

bool LeftOutPlugins::look(const QString& userFolder, const QList<UnfinishedCall>& unfinished)
{
    m_path = userFolder + QStringLiteral("/left-out.json");
    m_entries.clear();
    read();
    const int read = int(m_entries.size());
    const auto isOther = [](const Entry& entry) {
        return !entry.call.file.isUnchanged();
    };
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), isOther), m_entries.end());
    for (const UnfinishedCall& call : unfinished)
        add(call);
    return read != m_entries.size() || !unfinished.isEmpty();
}

void LeftOutPlugins::open(const QString& userFolder, const QList<UnfinishedCall>& unfinished)
{
    if (look(userFolder, unfinished))
        save();
}

bool LeftOutPlugins::isNew() const
{
    return std::any_of(m_entries.cbegin(), m_entries.cend(), [](const Entry& entry) { return !entry.isAnswered; });
}

const LeftOutPlugins::Entry* LeftOutPlugins::find(const PluginFile& file) const
{
    for (const Entry& entry : m_entries) {
        if (entry.call.file == file)
            return &entry;
    }
    return nullptr;
}

void LeftOutPlugins::answer()
{
    for (Entry& entry : m_entries)
        entry.isAnswered = true;
    save();
}

void LeftOutPlugins::letAllIn()
{
    m_entries.clear();
    save();
}

void LeftOutPlugins::add(const UnfinishedCall& call)
{
    if (call.file.isUnchanged() && !find(call.file))
        m_entries.append({call, false});
}

void LeftOutPlugins::read()
{
    // A pipe or device would be read for ever.
    QFile file(m_path);
    if (!QFileInfo(m_path).isFile() || !file.open(QIODevice::ReadOnly))
        return;
    const QJsonArray entries = QJsonDocument::fromJson(file.readAll()).array();
    for (const QJsonValue& entry : entries)
        m_entries.append(fromJson(entry.toObject()));
}

void LeftOutPlugins::save() const
{
    QJsonArray entries;
    for (const Entry& entry : m_entries)
        entries.append(toJson(entry));
    const bool isDone = m_entries.isEmpty() ? QFile::remove(m_path) || !QFileInfo::exists(m_path)
                                            : DurableFile::write(m_path, QJsonDocument(entries).toJson());
    if (!isDone)
        qWarning("Which plug-ins are left out cannot be kept in %s", qUtf8Printable(m_path));
}
