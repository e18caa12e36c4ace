// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QScrollArea>

/** The place of a settings page: as large as the page needs, and scrollable where the screen is not. */
class PageArea : public QScrollArea
{
    Q_OBJECT

public:
    /** Makes an empty area. */
    PageArea();

    /** The widget that pages are to be made children of. */
    QWidget* pageParent() const;

    enum Room {
        Whole, ///< the page uses whatever room there is
        Wanted ///< the page does not know what to do with more than it wants, and stands in the middle
    };

    /** Keeps page, a child of pageParent(), in this room, and never smaller than it wants to be; null for none. */
    void setPage(QWidget* page, Room room = Whole);

    /** Lets the keyboard go to the first control of the page that does something; not to tabs or to an empty list. */
    void takeFocus();

    /** As large as shows the whole page. */
    QSize sizeHint() const override;

Q_SIGNALS:
    /** The page, one that uses the whole room, wants to be of another size than before. */
    void resized();

protected:
    /** Lets the page follow the size of its parent, and the room what the page wants. */
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void makeRoom();
    void place();

    QPointer<QWidget> m_page;
    Room m_room = Whole;
};
