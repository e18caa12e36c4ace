// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSet>
#include <QStringList>

/** The letters that open links together with Alt: one out of each name, no letter twice, as far as letters go. */
class LinkLetters
{
public:
    /** captions are of what else the window has; the letters marked in them by an ampersand are taken. */
    explicit LinkLetters(const QStringList& captions);

    /**
     * The caption of a link's button with its letter marked by an ampersand, others doubled. The letter is taken from
     * now on. None is marked where the name has no free one, nor where its script would be torn by a line below one
     * letter or is written by more than a key for each.
     */
    QString marked(const QString& name);

private:
    bool isFree(QChar letter) const;
    int place(const QString& name) const;

    QSet<QChar> m_taken; ///< capitals
};
