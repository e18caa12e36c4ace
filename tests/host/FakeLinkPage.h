// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

template <class Child>
Child* addNamed(QWidget* parent, const char* name)
{
    Child* const child = new Child(parent);
    child->setObjectName(name);
    parent->layout()->addWidget(child);
    return child;
}

/** A page with the table and the buttons that the quick links' page has, by their names. */
class FakeLinkPage : public QWidget
{
public:
    FakeLinkPage()
    {
        new QVBoxLayout(this);
        table = addNamed<QTableWidget>(this, "m_QLinkListTblView");
        table->setColumnCount(2);
        for (const char* name : {"m_newBtn", "m_editBtn", "m_deleteBtn", "m_upBtn", "m_downBtn"}) {
            connect(addNamed<QPushButton>(this, name), &QPushButton::clicked, this, [this, name] {
                pressed.append(QString("%1 %2").arg(name).arg(table->currentRow()));
                whenPressed();
            });
        }
    }

    void setLinks(const QString& names, int row)
    {
        const QStringList list = names.split(' ');
        table->setRowCount(int(list.size()));
        for (int i = 0; i < list.size(); ++i)
            table->setItem(i, 0, new QTableWidgetItem(list.at(i)));
        table->setCurrentCell(row, 0);
    }

    QTableWidget* table;
    QStringList pressed; ///< button and row of each click
    std::function<void()> whenPressed = [] {
    }; ///< what a click does
};
