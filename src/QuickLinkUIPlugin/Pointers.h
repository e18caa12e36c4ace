// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <initializer_list>

/** Whether any of the pointers is null. */
inline bool anyNull(std::initializer_list<const void*> pointers)
{
    return std::find(pointers.begin(), pointers.end(), static_cast<const void*>(nullptr)) != pointers.end();
}

/** Deletes what pointer points at, if anything. The pointer is null before the destructor runs, which may come back in.
 */
template <class T>
void release(T*& pointer)
{
    T* const object = pointer;
    pointer = nullptr;
    delete object;
}
