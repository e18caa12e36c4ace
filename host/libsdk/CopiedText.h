// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QClipboard>
#include <QMessageBox>

/**
 * Takes the signs of ShownText::isolatedPath() out of what the user copies from the text or the details of a message:
 * an address that begins with one opens nowhere. Belongs to the message.
 */
class CopiedText : public QObject
{
    Q_OBJECT

public:
    explicit CopiedText(QMessageBox* box);

private Q_SLOTS:
    void onCopied(QClipboard::Mode mode);

private:
    QMessageBox* const m_box;
};
