// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFrame>
#include <QStringList>

#include "ConnectionTexts.h"

class ConnectionMonitor;
class QGridLayout;
class QLabel;
class QPushButton;

/** The state of the connection with name, device, operator and since when; a button where only the user can tell. */
class ConnectionPanel : public QFrame
{
    Q_OBJECT

public:
    /** Shows what monitor knows, which must outlive the panel; kind is what it was asked to look for. */
    ConnectionPanel(ConnectionMonitor& monitor, ConnectionKind kind);

    /** Takes the place of that kind. */
    void setKind(ConnectionKind kind);

    /** What its button may say, in the language shown. */
    static QStringList captions();

protected:
    /** Follows a change of the language. */
    void changeEvent(QEvent* event) override;

private:
    void refresh();
    void setRow(QLabel* value, const QString& caption, const QString& text);

    ConnectionMonitor& m_monitor;
    ConnectionTexts m_texts;
    QLabel* m_heading = nullptr;
    QLabel* m_hint = nullptr;
    QPushButton* m_button = nullptr;
    QGridLayout* m_rows = nullptr;
    QLabel* m_name = nullptr;
    QLabel* m_device = nullptr;
    QLabel* m_operator = nullptr;
    QLabel* m_since = nullptr;
};
