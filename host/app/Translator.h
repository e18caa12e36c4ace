// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

/** The texts of the program and its plug-ins, from the installed vellumconnect_<language>.qm. */
class Translator
{
public:
    /** Has no texts yet. Must live as long as texts are shown. */
    Translator() = default;

    /** The installed languages, such as "de" or "zh_CN", in the order of these names. */
    static QStringList languages();

    /**
     * Shows texts in language, such as "en" or "pt_BR"; empty stands for the system's. What it lacks is shown in
     * English. Right-to-left languages mirror the windows. May be called again at any time; windows hear of it by
     * QEvent::LanguageChange. False when there is no such language at all, which for a named one is written to the
     * warning channel.
     */
    bool use(const QString& language);

    /** The language that the texts are in, by the name that languages() has for it. */
    QString current() const;

    /** Whether it is the system's, and not one asked for by its name. */
    bool followsSystem() const;

private:
    bool load(const QLocale& locale);

    bool m_followsSystem = true;
    QTranslator m_english; ///< below the others
    QTranslator m_toolkit;
    QTranslator m_language;
};
