// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

#include "IBaseInterface.h"
#include "IDestroyEvent.h"

/**
 * What every plug-in answers about itself. The host obtains it by an interface cast on the object of the
 * Qt plug-in loader, calls Init() once and OnDestroy() once; see docs/architecture.md for the life of a plug-in.
 */
class IBasePlugin : public IBaseInterface, public IDestroyEvent
{
public:
    virtual ~IBasePlugin() {}

    /** Makes the plug-in ready for use. Called once, after loading. 1 on success; on 0 the host drops the plug-in. */
    virtual int Init() = 0;

    /** The plug-in's type code; 0 where it has none. */
    virtual int GetPluginType() = 0;

    /** The class identifier as a GUID text: 8-4-4-4-12 upper-case hexadecimal digits without braces. */
    virtual QString GetCLSID() = 0;

    /** The version, major in the high byte and minor in the low byte (0x101 is 1.1). */
    virtual int GetVersion() = 0;

    /** The name under which notifications are delivered to this plug-in. */
    virtual QString GetPluginName() = 0;

    /** Whether the host may unload the plug-in while it runs. */
    virtual int IsAllowRelease() = 0;

    /**
     * Asks for an interface by number. 1 and *object set when it is there; 0 and *object untouched when it is
     * not. The object stays the plug-in's. Prefer Qt's interface cast.
     */
    virtual int QueryInterface(int number, QObject** object) = 0;
};

Q_DECLARE_INTERFACE(IBasePlugin, "com.norvik.vellumconnect.plugin.IBasePlugin")
