// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Finding.h"

class LinkSchema;

/**
 * Reads a file of links as strictly as the plug-in cannot, which takes what it knows and is silent about the rest. The
 * structure that it wants is that of docs/config.rng.
 */
namespace LinkFileCheck
{

/**
 * Everything that is wrong with a file, in its order. One that cannot be read is a finding as well. What only the
 * schema finds is told where there is one.
 */
Findings of(const QString& file, const LinkSchema* schema = nullptr);

} // namespace LinkFileCheck
