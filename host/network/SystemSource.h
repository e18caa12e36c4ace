// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "ConnectionChoice.h"
#include "ConnectionSource.h"

/** The service that tells of the connections that count by choice; null for Manual. */
std::unique_ptr<ConnectionSource> newSystemSource(const ConnectionChoice& choice);
