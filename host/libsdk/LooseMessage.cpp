// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LooseMessage.h"

#include <QApplication>

QMessageBox* newLooseMessage(QMessageBox::Icon icon, const QString& title, const QString& text)
{
    // Over a modal window, a window that is not its child would not get any input; a child also stays above its parent.
    QWidget* const modal = QApplication::activeModalWidget();
    QWidget* const parent = modal ? modal : QApplication::activeWindow();
    QMessageBox* const box = newPlainMessage(icon, parent, title, text, Qt::Dialog);
    box->setModal(false);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setAttribute(Qt::WA_QuitOnClose, false);
    QObject::connect(qApp, SIGNAL(aboutToQuit()), box, SLOT(close()));
    return box;
}

void liftAboveModal(QMessageBox* message)
{
    QWidget* const modal = QApplication::activeModalWidget();
    if (!modal || message->parentWidget() == modal)
        return;
    message->setParent(modal, message->windowFlags());
    message->show();
}
