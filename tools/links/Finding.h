// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QSet>
#include <QString>

/** What can be wrong with a file of links. The words of FindingCodes never change: scripts and reports go by them. */
enum class FindingCode {
    Unreadable,
    TooLarge,
    NotWellFormed,
    UnknownElement,
    MisplacedElement,
    RepeatedElement,
    MissingElement,
    UnexpectedText,
    UnknownAttribute,
    MissingAttribute,
    WrongValue,
    BadNumber,
    BadFlag,
    UnknownType,
    CounterAfterLinks,
    CounterTooLow,
    PageHidden,
    HiddenLink,
    EmptyName,
    DuplicateId,
    DuplicateName,
    TooLong,
    AddressRefused,
    AddressLeadsNowhere,
    AddressNeverOpened,
    RelativePath,
    ProgramMissing,
    SchemaBroken
};

/** A place in a file. Both count from 1; a column is a unit of UTF-16. */
struct Place {
    qint64 line = 1;
    qint64 column = 1;
};

/** One thing that is wrong, and where. */
struct Finding {
    QString file; ///< as it was named to the program
    Place place;
    FindingCode code = FindingCode::Unreadable;
    QString sentence; ///< for people, in English
};

using Findings = QList<Finding>;

/** The findings in one file, gathered in any order. */
class FindingsInFile
{
public:
    explicit FindingsInFile(const QString& file)
        : m_file(file)
    {
    }

    /** What is added from now on is about the element with this number, counted from 0 in the order of start tags. */
    void setElement(int number) { m_element = number; }

    void add(FindingCode code, const Place& place, const QString& sentence);

    /** The numbers of the elements about whose structure something was added. */
    const QSet<int>& elements() const { return m_elements; }

    /** By place; at one place in the order of adding. */
    Findings inOrder() const;

private:
    QString m_file;
    Findings m_findings;
    QSet<int> m_elements;
    int m_element = 0;
};

namespace FindingCodes
{

struct Row {
    FindingCode code;
    const char* word;    ///< "hidden-link"
    const char* meaning; ///< a plain sentence about all findings of the code
    bool isOfSchema;     ///< whether docs/config.rng says so as well
};

/** All codes, in the order of the enum. */
const QList<Row>& all();

/** What is known of one. */
const Row& of(FindingCode code);

} // namespace FindingCodes
