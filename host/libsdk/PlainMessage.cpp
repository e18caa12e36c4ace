// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "PlainMessage.h"

#include "CopiedText.h"

QMessageBox* newPlainMessage(QMessageBox::Icon icon, QWidget* parent, const QString& title, const QString& text,
                             Qt::WindowFlags flags)
{
    QMessageBox* const box = new QMessageBox(icon, title, QString(), QMessageBox::NoButton, parent, flags);
    box->setTextFormat(Qt::PlainText);
    new CopiedText(box);
    setMessageText(box, text);
    return box;
}

void setMessageText(QMessageBox* box, const QString& text)
{
    box->setText(text);
    // Its name is the title anyway.
    box->setAccessibleDescription(text);
}
