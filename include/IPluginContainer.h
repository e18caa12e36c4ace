// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

class QObject;
class QString;

/** The host's collection of loaded plug-ins and of its own components. */
class IPluginContainer
{
public:
    virtual ~IPluginContainer() {}

    /**
     * The object with the given class identifier (see IBasePlugin::GetCLSID()) and kind code, or null when
     * no such plug-in is loaded. The object stays the container's; ask it for a service with qobject_cast.
     */
    virtual QObject* GetPlugin(const QString& clsid, int kind) = 0;
};
