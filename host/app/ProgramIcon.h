// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>

/** The program's own icon, from 16 to 128 pixels. */
QIcon programIcon();
