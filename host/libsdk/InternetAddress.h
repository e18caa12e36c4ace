// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QUrl>

namespace InternetAddress
{

/**
 * The address as it is to be opened: blanks round it removed, "ftp://" put before "ftp.x" and "http://" before
 * anything else without a scheme. "host:8080" counts as host and port. Empty when it is not an address with a
 * host that the scheme http, https or ftp leads to, or when the host read twice is another one (a label of the
 * form of RFC 3490 that hides behind a full stop of another script).
 */
QUrl completed(const QString& address);

} // namespace InternetAddress
