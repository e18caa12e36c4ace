// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QTranslator>

/** Lets everything built while it lives speak a language, with the compiled catalogues and the toolkit's own texts. */
class ShownLanguage
{
public:
    explicit ShownLanguage(const QString& language);

    /** Whether there was a compiled catalogue. */
    bool isKnown() const { return m_isKnown; }

private:
    QTranslator m_toolkit; ///< below the other one; has no texts for some languages
    QTranslator m_texts;
    bool m_isKnown;
};
