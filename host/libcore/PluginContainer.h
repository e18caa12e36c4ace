// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPointer>
#include <QString>

#include "IPluginContainer.h"
#include "PluginWith.h"

class IBasePlugin;
class QFileInfo;
class QPluginLoader;

/**
 * Loads plug-ins, finds them and the host's own components for whoever asks, and takes them down again in order.
 * For the GUI thread only.
 */
class PluginContainer : public IPluginContainer
{
public:
    /** A plug-in file that was not taken, and why, in words for the user. */
    struct Refusal {
        QString file;
        QString reason;
    };

    PluginContainer();

    /** Shuts down, and uninstalls itself from Startup if it is installed there. */
    ~PluginContainer() override;

    /**
     * Loads <folder>/<Name>/lib<Name>.so of every subfolder, in the order of their names. What is refused is unloaded,
     * listed in refusals() and written as one line to the warning channel; it does not stop the others.
     */
    void loadFolder(const QString& folder);

    /** The loaded plug-ins in load order. They stay the container's. */
    QList<QObject*> plugins() const;

    /** The loaded plug-ins that have Interface, such as INotify, in load order. */
    template <class Interface>
    QList<PluginWith<Interface>> all() const;

    /** Everything refused so far, in the order in which it was met. */
    QList<Refusal> refusals() const;

    /**
     * Lets component be found by class identifier and kind, and be notified by name if it has INotify. It stays the
     * caller's and is forgotten when it is deleted. The first of two with the same identity is the one found.
     */
    void registerComponent(const QString& clsid, int kind, const QString& name, QObject* component);

    /**
     * The component, else the loaded plug-in, with this class identifier and kind; null when there is none. The kind of
     * a component is the one it was registered with, that of a plug-in what its GetPluginType() answered when it was
     * loaded.
     */
    QObject* GetPlugin(const QString& clsid, int kind) override;

    /** Notifies the component or plug-in of the given name. Its answer; -1 when nobody of that name listens. */
    int notify(const QString& pluginName, unsigned int code, unsigned int param1, unsigned int param2);

    /** Calls OnDestroy of every plug-in in reverse load order, then unloads them all. Harmless when repeated. */
    void shutdown();

private:
    PluginContainer(const PluginContainer&);
    PluginContainer& operator=(const PluginContainer&);

    struct Entry {
        QString clsid;
        int kind;
        QString name;
        QPointer<QObject> object;
        QPluginLoader* loader; ///< null for a component
        IBasePlugin* base;     ///< null for a component
    };

    bool isLoaded(const QString& file) const;
    void load(const QFileInfo& file);
    QString take(Entry& plugin);
    void refuse(const QString& file, const QString& reason);
    QList<Entry> present() const;
    bool hasClassIdentifier(const QString& clsid) const;
    static void unload(const Entry& plugin);

    QList<Entry> m_plugins; ///< in load order
    QList<Entry> m_components;
    QList<Refusal> m_refusals;
};

template <class Interface>
QList<PluginWith<Interface>> PluginContainer::all() const
{
    QList<PluginWith<Interface>> found;
    for (const Entry& plugin : m_plugins) {
        const PluginWith<Interface> entry = {plugin.object, qobject_cast<Interface*>(plugin.object), plugin.name};
        if (entry.interface)
            found.append(entry);
    }
    return found;
}
