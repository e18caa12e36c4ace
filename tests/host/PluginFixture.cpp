// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "PluginFixture.h"

#include <dlfcn.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "IBasePlugin.h"
#include "RecordedEvents.h"
#include "StartupContainer.h"

PluginFolder::PluginFolder()
{
    // Open to all: a test looks into it as another user.
    QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755));
}

QString PluginFolder::path() const
{
    return m_folder.path();
}

QString PluginFolder::file(const QString& name) const
{
    return path() + QString("/%1/lib%1.so").arg(name);
}

void PluginFolder::add(const QString& plugin, const QString& name) const
{
    QFile built(QString("%1/%2/lib%2.so").arg(QString(FAKE_PLUGINS), plugin));
    if (!built.open(QIODevice::ReadOnly))
        qFatal("The plug-in %s is missing", qUtf8Printable(plugin));
    write(name.isEmpty() ? plugin : name, built.readAll());
}

void PluginFolder::write(const QString& name, const QByteArray& bytes) const
{
    QFile target(file(name));
    if (!QDir().mkpath(QFileInfo(target).path()) || !target.open(QIODevice::WriteOnly) ||
        target.write(bytes) != bytes.size())
        qFatal("The file %s cannot be made", qUtf8Printable(target.fileName()));
}

PluginFixture::PluginFixture(const QStringList& plugins)
{
    for (const QString& plugin : plugins)
        folder.add(plugin);
    installPluginContainer(&container);
    takeEvents();
}

QStringList PluginFixture::load()
{
    container.loadFolder(folder.path());
    QStringList names;
    for (const PluginWith<IBasePlugin>& plugin : container.all<IBasePlugin>())
        names << plugin.interface->GetPluginName();
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
