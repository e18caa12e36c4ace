// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtDebug>

/**
 * What the plug-in writes to the debug channel. Every line goes through the printf-style qDebug, so that its text
 * is the same with every Qt, and no argument is evaluated while the channel is off.
 */
namespace Trace
{
/** Whether anybody reads the debug channel. */
bool isOn();

/** The time of day as "hh:mm:ss:zzz". The text is overwritten by the next call. */
const char* now();
} // namespace Trace

#define TRACE(...)                                                                                                     \
    do {                                                                                                               \
        if (Trace::isOn())                                                                                             \
            qDebug(__VA_ARGS__);                                                                                       \
    } while (false)

#define TRACE_START() TRACE("Start of %s: %s: %d: ", __FILE__, __func__, __LINE__)
#define TRACE_END() TRACE("End of %s: %s: %d: ", __FILE__, __func__, __LINE__)

/** A pointer that the function needs is null; the function returns at once. */
#define TRACE_NULL() TRACE("Arg is NULL: %s: %s: %s %d", Trace::now(), __FILE__, __func__, __LINE__)

/** A request that the state of the page does not allow (no current row, no neighbour); the function returns at once. */
#define TRACE_REFUSED(why) TRACE("%s: %s: refused, %s", __FILE__, __func__, why)
