// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class QWidget;

/**
 * Measures every text of the labels, buttons, check boxes, combo boxes, tabs and table headers that show in window,
 * and the types in its table, against the place that the style gives it there; and of each row of the table, what its
 * painting leaves outside of it, and whether its letters are much smaller than others. One line for each text that is
 * cut off: widget, text, and by how many pixels. The width of links' names is the user's affair.
 */
QStringList cutTexts(QWidget* window);
