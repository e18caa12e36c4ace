// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMessageBox>
#include <QString>

/**
 * A hidden message box without buttons that shows its text as it stands (a link's name may look like markup) and
 * tells it to a screen reader. Belongs to parent, or to the caller where that is null.
 */
QMessageBox* newPlainMessage(QMessageBox::Icon icon, QWidget* parent, const QString& title, const QString& text,
                             Qt::WindowFlags flags);

/** Gives such a box another text, on the screen and for a screen reader. */
void setMessageText(QMessageBox* box, const QString& text);
