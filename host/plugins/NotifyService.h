// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include "INotifyService.h"

class PluginContainer;

/** Lets a plug-in notify another one, or a component of the host, by its name. */
class NotifyService : public QObject, public INotifyService
{
    Q_OBJECT
    Q_INTERFACES(INotifyService)

public:
    /** Delivers through container, which must outlive the service. */
    explicit NotifyService(PluginContainer& container);

    int Notify(const QString& pluginName, unsigned int code, unsigned int param1, unsigned int param2) override;

private:
    PluginContainer& m_container;
};
