// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Notice.h"

#include <QApplication>

#include "PlainMessage.h"

void showNotice(const QString& title, const QString& text, const QString& subject)
{
    // A single word of any length must fit on a small screen.
    const int longest = 120;
    const bool isLong = subject.size() > longest;
    const QString shown = isLong ? subject.left(longest) + QChar(0x2026) : subject;
    // Over a modal window, a window that is not its child would not get any input; a child also stays above its parent.
    QWidget* const modal = QApplication::activeModalWidget();
    QWidget* const parent = modal ? modal : QApplication::activeWindow();
    QMessageBox* const box =
        newPlainMessage(QMessageBox::Warning, parent, title, text + QLatin1String("\n\n") + shown, Qt::Dialog);
    if (isLong)
        box->setDetailedText(subject);
    box->addButton(QMessageBox::Ok);
    box->setModal(false);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setAttribute(Qt::WA_QuitOnClose, false);
    QObject::connect(qApp, SIGNAL(aboutToQuit()), box, SLOT(close()));
    box->show();
}
