// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "ConnectionSource.h"

/** Which connections count as the data connection. */
enum class ConnectionKind {
    Mobile, ///< mobile broadband
    Any,    ///< whatever has a default route
    Manual, ///< the one that the user tells us of
};

/** The service that tells of such connections; null for Manual and where the program was built without one. */
std::unique_ptr<ConnectionSource> newSystemSource(ConnectionKind kind);
