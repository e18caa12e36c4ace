// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

class QLineEdit;

/**
 * How long the texts of the New/Edit dialog can get, counted in UTF-16 units as QLineEdit::maxLength() does. A
 * character of two units that does not fit stays out whole. edit must not be null; it owns what it gets for this.
 */
namespace DialogLengthLimits
{
const int longestName = 49;    ///< units of a link's name
const int longestTarget = 261; ///< units of a path, its parameters or an address

/** For a link's name. */
void limitName(QLineEdit* edit);

/** For what a link leads to, a path, its parameters or an address. */
void limitTarget(QLineEdit* edit);
} // namespace DialogLengthLimits
