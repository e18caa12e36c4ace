// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "OpeningCause.h"

#include <QCoreApplication>

static const OpeningCause*& innermost()
{
    static const OpeningCause* cause = nullptr;
    return cause;
}

OpeningCause::OpeningCause(const QString& words)
    : m_words(words)
    , m_former(innermost())
{
    innermost() = this;
}

OpeningCause::~OpeningCause()
{
    innermost() = m_former;
}

QString OpeningCause::current()
{
    return innermost() ? innermost()->m_words : QCoreApplication::translate("OpeningCause", "A plug-in asked for it");
}
