// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include "BareLinks.h"

class QTableWidget;

/** A page of the same widgets as the plug-in's, and the same changes to it, with the toolkit alone. */
class BarePage
{
public:
    explicit BarePage(const QString& folder);

    /** Builds the widgets, fills a row a link and selects the first row. */
    void show();

    /** Selects the link in the middle. */
    void selectMiddle();

    void moveUp();
    void deleteLink();

    /** Appends the link, saves, and reads the file back. */
    void appendLink(const BareLink& link);

    QWidget window;
    QTableWidget* table = nullptr;

private:
    QWidget* makeWidgets();
    void fillRow(int row);
    void rewriteRow(int row);

    QString m_folder;
    BareLinks m_links;
};
