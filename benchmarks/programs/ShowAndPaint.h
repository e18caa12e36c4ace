// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

/** Shows the window and lets events run until viewport, a widget inside it, has been painted for the first time. */
void showAndPaint(QWidget* window, QWidget* viewport);
