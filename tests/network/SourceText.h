// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ConnectionState.h"

namespace SourceText
{

/** All of a state, for comparing two. */
inline QString of(const ConnectionState& state)
{
    return QString(
               "up %1, coming %2, reach %3, id \"%4\", name \"%5\", device \"%6\", operator \"%7\", in its place %8")
        .arg(state.isUp)
        .arg(state.isComingUp)
        .arg(int(state.reach))
        .arg(state.id, state.name, state.device, state.operatorName)
        .arg(int(state.inItsPlace));
}

} // namespace SourceText
