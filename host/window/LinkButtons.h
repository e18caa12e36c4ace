// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QScrollArea>
#include <QStringList>

class QAction;
class QLabel;
class QPushButton;

/** The quick links as large buttons, two in a row, in a scrollable area. */
class LinkButtons : public QScrollArea
{
    Q_OBJECT

public:
    /** Makes an area without buttons. */
    LinkButtons();

    /** Has one button for each action, or a hint where there is none. The actions stay their owner's. */
    void setActions(const QList<QAction*>& actions);

    /** What else the window has that is reached by Alt and a letter; see LinkLetters. */
    void setOtherCaptions(const QStringList& captions);

    /** Shows only the buttons whose names have each word of text in them; all for an empty one. */
    void setFilter(const QString& text);

    /** Opens the link of the first button that shows. */
    void openFirst();

protected:
    /** Scrolls to the button that gets the focus by keyboard. */
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QPushButton* newButton(QAction* action, QWidget* parent);
    void label();
    void arrange(QWidget* content);

    QStringList m_words;         ///< of the filter
    QStringList m_otherCaptions; ///< of the window
    QList<QPushButton*> m_buttons;
    QLabel* m_hint = nullptr; ///< stands where no button shows
};
