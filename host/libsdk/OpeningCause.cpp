// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "OpeningCause.h"

#include <QCoreApplication>

static const OpeningCause*& innermostCause()
{
    static const OpeningCause* cause = nullptr;
    return cause;
}

OpeningCause::OpeningCause(const QString& words)
    : m_words(words)
    , m_former(innermostCause())
{
    innermostCause() = this;
}

OpeningCause::~OpeningCause()
{
    innermostCause() = m_former;
}

QString OpeningCause::current()
{
    return innermostCause() ? innermostCause()->m_words
                            : QCoreApplication::translate("OpeningCause", "A plug-in asked for it");
}
