// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Startup.h"
#include "StartupContainer.h"

static IPluginContainer* installedContainer = nullptr;

IPluginContainer* Startup::GetPluginContainer()
{
    return installedContainer;
}

void installPluginContainer(IPluginContainer* container)
{
    installedContainer = container;
}
