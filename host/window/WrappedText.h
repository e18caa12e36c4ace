// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

/** A text that takes as many lines as it needs; what looks like markup stays as it is. */
class WrappedText : public QLabel
{
    Q_OBJECT

public:
    /** Without text. */
    WrappedText();

    int heightForWidth(int width) const override;
};
