// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Finding.h"

#include <algorithm>

void FindingsInFile::add(FindingCode code, const Place& place, const QString& sentence)
{
    m_findings.append({m_file, place, code, sentence});
    if (FindingCodes::of(code).isOfSchema)
        m_elements.insert(m_element);
}

Findings FindingsInFile::inOrder() const
{
    Findings findings = m_findings;
    std::stable_sort(findings.begin(), findings.end(), [](const Finding& one, const Finding& other) {
        return one.place.line != other.place.line ? one.place.line < other.place.line
                                                  : one.place.column < other.place.column;
    });
    return findings;
}

const QList<FindingCodes::Row>& FindingCodes::all()
{
    using Code = FindingCode;
    static const QList<Row> rows{
        {Code::Unreadable, "unreadable", "The file cannot be read.", false},
        {Code::TooLarge, "too-large", "The file is larger than any file of links.", false},
        {Code::NotWellFormed, "not-well-formed", "The file is not well-formed XML.", false},
        {Code::UnknownElement, "unknown-element", "An element is unknown.", true},
        {Code::MisplacedElement, "misplaced-element", "An element stands where it does not belong.", true},
        {Code::RepeatedElement, "repeated-element", "An element stands once too often.", true},
        {Code::MissingElement, "missing-element", "An element is missing.", true},
        {Code::UnexpectedText, "unexpected-text", "Text stands where none belongs.", true},
        {Code::UnknownAttribute, "unknown-attribute", "An attribute is unknown.", true},
        {Code::MissingAttribute, "missing-attribute", "An attribute is missing.", true},
        {Code::WrongValue, "wrong-value", "An attribute has another value than the only one that belongs there.", true},
        {Code::BadNumber, "bad-number", "An id or the counter is no decimal number.", true},
        {Code::BadFlag, "bad-flag", "A flag is neither \"0\" nor \"1\".", true},
        {Code::UnknownType, "unknown-type", "A link's type is unknown: it opens nothing.", true},
        {Code::CounterAfterLinks, "counter-after-links", "The counter stands after the links, where it is ignored.",
         true},
        {Code::CounterTooLow, "counter-too-low", "The counter is not above every id: a new link repeats one.", false},
        {Code::PageHidden, "page-hidden", "The settings page of the links is hidden.", false},
        {Code::HiddenLink, "hidden-link", "A link is hidden: it is not loaded, and the next save drops it.", false},
        {Code::EmptyName, "empty-name", "A link has no name.", false},
        {Code::DuplicateId, "duplicate-id", "Two links have the same id.", false},
        {Code::DuplicateName, "duplicate-name", "Two links have the same name.", false},
        {Code::TooLong, "too-long", "A field is longer than the dialog lets it be.", false},
        {Code::AddressRefused, "address-refused", "A click on the link is refused: the address is invalid.", false},
        {Code::AddressLeadsNowhere, "address-leads-nowhere", "The address leads to no host.", false},
        {Code::AddressNeverOpened, "address-never-opened", "The address is itself a script or a page: it never opens.",
         false},
        {Code::RelativePath, "relative-path", "The path does not begin with \"/\": it is not opened.", false},
        {Code::ProgramMissing, "program-missing", "There is no such program, file or folder on this computer.", false},
        {Code::SchemaBroken, "schema-broken", "The schema does not allow what stands here, for another reason.", true}};
    return rows;
}

const FindingCodes::Row& FindingCodes::of(FindingCode code)
{
    return all().at(static_cast<int>(code));
}
