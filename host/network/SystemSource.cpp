// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "SystemSource.h"

#include "NetworkManagerSource.h"

std::unique_ptr<ConnectionSource> newSystemSource(const ConnectionChoice& choice)
{
    if (choice.kind == ConnectionKind::Manual)
        return nullptr;
    return std::make_unique<NetworkManagerSource>(choice);
}
