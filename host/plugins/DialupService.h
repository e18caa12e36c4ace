// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include "IDialupUIService.h"

class ConnectionMonitor;

/** Lets plug-ins ask whether a data connection is up. */
class DialupService : public QObject, public IDialupUIService
{
    Q_OBJECT
    Q_INTERFACES(IDialupUIService)

public:
    /** Answers what monitor knows, which must outlive the service. */
    explicit DialupService(const ConnectionMonitor& monitor);

    int IsConnected() override;

private:
    const ConnectionMonitor& m_monitor;
};
