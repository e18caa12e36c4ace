// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include "ProgramPage.h"

class LinkHistory;
class QLabel;
class QPushButton;
class QTreeWidget;

/** The states that the links were in, newest first, and the way back to one. */
class HistoryPage : public ProgramPage
{
    Q_OBJECT

public:
    /** Lists the states of history, which must outlive the page, as they are when it is shown or told to refresh(). */
    explicit HistoryPage(const LinkHistory& history);

    QString caption() const override;

    /** Lists the states anew. */
    void refresh();

Q_SIGNALS:
    /** The user wants the links to be content again. */
    void goBackRequested(const QByteArray& content);

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void setTexts();
    void chosen();
    void goBack();

    const LinkHistory& m_history;
    QTreeWidget* m_list = nullptr;
    QLabel* m_hint = nullptr;
    QPushButton* m_goBack = nullptr;
};
