// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/**
 * Why links are opened, while the object lives. Causes may begin one within the other; each is the current one again
 * when those after it are gone.
 */
class OpeningCause
{
public:
    /** A cause in words for the user, such as "A connection came up". */
    explicit OpeningCause(const QString& words);
    ~OpeningCause();

    /** The words of the current cause; where there is none, a plug-in opens something by itself. */
    static QString current();

private:
    Q_DISABLE_COPY(OpeningCause)

    const QString m_words;
    const OpeningCause* const m_former;
};
