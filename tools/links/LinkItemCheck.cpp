// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkItemCheck.h"

#include <algorithm>

#include "LinkAttributes.h"
#include "LinkJudgement.h"
#include "LinkTexts.h"
#include "PlacedReader.h"

static const int firstFlag = 5; // of LinkAttributes::all

LinkItemCheck::LinkItemCheck(const PlacedReader& reader, FindingsInFile& found)
    : m_reader(reader)
    , m_found(found)
{
}

bool LinkItemCheck::isNumber(const QString& text)
{
    return !text.isEmpty() && text.size() <= 18 && std::all_of(text.cbegin(), text.cend(), [](QChar sign) {
        return sign >= QLatin1Char('0') && sign <= QLatin1Char('9');
    });
}

bool LinkItemCheck::has(const char* attribute) const
{
    return m_reader.reader().attributes().hasAttribute(QLatin1String(attribute));
}

Place LinkItemCheck::placeOf(const char* attribute) const
{
    return m_reader.placeOf(QLatin1String(attribute));
}

void LinkItemCheck::look()
{
    QuickLinkRecord link;
    for (const LinkAttributes::Attribute& attribute : LinkAttributes::all)
        link.*attribute.field = m_reader.reader().attributes().value(QLatin1String(attribute.name)).toString();
    checkFields(link);
    if (!isSet(link.visible)) {
        m_found.add(FindingCode::HiddenLink, has("visible") ? placeOf("visible") : m_reader.place(),
                    QStringLiteral("The link %1 is hidden: it is not loaded, and the next save drops it.")
                        .arg(quoted(link.name)));
        return;
    }
    if (isNumber(link.id))
        m_largestId = std::max(m_largestId, link.id.toLongLong());
    checkTwin(FindingCode::DuplicateId, "id", link.id, m_ids);
    checkTwin(FindingCode::DuplicateName, "name", link.name, m_names);
    const QList<LinkJudgement::Problem> problems = LinkJudgement::of(link);
    for (const LinkJudgement::Problem& problem : problems)
        m_found.add(problem.code, placeOf(problem.attribute), problem.sentence);
}

/** What a field may hold, whatever the link is. One that is missing has been told of. */
void LinkItemCheck::checkFields(const QuickLinkRecord& link)
{
    if (has("id") && !isNumber(link.id))
        m_found.add(FindingCode::BadNumber, placeOf("id"),
                    QStringLiteral("The id %1 is no decimal number.").arg(quoted(link.id)));
    if (has("type") && !LinkJudgement::ofType(link.type).isEmpty())
        m_found.add(FindingCode::UnknownType, placeOf("type"), LinkJudgement::ofType(link.type));
    for (int i = firstFlag; i < LinkAttributes::count; ++i) {
        const LinkAttributes::Attribute& flag = LinkAttributes::all[i];
        const QString text = link.*flag.field;
        if (has(flag.name) && !isSet(text) && text != QLatin1String("0"))
            m_found.add(FindingCode::BadFlag, placeOf(flag.name),
                        QStringLiteral("The flag %1 is %2, which counts as \"0\".")
                            .arg(quoted(QLatin1String(flag.name)), quoted(text)));
    }
}

/** That no link before has the same text. */
void LinkItemCheck::checkTwin(FindingCode code, const char* attribute, const QString& text,
                              QHash<QString, qint64>& lines)
{
    if (text.isEmpty())
        return;
    const auto twin = lines.constFind(text);
    if (twin == lines.constEnd())
        lines.insert(text, m_reader.place().line);
    else
        m_found.add(code, placeOf(attribute),
                    QStringLiteral("The link in line %1 has the %2 %3, too.")
                        .arg(QString::number(*twin), QLatin1String(attribute), quoted(text)));
}
