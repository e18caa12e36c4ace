// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QScrollArea>

class QAction;
class QPushButton;

/** The quick links as large buttons, two in a row, in a scrollable area. */
class LinkButtons : public QScrollArea
{
    Q_OBJECT

public:
    /** Makes an area without buttons. */
    LinkButtons();

    /** Shows one button for each action, or a hint where there is none. The actions stay their owner's. */
    void setActions(const QList<QAction*>& actions);

protected:
    /** Scrolls to the button that gets the focus by keyboard. */
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QPushButton* newButton(QAction* action);
};
