// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "BarePage.h"

#include <utility>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemDelegate>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

namespace
{
const int rowHeight = 14;

QString translated(const QString& key)
{
    return QCoreApplication::translate("QuickLinkUIPlugin", key.toUtf8().constData());
}

/** A row keeps a link of its own, as a number in its first item. */
QVariant data(BareLink* link)
{
    return static_cast<qulonglong>(reinterpret_cast<quintptr>(link));
}

BareLink* link(const QTableWidgetItem* item)
{
    return reinterpret_cast<BareLink*>(static_cast<quintptr>(item->data(Qt::UserRole).toULongLong()));
}

QTableWidgetItem* makeItem(const QString& text, const QVariant& userData)
{
    QTableWidgetItem* const item = new QTableWidgetItem(text);
    item->setData(Qt::UserRole, userData);
    item->setTextAlignment(Qt::AlignLeft);
    item->setFlags(item->flags() & ~Qt::ItemIsEditable);
    return item;
}

QPushButton* makeButton(const char* text, QLayout* layout)
{
    QPushButton* const button = new QPushButton(translated(QLatin1String(text)));
    layout->addWidget(button);
    return button;
}
} // namespace

BarePage::BarePage(const QString& folder)
    : m_folder(folder)
    , m_links(bareLoad(folder))
{
}

QWidget* BarePage::makeWidgets()
{
    QWidget* const page = new QWidget(&window);
    QTabWidget* const tabs = new QTabWidget(page);
    QWidget* const tab = new QWidget(tabs);
    table = new QTableWidget(tab);

    QHBoxLayout* const order = new QHBoxLayout;
    makeButton("IDS_LINK_SETTING_UP", order)->setEnabled(false);
    makeButton("IDS_LINK_SETTING_DOWN", order);
    QVBoxLayout* const tabLayout = new QVBoxLayout(tab);
    tabLayout->addWidget(new QLabel(translated(QStringLiteral("IDS_LINK_SETTING_ORDER"))));
    tabLayout->addWidget(table);
    tabLayout->addLayout(order);
    tabs->addTab(tab, translated(QStringLiteral("IDS_LINK_SETTING_TAB")));
    tabs->setFixedSize(280, 340);

    QVBoxLayout* const column = new QVBoxLayout;
    column->addSpacing(35);
    column->setSpacing(20);
    column->setAlignment(Qt::AlignTop | Qt::AlignRight);
    makeButton("IDS_LINK_SETTING_NEW", column);
    makeButton("IDS_LINK_SETTING_EDIT", column);
    makeButton("IDS_LINK_SETTING_DEL", column);
    QHBoxLayout* const pageLayout = new QHBoxLayout(page);
    pageLayout->addWidget(tabs);
    pageLayout->addLayout(column);

    table->setShowGrid(false);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setItemDelegate(new QItemDelegate(table));
    table->setWordWrap(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setMinimumSectionSize(rowHeight);
    table->setColumnCount(2);
    table->setHorizontalHeaderItem(0, new QTableWidgetItem(translated(QStringLiteral("IDS_LINK_SETTING_NAME"))));
    table->setHorizontalHeaderItem(1, new QTableWidgetItem(translated(QStringLiteral("IDS_LINK_SETTING_TYPE"))));
    return page;
}

void BarePage::fillRow(int row)
{
    BareLink* const copy = new BareLink(m_links.links.at(row));
    table->setRowHeight(row, rowHeight);
    table->setItem(row, 0, makeItem(copy->name, data(copy)));
    table->setItem(row, 1, makeItem(translated(copy->type), data(nullptr)));
}

void BarePage::show()
{
    QWidget* const page = makeWidgets();
    page->resize(420, 380);
    // Row heights cost time in proportion to all rows while updates are on.
    table->setUpdatesEnabled(false);
    table->setRowCount(m_links.links.size());
    for (int row = 0; row < m_links.links.size(); ++row)
        fillRow(row);
    table->setUpdatesEnabled(true);
    table->setCurrentCell(0, 0);
    page->setVisible(true);
}

void BarePage::selectMiddle()
{
    table->setCurrentCell(table->rowCount() / 2, 0);
}

void BarePage::rewriteRow(int row)
{
    BareLink* const copy = new BareLink(m_links.links.at(row));
    QTableWidgetItem* const item = table->item(row, 0);
    delete link(item);
    item->setText(copy->name);
    item->setData(Qt::UserRole, data(copy));
    table->item(row, 1)->setText(translated(copy->type));
}

void BarePage::moveUp()
{
    const int above = table->currentRow() - 1;
    std::swap(m_links.links[above], m_links.links[above + 1]);
    rewriteRow(above);
    rewriteRow(above + 1);
    table->setFocus();
    table->setCurrentCell(above, 0);
    bareSave(m_folder, m_links);
}

void BarePage::deleteLink()
{
    const int row = table->currentRow();
    delete link(table->item(row, 0));
    table->removeRow(row);
    m_links.links.remove(row);
    bareSave(m_folder, m_links);
}

void BarePage::appendLink(const BareLink& link)
{
    const int row = table->rowCount();
    m_links.links.append(link);
    m_links.links.last().id = m_links.currentId;
    m_links.currentId = QString::number(m_links.currentId.toLongLong() + 1);
    table->setRowCount(row + 1);
    fillRow(row);
    table->setFocus();
    table->setCurrentCell(row, 0);
    bareSave(m_folder, m_links);
    m_links = bareLoad(m_folder);
}
