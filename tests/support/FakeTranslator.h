// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QTranslator>

/** Another language: while it lives, every text of the program has a "*" before it. */
class FakeTranslator : public QTranslator
{
public:
    FakeTranslator() { QCoreApplication::installTranslator(this); }
    ~FakeTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* sourceText, const char*, int) const override
    {
        return '*' + QString::fromUtf8(sourceText);
    }
};
