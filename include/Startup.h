// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

class IPluginContainer;

/** The way from a plug-in to the host that loaded it. Part of libcore. */
class Startup
{
public:
    /** The host's container, which stays the host's; null while no container is installed. */
    static IPluginContainer* GetPluginContainer();
};
