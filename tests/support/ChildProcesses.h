// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <sys/wait.h>

/** Whether this process has started anything that still runs or whose end nobody has taken notice of. */
inline bool hasChildProcesses()
{
    siginfo_t info;
    return waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT | __WALL) == 0;
}
