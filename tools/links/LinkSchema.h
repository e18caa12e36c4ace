// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>

#include "Finding.h"

/**
 * The schema of a file of links in RELAX NG (ISO/IEC 19757-2), docs/config.rng as it is installed, and what it says
 * against a file: by libxml2, so that it is what editors and xmllint say. Nothing is read but what is given, whatever
 * schema and file name, and nothing is printed.
 */
class LinkSchema
{
public:
    /** What the schema says against one element. */
    struct Objection {
        int element;    ///< its number in the order of start tags, from 0; -1 where the file was not read to its end
        bool isOfOrder; ///< it is about what else stands, or does not, in the parent
        Place place;    ///< where the reading ended
        QString sentence;
    };

    /** The schema in a file, which is read at once. */
    explicit LinkSchema(const QString& file);

    ~LinkSchema();

    LinkSchema(const LinkSchema&) = delete;
    LinkSchema& operator=(const LinkSchema&) = delete;

    /** Why there is no schema to go by, in words; empty where there is one. */
    QString problem() const { return m_problem; }

    /** What it says against well-formed content, once for an element; nothing where there is no schema. */
    QList<Objection> objectionsTo(const QByteArray& content) const;

private:
    struct Rules;

    QString m_problem;
    std::unique_ptr<Rules> m_rules; ///< null where there is a problem
};
