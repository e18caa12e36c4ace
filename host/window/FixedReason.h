// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** Why a setting is greyed that the operator of the computer has fixed, in the current language. */
QString fixedReason();
