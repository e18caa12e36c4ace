// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

/** The host's dialog frame: a title bar with a close button around one main widget. Part of libsdk. */
class ExtendDialog : public QDialog
{
    Q_OBJECT

public:
    /**
     * Makes a hidden frame over parent (which owns it; may be null) with the given window flags.
     * widgetType 1 is the frame of a small form; other values are reserved and give the same frame.
     * flag true gives the frame a size grip; false leaves its size to whoever fixes it.
     */
    ExtendDialog(QWidget* parent, Qt::WindowFlags flags, int widgetType, bool flag);

    /** Puts widget into the frame, which owns it from then on and keeps it as large as itself. */
    void AddMainWidget(QWidget* widget);

    /** Sets the text of the title bar. */
    void setWindowTitle(const QString& title);
};
