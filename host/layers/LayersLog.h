// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLoggingCategory>

/** The log category "vellum.layers": what is done about the operator's links, and what is wrong with them. */
Q_DECLARE_LOGGING_CATEGORY(layersLog)
