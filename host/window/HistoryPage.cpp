// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "HistoryPage.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHeaderView>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "LinkChanges.h"
#include "LinkHistory.h"
#include "LinkItems.h"
#include "ShownText.h"
#include "WrappedText.h"

static const int contentRole = Qt::UserRole;
static const int namesShown = 5; // of one kind of change

namespace
{
/** What changed, as a text. */
class Summary
{
    Q_DECLARE_TR_FUNCTIONS(HistoryPage)

public:
    static QString of(const LinkChanges& changes)
    {
        QStringList parts;
        if (!changes.added.isEmpty())
            parts.append(tr("Added: %1").arg(list(changes.added)));
        if (!changes.removed.isEmpty())
            parts.append(tr("Removed: %1").arg(list(changes.removed)));
        if (!changes.edited.isEmpty())
            parts.append(tr("Edited: %1").arg(list(changes.edited)));
        if (!changes.moved.isEmpty())
            parts.append(tr("Moved: %1").arg(list(changes.moved)));
        return parts.join(QStringLiteral("; "));
    }

private:
    static QString list(const QStringList& names)
    {
        QStringList shown;
        const QStringList first = names.mid(0, namesShown);
        for (const QString& name : first)
            shown.append(ShownText::isolatedName(ShownText::shortLine(name)));
        if (names.size() > namesShown)
            shown.append(tr("%n more", nullptr, int(names.size()) - namesShown));
        return shown.join(QStringLiteral(", "));
    }
};
} // namespace

HistoryPage::HistoryPage(const LinkHistory& history)
    : m_history(history)
    , m_list(new QTreeWidget)
    , m_hint(new WrappedText)
    , m_goBack(new QPushButton)
{
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->header()->setSectionsMovable(false);
    m_goBack->setAutoDefault(false);
    QVBoxLayout* const column = new QVBoxLayout(this);
    column->addWidget(m_hint);
    column->addWidget(m_list, 1);
    QHBoxLayout* const row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(m_goBack);
    column->addLayout(row);
    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &HistoryPage::chosen);
    connect(m_goBack, &QPushButton::clicked, this, &HistoryPage::goBack);
    setTexts();
}

QString HistoryPage::caption() const
{
    return tr("History");
}

void HistoryPage::refresh()
{
    m_list->clear();
    const QList<LinkHistory::State> states = m_history.states();
    QByteArray later;
    for (const LinkHistory::State& state : states) {
        const QByteArray content = LinkHistory::contentOf(state);
        if (content.isEmpty())
            continue;
        // What made the one before it in the list differ from this one.
        QTreeWidgetItem* const above = m_list->topLevelItem(m_list->topLevelItemCount() - 1);
        if (above) {
            above->setText(2, Summary::of(LinkChanges::between(content, later)));
            above->setToolTip(2, above->text(2));
        }
        QTreeWidgetItem* const item = new QTreeWidgetItem(m_list);
        item->setText(0, QLocale().toString(state.time.toLocalTime(), QLocale::ShortFormat));
        item->setToolTip(0, QLocale().toString(state.time.toLocalTime(), QLocale::LongFormat));
        item->setText(1, QLocale().toString(int(LinkItems::of(content).size())));
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        item->setData(0, contentRole, content);
        later = content;
    }
    if (QTreeWidgetItem* const now = m_list->topLevelItem(0))
        now->setText(0, tr("%1 (now)").arg(now->text(0)));
    m_list->resizeColumnToContents(0);
    m_list->resizeColumnToContents(1);
    chosen();
}

void HistoryPage::showEvent(QShowEvent* event)
{
    refresh();
    QWidget::showEvent(event);
}

void HistoryPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
        refresh();
    }
    QWidget::changeEvent(event);
}

void HistoryPage::setTexts()
{
    m_list->setHeaderLabels({tr("Time"), tr("Links"), tr("What Changed")});
    m_list->setAccessibleName(caption());
    m_hint->setText(
        tr("The states that your quick links were in, newest first; the last %1 are kept.").arg(LinkHistory::longest));
    m_goBack->setText(tr("&Go Back to This"));
}

void HistoryPage::chosen()
{
    const QList<QTreeWidgetItem*> items = m_list->selectedItems();
    m_goBack->setEnabled(!items.isEmpty() && items.first() != m_list->topLevelItem(0));
}

void HistoryPage::goBack()
{
    const QList<QTreeWidgetItem*> items = m_list->selectedItems();
    if (!items.isEmpty())
        Q_EMIT goBackRequested(items.first()->data(0, contentRole).toByteArray());
}
