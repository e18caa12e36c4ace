// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include "LinkPage.h"

class QKeyEvent;

/**
 * The keys and clicks that a table is expected to have, for that of the quick links' page, which has none of its own:
 * each presses one of the page's buttons. Tab leaves the table. Belongs to the table.
 */
class LinkPageKeys : public QObject
{
    Q_OBJECT

public:
    /** Adds them to the page within page, which may be null; nothing where that is another plug-in's. */
    static void addTo(QWidget* page);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    explicit LinkPageKeys(QWidget* page);

    bool press(const QKeyEvent& event);
    void showMenu(const QPoint& place);

    QWidget* m_page;
    LinkPage m_links;
};
