// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

/** A receiver of the host's notifications. */
class INotify
{
public:
    virtual ~INotify() {}

    /**
     * Delivers one notification with its two parameters, whose meaning belongs to the code. 0 when it was
     * handled or ignored, -1 when something that it needed was missing.
     */
    virtual int Notify(unsigned int code, unsigned int param1, unsigned int param2) = 0;
};

Q_DECLARE_INTERFACE(INotify, "com.norvik.vellumconnect.plugin.INotify")
