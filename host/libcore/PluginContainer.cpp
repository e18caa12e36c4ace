// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Who is there: look-up, notification and the way down. Loading is in PluginLoading.cpp.

#include "PluginContainer.h"
#include "IBasePlugin.h"
#include "INotify.h"
#include "Startup.h"
#include "StartupContainer.h"

PluginContainer::PluginContainer()
    : m_gate(nullptr)
{
}

PluginContainer::~PluginContainer()
{
    shutdown();
    if (Startup::GetPluginContainer() == this)
        installPluginContainer(nullptr);
}

void PluginContainer::setGate(PluginGate* gate)
{
    m_gate = gate;
}

QList<QObject*> PluginContainer::plugins() const
{
    QList<QObject*> objects;
    for (const Entry& plugin : m_plugins) {
        if (plugin.object)
            objects.append(plugin.object);
    }
    return objects;
}

QList<PluginContainer::Refusal> PluginContainer::refusals() const
{
    return m_refusals;
}

void PluginContainer::registerComponent(const QString& clsid, int kind, const QString& name, QObject* component)
{
    const Entry entry = {clsid, kind, name, component, nullptr, nullptr};
    m_components.append(entry);
}

QObject* PluginContainer::GetPlugin(const QString& clsid, int kind)
{
    const QList<Entry> entries = present();
    for (const Entry& entry : entries) {
        if (entry.clsid == clsid && entry.kind == kind)
            return entry.object;
    }
    return nullptr;
}

int PluginContainer::notify(const QString& pluginName, unsigned int code, unsigned int param1, unsigned int param2)
{
    const QList<Entry> entries = present();
    for (const Entry& entry : entries) {
        INotify* const receiver = entry.name == pluginName ? qobject_cast<INotify*>(entry.object) : nullptr;
        if (receiver)
            return receiver->Notify(code, param1, param2);
    }
    return -1;
}

void PluginContainer::shutdown()
{
    // Each leaves the list first: OnDestroy is the last call it gets, even if another one's OnDestroy looks for it.
    QList<Entry> destroyed;
    while (!m_plugins.isEmpty()) {
        const Entry plugin = m_plugins.takeLast();
        destroy(plugin);
        destroyed.append(plugin);
    }
    for (const Entry& plugin : destroyed)
        unload(plugin);
}

/** What can be found now, in the order in which it is: components first. */
QList<PluginContainer::Entry> PluginContainer::present() const
{
    QList<Entry> entries;
    const QList<Entry> known = m_components + m_plugins;
    for (const Entry& entry : known) {
        if (entry.object)
            entries.append(entry);
    }
    return entries;
}

bool PluginContainer::hasClassIdentifier(const QString& clsid) const
{
    const QList<Entry> entries = present();
    for (const Entry& entry : entries) {
        if (entry.clsid == clsid)
            return true;
    }
    return false;
}
