// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QVector>

#include "ElementRules.h"
#include "Finding.h"
#include "LinkItemCheck.h"
#include "LinkSchema.h"
#include "PlacedReader.h"

/** Reads what a file of links holds, element by element: where each stands, and what it has in it. */
class StructureCheck
{
public:
    /** Of content, which stands in file. */
    StructureCheck(const QString& file, const QByteArray& content);

    StructureCheck(const StructureCheck&) = delete;
    StructureCheck& operator=(const StructureCheck&) = delete;

    /** Reads it. False where it is not well-formed and ends before its end. */
    bool run();

    /**
     * After run(): adds what the schema says against the same content, less what a finding explains already. That is
     * one of the structure about the same element or one in it, or, where the schema misses an element, in its parent.
     */
    void add(const QList<LinkSchema::Objection>& objections);

    /** All that was found, in order. */
    Findings findings() const { return m_found.inOrder(); }

private:
    /** One element that is open. */
    struct Element {
        QString name;
        Place place;
        int number = 0;                           ///< in the order of start tags, from 0
        const ElementRules::Rule* rule = nullptr; ///< null inside of what is unknown
        QVector<const ElementRules::Rule*> children;
        QString text;
        Place textPlace;
    };

    void start();
    const ElementRules::Rule* placeElement(const QString& name, const QString& shown);
    void placeChild(const ElementRules::Rule* rule, const QString& shown);
    void checkAttributes(const ElementRules::Rule* rule, int index);
    void checkNames(const QStringList& known, const QString& optional = QString());
    void checkValue(const char* attribute, const char* value);
    void text();
    void end();
    void checkHeader(const Element& element);
    void checkCounter();
    QVector<bool> aroundFindings() const;

    PlacedReader m_reader;
    FindingsInFile m_found;
    LinkItemCheck m_links;
    QVector<Element> m_open;
    QVector<Place> m_places; ///< of all elements, by their numbers
    QVector<int> m_parents;  ///< their numbers, by those of the elements; -1 of the root
    bool m_isInMenu = false; ///< as the plug-in has it: from the first menu on, to the end
    QString m_counter;
    Place m_counterPlace;
};
