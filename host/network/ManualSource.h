// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ConnectionSource.h"

/** A connection that the user tells us of, where nothing else can. Always available, down at first. */
class ManualSource : public ConnectionSource
{
    Q_OBJECT

public:
    bool isKnown() const override;
    bool isAvailable() const override;
    ConnectionState state() const override;
    void askWhetherUp() override;

    /** The user says that the connection is up, or is no longer. */
    void setUp(bool isUp);

private:
    bool m_isUp = false;
};
