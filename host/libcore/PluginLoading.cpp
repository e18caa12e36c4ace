// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// From a folder to plug-ins that run: what is taken, what is refused and how a library goes again.

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QLibrary>
#include <QPluginLoader>

#include "IBasePlugin.h"
#include "PluginContainer.h"

/** Tells the gate of a call into a plug-in, as long as this lives. */
class PluginContainer::CallInto
{
public:
    CallInto(PluginGate* gate, const Entry& plugin, PluginGate::Call call)
        : m_gate(gate)
    {
        if (m_gate)
            m_gate->begin(plugin.loader->fileName(), call);
    }

    ~CallInto()
    {
        if (m_gate)
            m_gate->end();
    }

private:
    CallInto(const CallInto&);
    CallInto& operator=(const CallInto&);

    PluginGate* m_gate;
};

/** A text with storage of its own: a plug-in's may lie in its library, which goes before our records do. */
static QString ownCopy(const QString& text)
{
    return QString(text.constData(), text.size());
}

void PluginContainer::loadFolder(const QString& folder)
{
    const QFileInfo root(folder);
    if (!root.isDir() || !root.isReadable() || !root.isExecutable()) {
        refuse(folder, QLatin1String("there is no such folder, or it cannot be read"));
        return;
    }
    const QFileInfoList subfolders = QDir(folder).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo& subfolder : subfolders) {
        const QFileInfo file(QDir(subfolder.filePath()),
                             QLatin1String("lib") + subfolder.fileName() + QLatin1String(".so"));
        // What cannot be looked into may hold a plug-in; a folder that certainly has none is no fault.
        if (file.exists() || file.isSymLink() || !subfolder.isExecutable())
            load(file);
    }
}

bool PluginContainer::isLoaded(const QString& file) const
{
    for (const Entry& plugin : m_plugins) {
        if (plugin.loader->fileName() == file)
            return true;
    }
    return false;
}

void PluginContainer::load(const QFileInfo& file)
{
    // A pipe or device would make the loader wait for ever.
    if (!file.isReadable()) {
        refuse(file.filePath(), QLatin1String("the file cannot be read"));
        return;
    }
    if (!file.isFile()) {
        refuse(file.filePath(), QLatin1String("it is not a regular file"));
        return;
    }
    // A second loader of the same file would keep it loaded in Qt 4.
    if (isLoaded(file.canonicalFilePath())) {
        refuse(file.filePath(), QLatin1String("this file is loaded already"));
        return;
    }
    const QString objection = m_gate ? m_gate->objectionTo(file.filePath()) : QString();
    if (!objection.isEmpty()) {
        refuse(file.filePath(), objection);
        return;
    }
    Entry plugin = {QString(), 0, QString(), nullptr, new QPluginLoader(file.canonicalFilePath()), nullptr};
    // By default a library stays mapped for good.
    plugin.loader->setLoadHints(QLibrary::LoadHints());
    const QString reason = take(plugin);
    if (plugins().contains(plugin.object)) {
        // Another name of a loaded file: the object is the other's, and unloading would delete it.
        delete plugin.loader;
        refuse(file.filePath(), QLatin1String("this file is loaded already"));
        return;
    }
    if (reason.isEmpty()) {
        m_plugins.append(plugin);
        return;
    }
    unload(plugin);
    refuse(file.filePath(), reason);
}

bool PluginContainer::reload(const QObject* plugin)
{
    for (int i = 0; i < m_plugins.size(); ++i) {
        if (!plugin || m_plugins.at(i).object != plugin)
            continue;
        // As at the end of the program: it is in the list no more when OnDestroy is called.
        const Entry former = m_plugins.takeAt(i);
        const QString file = former.loader->fileName();
        destroy(former);
        unload(former);
        const int others = m_plugins.size();
        load(QFileInfo(file));
        if (m_plugins.size() == others)
            return false;
        m_plugins.move(others, i);
        return true;
    }
    return false;
}

/** Loads and starts the plug-in of the loader. Empty when it runs, else why it does not. */
QString PluginContainer::take(Entry& plugin) const
{
    QString reason;
    try {
        reason = identify(plugin);
    } catch (...) {
        return QLatin1String("an exception came out of its constructor");
    }
    if (!reason.isEmpty() || plugins().contains(plugin.object))
        return reason;
    if (hasClassIdentifier(plugin.clsid))
        return QLatin1String("its class identifier is in use already: ") + plugin.clsid;
    if (m_gate)
        reason = m_gate->objectionTo(plugin.loader->fileName(), plugin.clsid);
    if (!reason.isEmpty() || init(plugin))
        return reason;
    destroy(plugin);
    return QLatin1String("its Init failed");
}

/** Makes the object of a plug-in and asks it who it is. Empty when it has said so. */
QString PluginContainer::identify(Entry& plugin) const
{
    const CallInto call(m_gate, plugin, PluginGate::Loading);
    // Asked once: Qt 4 gives a reason for the first failure only.
    plugin.object = plugin.loader->instance();
    if (!plugin.object)
        return QLatin1String("it is not a plug-in that can be loaded: ") + plugin.loader->errorString().simplified();
    plugin.base = qobject_cast<IBasePlugin*>(plugin.object);
    if (!plugin.base)
        return QLatin1String("the plug-in has no IBasePlugin");
    plugin.clsid = ownCopy(plugin.base->GetCLSID());
    plugin.kind = plugin.base->GetPluginType();
    plugin.name = ownCopy(plugin.base->GetPluginName());
    return QString();
}

bool PluginContainer::init(const Entry& plugin) const
{
    const CallInto call(m_gate, plugin, PluginGate::Init);
    try {
        return plugin.base->Init();
    } catch (...) {
        return false;
    }
}

void PluginContainer::destroy(const Entry& plugin) const
{
    if (!plugin.object)
        return;
    const CallInto call(m_gate, plugin, PluginGate::OnDestroy);
    try {
        plugin.base->OnDestroy();
    } catch (...) {
        // It goes all the same, and so must the others.
        qWarning("An exception came out of OnDestroy of %s", plugin.loader->fileName().toUtf8().constData());
    }
}

void PluginContainer::unload(const Entry& plugin) const
{
    {
        const CallInto call(m_gate, plugin, PluginGate::Unloading);
        // Destructors of the library must not be waiting when their code goes.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        plugin.loader->unload();
    }
    delete plugin.loader;
}

void PluginContainer::refuse(const QString& file, const QString& reason)
{
    const Refusal refusal = {file, reason};
    m_refusals.append(refusal);
    qWarning("Plug-in refused: %s: %s", file.toUtf8().constData(), reason.toUtf8().constData());
}
