// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>

/** A mast with its waves, green while a connection is up and grey otherwise; drawn, so that no icon theme is needed. */
QIcon connectionIcon(bool isUp);
