// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "CopiedText.h"

#include <QApplication>
#include <QLabel>
#include <QTextEdit>

#include "ShownText.h"

/** What is selected in a message, of its text and of its details. */
static QStringList selections(const QMessageBox* box)
{
    QStringList texts;
    const QList<QLabel*> labels = box->findChildren<QLabel*>();
    for (const QLabel* label : labels)
        texts.append(label->selectedText());
    const QList<QTextEdit*> edits = box->findChildren<QTextEdit*>();
    for (const QTextEdit* edit : edits)
        texts.append(edit->textCursor().selectedText());
    return texts;
}

CopiedText::CopiedText(QMessageBox* box)
    : QObject(box)
    , m_box(box)
{
    connect(QApplication::clipboard(), SIGNAL(changed(QClipboard::Mode)), this, SLOT(onCopied(QClipboard::Mode)));
}

/** Not the signs of what was copied elsewhere, in this program or another. */
void CopiedText::onCopied(QClipboard::Mode mode)
{
    const QString copied = QApplication::clipboard()->text(mode);
    const QString plain = ShownText::withoutIsolates(copied);
    if (copied == plain)
        return;
    const QStringList selected = selections(m_box);
    for (const QString& text : selected) {
        // A widget tells its line ends by other characters than the clipboard.
        if (text.simplified() != copied.simplified())
            continue;
        QApplication::clipboard()->setText(plain, mode);
        return;
    }
}
