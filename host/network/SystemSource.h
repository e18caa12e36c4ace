// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "ConnectionKind.h"
#include "ConnectionSource.h"

/** The service that tells of such connections; null for Manual. */
std::unique_ptr<ConnectionSource> newSystemSource(ConnectionKind kind);
