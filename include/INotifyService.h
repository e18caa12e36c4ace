// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

/** The host's service that hands a notification to one plug-in. */
class INotifyService
{
public:
    virtual ~INotifyService() {}

    /**
     * Delivers a notification to the plug-in with the given name. The receiver's answer (see INotify), or -1
     * when there is no such plug-in.
     */
    virtual int Notify(const QString& pluginName, unsigned int code, unsigned int param1, unsigned int param2) = 0;
};

Q_DECLARE_INTERFACE(INotifyService, "com.norvik.vellumconnect.plugin.INotifyService")
