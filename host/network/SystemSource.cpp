// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "SystemSource.h"

#ifdef VELLUM_HAS_NETWORKMANAGER
#include "NetworkManagerSource.h"

std::unique_ptr<ConnectionSource> newSystemSource(ConnectionKind kind)
{
    if (kind == ConnectionKind::Manual)
        return nullptr;
    return std::make_unique<NetworkManagerSource>(kind);
}
#else
std::unique_ptr<ConnectionSource> newSystemSource(ConnectionKind)
{
    return nullptr;
}
#endif
