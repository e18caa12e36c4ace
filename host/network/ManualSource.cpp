// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ManualSource.h"

bool ManualSource::isKnown() const
{
    return true;
}

bool ManualSource::isAvailable() const
{
    return true;
}

ConnectionState ManualSource::state() const
{
    ConnectionState state;
    if (m_isUp) {
        state.isUp = true;
        state.reach = ConnectionState::Reach::Full;
        state.id = QStringLiteral("manual");
    }
    return state;
}

void ManualSource::askWhetherUp()
{
    Q_EMIT answered(m_isUp);
}

void ManualSource::setUp(bool isUp)
{
    if (m_isUp == isUp)
        return;
    m_isUp = isUp;
    Q_EMIT changed();
}
