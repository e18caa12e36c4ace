// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <new>

/**
 * Lets one `new (std::nothrow)` of the program fail while it lives: the one after the given number of successful
 * ones. A program that includes this defines the operator for itself, so include it in one source file only.
 */
class FailingAllocation
{
public:
    explicit FailingAllocation(int successesBefore) { left() = successesBefore; }
    ~FailingAllocation() { left() = off; }

    /** Whether the failure has come. */
    bool hasFailed() const { return left() < 0 && left() != off; }

    static bool failsNow()
    {
        if (left() < 0)
            return false;
        return left()-- == 0;
    }

private:
    FailingAllocation(const FailingAllocation&);
    FailingAllocation& operator=(const FailingAllocation&);

    static const int off = -2;

    static int& left()
    {
        static int number = off;
        return number;
    }
};

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
