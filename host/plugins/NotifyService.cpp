// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "NotifyService.h"

#include "PluginContainer.h"

NotifyService::NotifyService(PluginContainer& container)
    : m_container(container)
{
}

int NotifyService::Notify(const QString& pluginName, unsigned int code, unsigned int param1, unsigned int param2)
{
    return m_container.notify(pluginName, code, param1, param2);
}
