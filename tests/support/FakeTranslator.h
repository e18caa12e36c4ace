// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include <QCoreApplication>
#include <QTranslator>

#include "QtVersions.h"

/** Another language while it lives: every text of the program has a "*" before it, or is what the test says. */
class FakeTranslator : public QTranslator
{
public:
    /** A null text leaves the source text as it is. */
    typedef std::function<QString(const QByteArray& context, const QByteArray& source)> Texts;

    explicit FakeTranslator(const Texts& texts = withStar)
        : m_texts(texts)
    {
        QCoreApplication::installTranslator(this);
    }
    ~FakeTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* TRANSLATED_NUMBER) const override
    {
        return m_texts(context, source);
    }

private:
    static QString withStar(const QByteArray&, const QByteArray& source) { return '*' + QString::fromUtf8(source); }

    const Texts m_texts;
};
