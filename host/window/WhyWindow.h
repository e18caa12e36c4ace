// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include "Decision.h"

class Decisions;
class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/** What the program decided about connections and links, newest first. It follows the list while it is open. */
class WhyWindow : public QDialog
{
    Q_OBJECT

public:
    /** Lists decisions, which must outlive the window. A hidden window of parent, which owns it. */
    WhyWindow(const Decisions& decisions, QWidget* parent);

public Q_SLOTS:
    /** Puts the chosen rows into the clipboard as they are listed, all where none is chosen. */
    void copy();

protected:
    void changeEvent(QEvent* event) override;

private:
    static QTreeWidgetItem* newRow(const Decision& decision);
    void setTexts();
    void listAll();
    void listNewest();
    void makeRoom();

    const Decisions& m_decisions;
    QLabel* m_hint = nullptr;
    QTreeWidget* m_list = nullptr;
    QPushButton* m_copy = nullptr;
    QPushButton* m_close = nullptr;
};
