// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "SampleFolder.h"

#include <dlfcn.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QVariant>

#include "IBasePlugin.h"
#include "StartupContainer.h"

SampleFolder::SampleFolder()
{
    // Open to all: a test looks into it as another user.
    QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755));
}

QString SampleFolder::path() const
{
    return m_folder.path();
}

QString SampleFolder::file(const QString& name) const
{
    return path() + QString("/%1/lib%1.so").arg(name);
}

bool SampleFolder::add(const QString& sample, const QString& name) const
{
    const QString to = file(name.isEmpty() ? sample : name);
    const QString from = QString("%1/%2/lib%2.so").arg(QString(SAMPLES), sample);
    return QDir().mkpath(QFileInfo(to).path()) && QFile::copy(from, to);
}

bool SampleFolder::write(const QString& name, const QByteArray& bytes) const
{
    QFile target(file(name));
    return QDir().mkpath(QFileInfo(target).path()) && target.open(QIODevice::WriteOnly) &&
           target.write(bytes) == bytes.size();
}

RecordingContainer::RecordingContainer()
{
    installPluginContainer(&container);
    container.registerComponent("recorder", 1, "Recorder", &m_recorder);
}

QStringList RecordingContainer::events() const
{
    return m_recorder.property("events").toStringList();
}

QStringList RecordingContainer::loaded() const
{
    QStringList names;
    for (QObject* plugin : container.plugins())
        names << qobject_cast<IBasePlugin*>(plugin)->GetPluginName();
    return names;
}

bool isMapped(const QString& file)
{
    void* const handle =
        dlopen(QFile::encodeName(QFileInfo(file).canonicalFilePath()).constData(), RTLD_LAZY | RTLD_NOLOAD);
    if (handle)
        dlclose(handle);
    return handle;
}
