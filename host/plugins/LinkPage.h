// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QStringList>
#include <QTableWidget>

/** The quick links' page in the settings, known by the names of its widgets, which the plug-in keeps. */
class LinkPage
{
public:
    /** The page that is shown within settings, which may be null. Empty where there is none. */
    explicit LinkPage(const QWidget* settings);

    /** Whether there is such a page, as long as the plug-in does not build it anew. */
    bool isThere() const { return m_table; }

    /** The table of the links, the plug-in's; null where there is none. */
    QTableWidget* table() const { return m_table; }

    /** The links' names, from row 0 on. */
    QStringList names() const;

    /** The row that the buttons are about; -1 for none. */
    int row() const;

    /** Chooses a row; nothing where there is none of this number. */
    void select(int row) const;

    /** Clicks the button of this name, which may wait for the user. False where there is none that can be clicked. */
    bool press(const QString& button) const;

private:
    QPointer<QWidget> m_settings;
    QPointer<QTableWidget> m_table;
};
