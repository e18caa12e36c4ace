// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

/** Which connections count as the data connection. */
enum class ConnectionKind {
    Mobile, ///< mobile broadband: GSM, CDMA and successors, a telephone by Bluetooth
    Any,    ///< whatever has a default route
    Manual, ///< the one that the user tells us of
};
