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

    /** Keeps page, a child of pageParent(), as large as the area and never smaller than it wants to be; null for none.
     */
    void setPage(QWidget* page);

    /** As large as shows the whole page. */
    QSize sizeHint() const override;

protected:
    /** Lets the page follow the size of its parent. */
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QPointer<QWidget> m_page;
};
