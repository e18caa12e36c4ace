// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** Why the quick links do not open an Internet address that the user picked. */
namespace AddressProblem
{

/**
 * What is wrong with an address as it stands in its link, in a sentence that is followed by the address. The quick
 * links look for "http://", "https://", "ftp" and "www." in small letters, and read no address with blanks before it.
 * A general sentence where nothing of that is wrong.
 */
QString sentence(const QString& address);

} // namespace AddressProblem
