// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** The test that an Internet address has to pass when its link is picked. Apart, for who has no window. */
namespace AddressCheck
{
/** Whether url has one of the texts in it, in lower case, by which an address is known. A deliberately loose test. */
bool passes(const QString& url);
} // namespace AddressCheck
