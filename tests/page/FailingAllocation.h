// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <new>

/**
 * Lets one `new (std::nothrow)` of the program fail while it lives: the one after the given number of successful
 * ones. The operator itself is in FailingAllocation.cpp.
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
