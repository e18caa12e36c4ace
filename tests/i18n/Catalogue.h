// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/** One text of a catalogue. */
struct CatalogueText {
    QString context, source, comment;
    QStringList translations; ///< one, or one a plural form
    bool isPlural;
    bool isFinished;

    /** What tells it from every other text; readable. */
    QString id() const;
};

/** The texts of a .ts file, in order; empty when it cannot be read. */
QList<CatalogueText> readCatalogue(const QString& path);

/** The catalogue of a language in the sources. */
QString cataloguePath(const QString& language);

/** Every language that there is a catalogue for, such as "de" and "zh_CN". */
QStringList catalogueLanguages();

/** Adds a test row for each of them, with the language in the column "language". */
void addLanguageRows();
