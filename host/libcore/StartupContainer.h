// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

class IPluginContainer;

/**
 * Makes container the one that Startup::GetPluginContainer() answers; null uninstalls. It stays the caller's, who
 * uninstalls it before deleting it (a PluginContainer does so by itself).
 */
void installPluginContainer(IPluginContainer* container);
