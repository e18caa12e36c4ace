// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "DialupService.h"

#include "ConnectionMonitor.h"

DialupService::DialupService(const ConnectionMonitor& monitor)
    : m_monitor(monitor)
{
}

int DialupService::IsConnected()
{
    return m_monitor.state().isUp ? 1 : 0;
}
