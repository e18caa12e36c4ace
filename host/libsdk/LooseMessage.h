// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include "PlainMessage.h"

/**
 * A hidden plain message box without buttons that nobody waits for: it is not modal, is deleted when it is closed,
 * closes by itself at the end of the program and does not keep it alive. It belongs to the modal window, or else to the
 * active one, above which it stays and with which it goes; so keep it in a QPointer.
 */
QMessageBox* newLooseMessage(QMessageBox::Icon icon, const QString& title, const QString& text);

/** Shows a loose message anew above a modal window that was opened after it, and would keep the user's input from it.
 */
void liftAboveModal(QMessageBox* message);
