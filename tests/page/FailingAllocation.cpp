// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "FailingAllocation.h"

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    if (FailingAllocation::failsNow())
        return nullptr;
    try {
        return ::operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
