// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkButtons.h"

#include <QAction>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

#include "LinkButton.h"
#include "LinkLetters.h"

namespace
{
const int columns = 2;
const int longestName = 17; // in wide letters; the rest is in the tool tip
const int iconGap = 4;      // pixels that the toolkit leaves between icon and text

QLabel* newHint(QWidget* parent)
{
    QLabel* const hint = new QLabel(parent);
    hint->setAlignment(Qt::AlignCenter);
    hint->setWordWrap(true);
    return hint;
}
} // namespace

LinkButtons::LinkButtons()
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    // The keyboard goes to the buttons.
    setFocusPolicy(Qt::NoFocus);
}

void LinkButtons::setActions(const QList<QAction*>& actions)
{
    QWidget* const content = new QWidget;
    m_hint = newHint(content);
    m_buttons.clear();
    for (QAction* action : actions)
        m_buttons.append(newButton(action, content));
    label();
    arrange(content);
    // Later: one of the former buttons may be what asked for the change.
    if (QWidget* const former = takeWidget())
        former->deleteLater();
    setWidget(content);
}

void LinkButtons::setOtherCaptions(const QStringList& captions)
{
    m_otherCaptions = captions;
    label();
}

void LinkButtons::setFilter(const QString& text)
{
    m_words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (widget())
        arrange(widget());
}

void LinkButtons::openFirst()
{
    for (QPushButton* button : qAsConst(m_buttons)) {
        if (!button->isHidden()) {
            button->click();
            return;
        }
    }
}

void LinkButtons::label()
{
    LinkLetters letters(m_otherCaptions);
    for (QPushButton* button : qAsConst(m_buttons)) {
        const QFontMetrics metrics = button->fontMetrics();
        // With room for an icon, which comes later.
        const int width =
            longestName * metrics.horizontalAdvance(QLatin1Char('m')) - button->iconSize().width() - iconGap;
        button->setText(letters.marked(metrics.elidedText(button->accessibleName(), Qt::ElideRight, width)));
    }
}

/** Gives the buttons that are to show their places, without gaps. */
void LinkButtons::arrange(QWidget* content)
{
    delete content->layout();
    QGridLayout* const grid = new QGridLayout(content);
    grid->setContentsMargins(0, 0, 0, 0);
    for (int column = 0; column < columns; ++column)
        grid->setColumnStretch(column, 1);
    int shown = 0;
    for (QPushButton* button : qAsConst(m_buttons)) {
        const QString name = button->accessibleName();
        const bool isMeant = std::all_of(m_words.cbegin(), m_words.cend(), [&name](const QString& word) {
            return name.contains(word, Qt::CaseInsensitive);
        });
        button->setVisible(isMeant);
        if (isMeant) {
            grid->addWidget(button, shown / columns, shown % columns);
            ++shown;
        }
    }
    m_hint->setText(m_buttons.isEmpty() ? tr("No quick links yet. Add some with Tools > Settings.")
                                        : tr("No quick link has this in its name."));
    m_hint->setVisible(shown == 0);
    if (shown == 0)
        grid->addWidget(m_hint, 0, 0, 1, columns);
    else
        grid->setRowStretch(grid->rowCount(), 1);
}

bool LinkButtons::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        ensureWidgetVisible(static_cast<QWidget*>(object));
    return QScrollArea::eventFilter(object, event);
}

QPushButton* LinkButtons::newButton(QAction* action, QWidget* parent)
{
    const QString name = action->data().toString();
    QPushButton* const button = new LinkButton(parent);
    QFont font = button->font();
    font.setPointSizeF(font.pointSizeF() + 1);
    button->setFont(font);
    button->setMinimumHeight(3 * QFontMetrics(font).height());
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
