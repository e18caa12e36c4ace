// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFrame>
#include <QStringList>

class QLabel;
class QPushButton;

/** A line in a window that says something and offers to put it right. Hidden while there is nothing to say. */
class OfferLine : public QFrame
{
    Q_OBJECT

public:
    OfferLine();

    /** What its buttons say, in the language shown. */
    static QStringList captions();

    /** Says text, which is plain; empty hides the line. */
    void offer(const QString& text);

Q_SIGNALS:
    /** The line says something, and needs room for it. */
    void offered();

    /** The user takes the offer; the line is still shown. */
    void accepted();

    /** The user has seen it and wants nothing. */
    void dismissed();

protected:
    void changeEvent(QEvent* event) override;

private:
    void setTexts();

    QLabel* m_text = nullptr;
    QPushButton* m_putBack = nullptr;
    QPushButton* m_dismiss = nullptr;
};
