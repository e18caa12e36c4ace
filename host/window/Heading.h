// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

class QLabel;

/** A new label without text in bold, its font larger than usual by points. The caller's. */
QLabel* newHeading(int points);
