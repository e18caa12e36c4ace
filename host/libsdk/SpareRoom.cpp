// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "SpareRoom.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>

#include <cmath>

#include "TextInk.h"

static const int steps = 20;

/** What is left of a length when so many steps of it are given. */
static int rest(int length, int given)
{
    return length * (steps - given) / steps;
}

static Qt::Orientations gapsOf(const QLayout* layout)
{
    const QBoxLayout* const box = qobject_cast<const QBoxLayout*>(layout);
    if (!box)
        return Qt::Horizontal | Qt::Vertical;
    const bool isRow = box->direction() == QBoxLayout::LeftToRight || box->direction() == QBoxLayout::RightToLeft;
    return isRow ? Qt::Horizontal : Qt::Vertical;
}

/** Some marks stand above the line that their font asks for, as in Hindi. */
static void makeRoomForMarks(QLabel* label)
{
    const TextInk ink = TextInk::of(label->text(), label->font());
    const int above = int(std::ceil(-ink.rect.top() - ink.ascent));
    if (above > 0)
        label->setContentsMargins(0, above, 0, 0);
}

SpareRoom::SpareRoom(QWidget* form)
    : QObject(form)
    , m_form(form)
    , m_acrossGiven(0)
    , m_downGiven(0)
{
    form->installEventFilter(this);
}

bool SpareRoom::eventFilter(QObject* object, QEvent* event)
{
    if (object == m_form && event->type() == QEvent::Show) {
        const QList<QLabel*> labels = m_form->findChildren<QLabel*>();
        for (int i = 0; i < labels.size(); ++i)
            makeRoomForMarks(labels.at(i));
        note();
        askAnew();
    }
    if (object == m_form && (event->type() == QEvent::Show || event->type() == QEvent::LayoutRequest))
        give();
    return QObject::eventFilter(object, event);
}

/** The layouts that came since the last time. */
void SpareRoom::note()
{
    const QList<QLayout*> layouts = m_form->findChildren<QLayout*>();
    for (QLayout* layout : layouts) {
        bool isKnown = false;
        for (int i = 0; i < m_rooms.size(); ++i)
            isKnown = isKnown || m_rooms.at(i).layout == layout;
        if (isKnown)
            continue;
        const Room room = {layout, layout->contentsMargins(), layout->spacing(), gapsOf(layout)};
        m_rooms.append(room);
    }
}

/** Ends when nothing is missing or nothing is left, so that the requests that it makes itself come to an end, too. */
void SpareRoom::give()
{
    for (QSize wanted = missing();; wanted = missing()) {
        const bool isAcross = wanted.width() > 0 && m_acrossGiven < steps;
        const bool isDown = wanted.height() > 0 && m_downGiven < steps;
        if (!isAcross && !isDown)
            return;
        m_acrossGiven += isAcross ? 1 : 0;
        m_downGiven += isDown ? 1 : 0;
        apply();
        askAnew();
    }
}

void SpareRoom::apply() const
{
    for (int i = 0; i < m_rooms.size(); ++i) {
        const Room& room = m_rooms.at(i);
        if (!room.layout)
            continue;
        const QMargins& before = room.margins;
        room.layout->setContentsMargins(rest(before.left(), m_acrossGiven), rest(before.top(), m_downGiven),
                                        rest(before.right(), m_acrossGiven), rest(before.bottom(), m_downGiven));
        const int given = qMax(room.gaps & Qt::Horizontal ? m_acrossGiven : 0, //
                               room.gaps & Qt::Vertical ? m_downGiven : 0);
        // Less than nothing where a grid has two.
        if (room.gap > 0)
            room.layout->setSpacing(rest(room.gap, given));
    }
}

/** From the inside: a layout keeps the answers of before. */
void SpareRoom::askAnew() const
{
    const QList<QWidget*> parts = m_form->findChildren<QWidget*>();
    for (int i = parts.size() - 1; i >= 0; --i)
        parts.at(i)->updateGeometry();
}

/** How much smaller than its form the window is fixed; less than nothing where it is not. */
QSize SpareRoom::missing() const
{
    return m_form->layout() ? m_form->layout()->minimumSize() - m_form->window()->maximumSize() : QSize();
}
