// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "WhyWindow.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

#include "Decisions.h"
#include "ShownText.h"

static const int widestColumn = 45; // in letters

WhyWindow::WhyWindow(const Decisions& decisions, QWidget* parent)
    : QDialog(parent)
    , m_decisions(decisions)
    , m_hint(new QLabel)
    , m_list(new QTreeWidget)
    , m_copy(new QPushButton)
    , m_close(new QPushButton)
{
    m_hint->setWordWrap(true);
    // The marks of some scripts are higher than the font says.
    m_hint->setMargin(2);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->header()->setSectionsMovable(false);
    QVBoxLayout* const column = new QVBoxLayout(this);
    column->addWidget(m_hint);
    column->addWidget(m_list, 1);
    QHBoxLayout* const row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(m_copy);
    row->addWidget(m_close);
    column->addLayout(row);
    // Return belongs to no button: whoever presses it in the list means none.
    m_copy->setAutoDefault(false);
    m_close->setAutoDefault(false);
    connect(m_copy, &QPushButton::clicked, this, &WhyWindow::copy);
    connect(m_close, &QPushButton::clicked, this, &WhyWindow::close);
    // The list by itself would copy one cell.
    connect(new QShortcut(QKeySequence::Copy, this), &QShortcut::activated, this, &WhyWindow::copy);
    connect(&m_decisions, &Decisions::added, this, &WhyWindow::listNewest);
    setTexts();
    listAll();
    // Room for a whole sentence, where the screen has it: with large letters it is small.
    resize(QSize(920, 400).boundedTo(QGuiApplication::primaryScreen()->availableSize() * 0.9));
    m_list->setFocus();
}

void WhyWindow::copy()
{
    QList<Decision> copied;
    const bool isAll = m_list->selectedItems().isEmpty();
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        if (isAll || m_list->topLevelItem(i)->isSelected())
            copied.append(m_decisions.newestFirst().at(i));
    }
    QGuiApplication::clipboard()->setText(Decisions::text(copied));
}

void WhyWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
        listAll();
    }
    QDialog::changeEvent(event);
}

/** Its caller's. */
QTreeWidgetItem* WhyWindow::newRow(const Decision& decision)
{
    QStringList cells = Decisions::cells(decision);
    cells[1] = ShownText::isolatedName(cells.at(1));
    QTreeWidgetItem* const row = new QTreeWidgetItem(cells);
    row->setToolTip(0, QLocale().toString(decision.time, QLocale::LongFormat));
    for (int column = 1; column < cells.size(); ++column)
        row->setToolTip(column, ShownText::toolTip(cells.at(column)));
    return row;
}

void WhyWindow::setTexts()
{
    setWindowTitle(tr("What Opened, and Why"));
    m_hint->setText(
        tr("What was decided about connections and links, newest first. The last %1 decisions are remembered until "
           "the program ends, and written to no file.")
            .arg(Decisions::longest));
    m_list->setHeaderLabels({tr("Time"), tr("Link or Connection"), tr("Cause"), tr("What Was Done")});
    m_list->setAccessibleName(windowTitle());
    m_copy->setText(tr("&Copy"));
    m_close->setText(tr("C&lose"));
}

void WhyWindow::listAll()
{
    m_list->clear();
    for (const Decision& decision : m_decisions.newestFirst())
        m_list->addTopLevelItem(newRow(decision));
    makeRoom();
}

/** What is chosen stays chosen. */
void WhyWindow::listNewest()
{
    m_list->insertTopLevelItem(0, newRow(m_decisions.newestFirst().constFirst()));
    while (m_list->topLevelItemCount() > m_decisions.newestFirst().size())
        delete m_list->takeTopLevelItem(m_list->topLevelItemCount() - 1);
    makeRoom();
}

/** For what the columns hold now; what the user made wider stays so, and a long name stays below the mouse only. */
void WhyWindow::makeRoom()
{
    const int widest = widestColumn * fontMetrics().averageCharWidth();
    for (int column = 0; column + 1 < m_list->columnCount(); ++column) {
        const int before = m_list->columnWidth(column);
        m_list->resizeColumnToContents(column);
        m_list->setColumnWidth(column, std::max(before, std::min(m_list->columnWidth(column), widest)));
    }
    m_copy->setEnabled(m_list->topLevelItemCount() > 0);
}
