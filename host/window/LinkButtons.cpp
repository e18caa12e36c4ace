// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkButtons.h"

#include <QAction>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "LinkName.h"

namespace
{
const int columns = 2;
const int longestName = 17; // in wide letters; the rest is in the tool tip
const int iconGap = 4;      // pixels that the toolkit leaves between icon and text

QLabel* newHint(const QString& text)
{
    QLabel* const hint = new QLabel(text);
    hint->setAlignment(Qt::AlignCenter);
    hint->setWordWrap(true);
    return hint;
}
} // namespace

LinkButtons::LinkButtons()
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
}

void LinkButtons::setActions(const QList<QAction*>& actions)
{
    QWidget* const content = new QWidget;
    QGridLayout* const grid = new QGridLayout(content);
    grid->setContentsMargins(0, 0, 0, 0);
    for (int column = 0; column < columns; ++column)
        grid->setColumnStretch(column, 1);
    for (int i = 0; i < actions.size(); ++i)
        grid->addWidget(newButton(actions.at(i)), i / columns, i % columns);
    if (actions.isEmpty())
        grid->addWidget(newHint(tr("No quick links yet. Add some with Tools > Settings.")), 0, 0, 1, columns);
    else
        grid->setRowStretch(grid->rowCount(), 1);
    // Later: one of the former buttons may be what asked for the change.
    if (QWidget* const former = takeWidget())
        former->deleteLater();
    setWidget(content);
}

bool LinkButtons::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        ensureWidgetVisible(static_cast<QWidget*>(object));
    return QScrollArea::eventFilter(object, event);
}

QPushButton* LinkButtons::newButton(QAction* action)
{
    const QString name = action->data().toString();
    QPushButton* const button = new QPushButton;
    QFont font = button->font();
    font.setPointSizeF(font.pointSizeF() + 1);
    button->setFont(font);
    const QFontMetrics metrics(font);
    // With room for an icon, which comes later.
    const int width = longestName * metrics.horizontalAdvance(QLatin1Char('m')) - button->iconSize().width() - iconGap;
    button->setText(LinkName::withAmpersands(metrics.elidedText(name, Qt::ElideRight, width)));
    button->setMinimumHeight(3 * metrics.height());
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    button->setAccessibleName(name);
    // The tool tip is markup, which a screen reader would speak.
    button->setAccessibleDescription(action->statusTip());
    button->setToolTip(action->toolTip());
    button->setStatusTip(action->statusTip());
    // Return presses it as well as the space bar.
    button->setAutoDefault(true);
    button->installEventFilter(this);
    button->setIcon(action->icon());
    connect(action, &QAction::changed, button, [button, action] { button->setIcon(action->icon()); });
    connect(button, &QPushButton::clicked, action, &QAction::trigger);
    return button;
}
