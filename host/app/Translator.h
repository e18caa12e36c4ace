// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QTranslator>

/** The texts of the program and its plug-ins, from the installed vellumconnect_<language>.qm. */
class Translator
{
public:
    /** Has no texts yet. Must live as long as texts are shown. */
    Translator() = default;

    /**
     * Shows texts in language, such as "en" or "pt_BR"; empty stands for the system's. What it lacks is shown in
     * English. False when there is no such language at all, which for a named one is written to the warning channel.
     */
    bool install(const QString& language);

private:
    bool loadLanguage(const QLocale& locale);

    QTranslator m_english; ///< below the others
    QTranslator m_toolkit;
    QTranslator m_language;
};
