// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Who is there: look-up, notification and the way down. Loading is in PluginLoading.cpp.

#include "PluginContainer.h"
#include "IBasePlugin.h"
#include "INotify.h"
#include "Startup.h"
#include "StartupContainer.h"

PluginContainer::PluginContainer()
{
}

PluginContainer::~PluginContainer()
{
    shutdown();
    if (Startup::GetPluginContainer() == this)
        installPluginContainer(nullptr);
}

QList<QObject*> PluginContainer::plugins() const
{
    QList<QObject*> objects;
    for (const Plugin& plugin : m_plugins) {
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
    const Component entry = {clsid, kind, name, component};
    m_components.append(entry);
}

QObject* PluginContainer::GetPlugin(const QString& clsid, int kind)
{
    const QList<Component>& components = m_components;
    for (const Component& component : components) {
        if (component.object && component.clsid == clsid && component.kind == kind)
            return component.object;
    }
    const QList<Plugin>& loaded = m_plugins;
    for (const Plugin& plugin : loaded) {
        if (plugin.object && plugin.clsid == clsid)
            return plugin.object;
    }
    return nullptr;
}

int PluginContainer::notify(const QString& pluginName, unsigned int code, unsigned int param1, unsigned int param2)
{
    INotify* receiver = nullptr;
    for (int i = 0; i < m_components.size() && !receiver; ++i) {
        if (m_components.at(i).name == pluginName)
            receiver = qobject_cast<INotify*>(m_components.at(i).object);
    }
    for (int i = 0; i < m_plugins.size() && !receiver; ++i) {
        if (m_plugins.at(i).name == pluginName)
            receiver = qobject_cast<INotify*>(m_plugins.at(i).object);
    }
    return receiver ? receiver->Notify(code, param1, param2) : -1;
}

void PluginContainer::shutdown()
{
    // Each leaves the list first: OnDestroy is the last call it gets, even if another one's OnDestroy looks for it.
    QList<Plugin> destroyed;
    while (!m_plugins.isEmpty()) {
        const Plugin plugin = m_plugins.takeLast();
        if (plugin.object)
            plugin.base->OnDestroy();
        destroyed.append(plugin);
    }
    for (const Plugin& plugin : destroyed)
        unload(plugin);
}

bool PluginContainer::hasClassIdentifier(const QString& clsid) const
{
    for (const Plugin& plugin : m_plugins) {
        if (plugin.clsid == clsid)
            return true;
    }
    for (const Component& component : m_components) {
        if (component.object && component.clsid == clsid)
            return true;
    }
    return false;
}
