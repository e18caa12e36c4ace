// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPointer>
#include <QString>

#include "IPluginContainer.h"
#include "PluginGate.h"
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

    /** Asks gate about every plug-in from now on, and tells it of calls into them; null for none. It stays the caller's
     * and must outlive the container. */
    void setGate(PluginGate* gate);

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

    /**
     * Takes a loaded plug-in down and loads its file again, in its place: OnDestroy, unload, load, Init. To be called
     * while no call into a plug-in is on the stack. False when plugin is not loaded, or when its file was refused this
     * time, which refusals() says; it is not loaded any more then.
     */
    bool reload(const QObject* plugin);

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

    class CallInto;

    bool isLoaded(const QString& file) const;
    void load(const QFileInfo& file);
    QString take(Entry& plugin) const;
    QString identify(Entry& plugin) const;
    bool init(const Entry& plugin) const;
    void destroy(const Entry& plugin) const;
    void refuse(const QString& file, const QString& reason);
    QList<Entry> present() const;
    bool hasClassIdentifier(const QString& clsid) const;
    void unload(const Entry& plugin) const;

    PluginGate* m_gate;     ///< null for none
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
