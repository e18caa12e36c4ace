// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

class QWidget;

/**
 * Shows window, above all others and with the keyboard, as far as the desktop lets it. token is what the desktop gave
 * to whoever asked for it; empty for none.
 */
void bringToFront(QWidget* window, const QByteArray& token = QByteArray());
