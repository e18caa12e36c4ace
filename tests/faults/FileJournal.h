// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

/**
 * What was done to files, call by call, for power_cut.py to work out what a disk may hold at each. A line each, its
 * parts set apart by tabs: data as hexadecimal digits, places and lengths in bytes. Only calls that succeeded are
 * noted.
 */
namespace FileJournal
{
/** Writes to the file path from now on, by calls that are not noted themselves. */
void begin(const char* path);

/** Whether there is one. */
bool isOn();

void opened(int descriptor, int flags, const char* path);
void written(int descriptor, long place, const void* data, size_t length);
void truncated(int descriptor, long length);
void synced(int descriptor);

/** A call that names one file or two, such as "rename"; to may be null. */
void named(const char* call, const char* from, const char* to = nullptr);
} // namespace FileJournal
