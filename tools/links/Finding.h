// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
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
    ProgramMissing
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

    void add(FindingCode code, const Place& place, const QString& sentence)
    {
        m_findings.append({m_file, place, code, sentence});
    }

    /** By place; at one place in the order of adding. */
    Findings inOrder() const;

private:
    QString m_file;
    Findings m_findings;
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
