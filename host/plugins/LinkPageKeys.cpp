// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkPageKeys.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QPushButton>

namespace
{
struct Key {
    const char* button;
    QKeySequence keys;
};

/** In the order of the menu. */
const QList<Key>& keys()
{
    static const QList<Key> keys{{"m_newBtn", {}},
                                 {"m_editBtn", QKeySequence(Qt::Key_Return)},
                                 {"m_deleteBtn", QKeySequence(Qt::Key_Delete)},
                                 {"m_upBtn", QKeySequence(QStringLiteral("Ctrl+Up"))},
                                 {"m_downBtn", QKeySequence(QStringLiteral("Ctrl+Down"))}};
    return keys;
}
} // namespace

void LinkPageKeys::addTo(QWidget* page)
{
    if (LinkPage(page).isThere())
        new LinkPageKeys(page);
}

LinkPageKeys::LinkPageKeys(QWidget* page)
    : QObject(LinkPage(page).table())
    , m_page(page)
    , m_links(page)
{
    m_links.table()->setTabKeyNavigation(false);
    m_links.table()->installEventFilter(this);
    m_links.table()->viewport()->installEventFilter(this);
}

bool LinkPageKeys::eventFilter(QObject* object, QEvent* event)
{
    // All other events are none of ours; some come when the table is no table any more.
    switch (event->type()) {
    case QEvent::KeyPress:
        return object == m_links.table() && press(*static_cast<QKeyEvent*>(event));
    case QEvent::ContextMenu:
        if (object != m_links.table())
            return false;
        showMenu(static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    case QEvent::MouseButtonDblClick:
        if (object != m_links.table() && m_links.table()->itemAt(static_cast<QMouseEvent*>(event)->pos()))
            m_links.press(QStringLiteral("m_editBtn"));
        return false;
    default:
        return false;
    }
}

/** Whether a button stands for the key. One that cannot be pressed keeps the key from the dialog as well. */
bool LinkPageKeys::press(const QKeyEvent& event)
{
    const int key = event.key() == Qt::Key_Enter ? int(Qt::Key_Return) : event.key();
    const QKeySequence pressed(key | int(event.modifiers() & ~Qt::KeypadModifier));
    // The toolkit knows only the key that is made for it.
    if (pressed == QKeySequence(QStringLiteral("Shift+F10"))) {
        const QTableWidget* const table = m_links.table();
        showMenu(table->viewport()->mapToGlobal(table->visualItemRect(table->currentItem()).center()));
        return true;
    }
    for (const Key& entry : keys()) {
        if (entry.keys == pressed) {
            m_links.press(QLatin1String(entry.button));
            return true;
        }
    }
    return false;
}

void LinkPageKeys::showMenu(const QPoint& place)
{
    QMenu* const menu = new QMenu(m_links.table());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Key& entry : keys()) {
        const QPushButton* const button = m_page->findChild<QPushButton*>(QLatin1String(entry.button));
        if (!button)
            continue;
        QAction* const action =
            menu->addAction(button->text(), this, [this, entry] { m_links.press(QLatin1String(entry.button)); });
        action->setEnabled(button->isEnabled());
        // Shown only: the table has the key already.
        action->setShortcut(entry.keys);
    }
    menu->popup(place);
}
