// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

/** A page of the settings that is the program's own, and no plug-in's. */
class ProgramPage : public QWidget
{
public:
    /** The name in the list of pages, in the current language. */
    virtual QString caption() const = 0;

    /** The same in every language, for the program itself. */
    QString name() const { return QString::fromLatin1(metaObject()->className()); }
};
