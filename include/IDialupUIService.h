// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

/** The host's service that knows the state of the data connection. */
class IDialupUIService
{
public:
    virtual ~IDialupUIService() {}

    /** Whether a data connection is up at this moment. */
    virtual int IsConnected() = 0;
};

Q_DECLARE_INTERFACE(IDialupUIService, "com.norvik.vellumconnect.plugin.IDialupUIService")
