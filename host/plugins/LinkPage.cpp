// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkPage.h"

#include <QPushButton>

LinkPage::LinkPage(const QWidget* settings)
    : m_settings(const_cast<QWidget*>(settings))
    , m_table(settings ? settings->findChild<QTableWidget*>(QStringLiteral("m_QLinkListTblView")) : nullptr)
{
}

QStringList LinkPage::names() const
{
    QStringList names;
    for (int row = 0; m_table && row < m_table->rowCount(); ++row) {
        const QTableWidgetItem* const item = m_table->item(row, 0);
        names.append(item ? item->text() : QString());
    }
    return names;
}

int LinkPage::row() const
{
    return m_table ? m_table->currentRow() : -1;
}

void LinkPage::select(int row) const
{
    if (m_table && row >= 0 && row < m_table->rowCount())
        m_table->setCurrentCell(row, 0);
}

bool LinkPage::press(const QString& button) const
{
    QPushButton* const found = m_settings ? m_settings->findChild<QPushButton*>(button) : nullptr;
    if (!found || !found->isEnabled())
        return false;
    found->click();
    return true;
}
