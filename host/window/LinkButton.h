// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPushButton>

/** The button of a link. From right to left, too, its name stands beside its icon and both in the middle. */
class LinkButton : public QPushButton
{
    Q_OBJECT

public:
    /** Makes a button without text; parent owns it. */
    explicit LinkButton(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};
