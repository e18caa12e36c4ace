// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QMargins>
#include <QObject>
#include <QPointer>

class QLayout;
class QSize;
class QWidget;

/**
 * Keeps the controls of a form whole in a window whose size is fixed too small for them, as it is with tall letters or
 * a style with high buttons: what is only room there gives way, the margins and the gaps, each by the same part of it.
 * In each direction as much as is missing; what gave way does not come back. Its labels get the room that marks above
 * the line need. Belongs to the form.
 */
class SpareRoom : public QObject
{
public:
    /** Looks after form, which fills its window, whenever that shows and whenever something in it changes its size. */
    explicit SpareRoom(QWidget* form);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    /** A layout with the room it had at first. */
    struct Room {
        QPointer<QLayout> layout;
        QMargins margins;
        int gap;
        Qt::Orientations gaps; ///< the directions in which there are any
    };

    void note();
    void give();
    void apply() const;
    void askAnew() const;
    QSize missing() const;

    QWidget* const m_form;
    QList<Room> m_rooms;
    int m_acrossGiven; ///< steps of the room from left to right
    int m_downGiven;   ///< and of that from top to bottom
};
