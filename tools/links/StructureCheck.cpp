// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "StructureCheck.h"

#include "LinkAttributes.h"
#include "LinkTexts.h"

using ElementRules::Rule;

StructureCheck::StructureCheck(const QString& file, const QByteArray& content)
    : m_reader(content)
    , m_found(file)
    , m_links(m_reader, m_found)
{
}

bool StructureCheck::run()
{
    while (m_reader.next()) {
        if (m_reader.reader().isStartElement())
            start();
        else if (m_reader.reader().isCharacters())
            text();
        else if (m_reader.reader().isEndElement())
            end();
    }
    if (!m_reader.reader().hasError()) {
        checkCounter();
        return true;
    }
    m_found.add(FindingCode::NotWellFormed, m_reader.end(),
                QStringLiteral("The file is not well-formed XML (%1); the program reads nothing from here on.")
                    .arg(m_reader.reader().errorString().remove(QLatin1Char('.'))));
    return false;
}

void StructureCheck::start()
{
    const QXmlStreamReader& reader = m_reader.reader();
    const QString name = reader.name().toString();
    Element element;
    element.name = name;
    element.place = m_reader.place();
    element.textPlace = m_reader.end();
    element.number = int(m_places.size());
    m_places.append(element.place);
    m_parents.append(m_open.isEmpty() ? -1 : m_open.constLast().number);
    m_found.setElement(element.number);
    // Inside of what is unknown there is nothing to say of the structure.
    if (m_open.isEmpty() || m_open.constLast().rule) {
        const bool isOurs = reader.namespaceUri().isEmpty();
        element.rule = placeElement(isOurs ? name : QString(), reader.qualifiedName().toString());
    }
    const int index = m_open.isEmpty() ? 0 : int(m_open.constLast().children.size()) - 1;
    if (element.rule)
        checkAttributes(element.rule, index);
    const bool isOfTypes = element.rule && element.rule->isIn("type");
    if (m_isInMenu && name == QLatin1String("item") && !isOfTypes)
        m_links.look();
    m_isInMenu = m_isInMenu || name == QLatin1String("menu");
    m_open.append(element);
}

/** The rule for an element of this name here; null, with a finding, where there is none. */
const Rule* StructureCheck::placeElement(const QString& name, const QString& shown)
{
    const QString parent = m_open.isEmpty() ? QString() : m_open.constLast().name;
    const Rule* const rule = ElementRules::of(name, parent);
    if (rule)
        placeChild(rule, shown);
    else if (name == QLatin1String("CurrentID") && m_isInMenu)
        m_found.add(FindingCode::CounterAfterLinks, m_reader.place(),
                    QStringLiteral("The counter stands after the links, where it is ignored."));
    else if (ElementRules::isKnown(name) && m_open.isEmpty())
        m_found.add(FindingCode::MisplacedElement, m_reader.place(),
                    QStringLiteral("The root is \"tovadoc\", and not %1.").arg(quoted(shown)));
    else if (ElementRules::isKnown(name))
        m_found.add(FindingCode::MisplacedElement, m_reader.place(),
                    QStringLiteral("%1 does not belong into %2.").arg(quoted(shown), quoted(parent)));
    else
        m_found.add(FindingCode::UnknownElement, m_reader.place(),
                    QStringLiteral("There is no element %1 in a file of links.").arg(quoted(shown)));
    return rule;
}

/** What stands in the one parent with others, and in which order. */
void StructureCheck::placeChild(const Rule* rule, const QString& shown)
{
    const bool isHeader = rule->isIn("function");
    if (isHeader && m_isInMenu && rule->isNamed("CurrentID"))
        m_found.add(FindingCode::CounterAfterLinks, m_reader.place(),
                    QStringLiteral("The counter stands after the links, where it is ignored."));
    else if (isHeader && m_isInMenu)
        m_found.add(FindingCode::MisplacedElement, m_reader.place(),
                    QStringLiteral("%1 stands after the links, where it is ignored.").arg(quoted(shown)));
    if (m_open.isEmpty())
        return;
    QVector<const Rule*>& before = m_open.last().children;
    if (before.contains(rule) && !rule->isNamed("item"))
        m_found.add(FindingCode::RepeatedElement, m_reader.place(),
                    QStringLiteral("%1 stands here twice.").arg(quoted(shown)));
    // Of a header after the links its parts are told.
    else if (!isHeader && !before.isEmpty() && rule < before.constLast() && !(m_isInMenu && rule->isNamed("function")))
        m_found.add(FindingCode::MisplacedElement, m_reader.place(),
                    QStringLiteral("%1 must stand before %2.")
                        .arg(quoted(shown), quoted(QLatin1String(before.constLast()->name))));
    before.append(rule);
}

/** index counts the element among the children of its parent. */
void StructureCheck::checkAttributes(const Rule* rule, int index)
{
    QStringList known;
    if (!rule->isNamed("item")) {
        if (rule->attribute)
            known.append(QLatin1String(rule->attribute));
        checkNames(known);
        if (rule->attribute)
            checkValue(rule->attribute, rule->value);
    } else if (rule->isIn("type")) {
        checkNames({QStringLiteral("id"), QStringLiteral("name")});
        if (index >= ElementRules::typeCount) {
            m_found.add(FindingCode::RepeatedElement, m_reader.place(),
                        QStringLiteral("The list of types has three items."));
            return;
        }
        checkValue("id", ElementRules::types[index][0]);
        checkValue("name", ElementRules::types[index][1]);
    } else {
        for (const LinkAttributes::Attribute& attribute : LinkAttributes::all)
            known.append(QLatin1String(attribute.name));
        // By it an operator's link stays the same under another name.
        checkNames(known, QStringLiteral("key"));
    }
}

/** That the attributes are these; one more may be. */
void StructureCheck::checkNames(const QStringList& known, const QString& optional)
{
    const QXmlStreamAttributes present = m_reader.reader().attributes();
    for (const QXmlStreamAttribute& attribute : present) {
        const QString name = attribute.qualifiedName().toString();
        if (!known.contains(name) && name != optional)
            m_found.add(FindingCode::UnknownAttribute, m_reader.placeOf(name),
                        QStringLiteral("%1 has no attribute %2.")
                            .arg(quoted(m_reader.reader().qualifiedName().toString()), quoted(name)));
    }
    for (const QString& name : known) {
        if (!present.hasAttribute(name))
            m_found.add(FindingCode::MissingAttribute, m_reader.place(),
                        QStringLiteral("The attribute %1 is missing; it counts as empty.").arg(quoted(name)));
    }
}

void StructureCheck::checkValue(const char* attribute, const char* value)
{
    const QXmlStreamAttributes attributes = m_reader.reader().attributes();
    const QString name = QLatin1String(attribute);
    if (attributes.hasAttribute(name) && attributes.value(name) != QLatin1String(value))
        m_found.add(FindingCode::WrongValue, m_reader.placeOf(name),
                    QStringLiteral("%1 is %2 here, and nothing else.").arg(quoted(name), quoted(QLatin1String(value))));
}

void StructureCheck::text()
{
    Element& element = m_open.last();
    m_found.setElement(element.number);
    if (element.rule && element.rule->isIn("function"))
        element.text += m_reader.reader().text();
    else if (element.rule && !m_reader.reader().isWhitespace())
        m_found.add(FindingCode::UnexpectedText, m_reader.place(),
                    QStringLiteral("Text does not belong into %1.").arg(quoted(element.name)));
}

void StructureCheck::end()
{
    const Element element = m_open.takeLast();
    if (!element.rule)
        return;
    m_found.setElement(element.number);
    for (const Rule& rule : ElementRules::all) {
        if (rule.isNeeded && element.name == QLatin1String(rule.parent) && !element.children.contains(&rule))
            m_found.add(
                FindingCode::MissingElement, element.place,
                QStringLiteral("%1 has no %2 in it.").arg(quoted(element.name), quoted(QLatin1String(rule.name))));
    }
    if (element.name == QLatin1String("type") && element.children.size() < ElementRules::typeCount)
        m_found.add(FindingCode::MissingElement, element.place, QStringLiteral("The list of types has three items."));
    if (element.rule->isIn("function"))
        checkHeader(element);
}

void StructureCheck::checkHeader(const Element& element)
{
    if (element.name == QLatin1String("CurrentID")) {
        if (!LinkItemCheck::isNumber(element.text))
            m_found.add(FindingCode::BadNumber, element.textPlace,
                        QStringLiteral("The counter %1 is no decimal number.").arg(quoted(element.text)));
        if (m_isInMenu)
            return;
        m_counter = element.text;
        m_counterPlace = element.textPlace;
    } else if (element.text == QLatin1String("0")) {
        if (!m_isInMenu)
            m_found.add(FindingCode::PageHidden, element.textPlace,
                        QStringLiteral("The settings page of the links is hidden until the next save."));
    } else if (!isSet(element.text)) {
        m_found.add(FindingCode::BadFlag, element.textPlace,
                    QStringLiteral("\"Visible\" is %1, which counts as \"1\".").arg(quoted(element.text)));
    }
}

void StructureCheck::checkCounter()
{
    if (LinkItemCheck::isNumber(m_counter) && m_counter.toLongLong() <= m_links.largestId())
        m_found.add(FindingCode::CounterTooLow, m_counterPlace,
                    QStringLiteral("The counter is %1 and a link has the id %2: a new link repeats an id.")
                        .arg(m_counter, QString::number(m_links.largestId())));
}

/** By the numbers of elements: whether a finding is about the structure of the element or of one in it. */
QVector<bool> StructureCheck::aroundFindings() const
{
    QVector<bool> isAround(m_places.size(), false);
    for (const int number : m_found.elements()) {
        for (int around = number; around >= 0 && !isAround.at(around); around = m_parents.at(around))
            isAround[around] = true;
    }
    return isAround;
}

void StructureCheck::add(const QList<LinkSchema::Objection>& objections)
{
    const QVector<bool> isAround = aroundFindings();
    for (const LinkSchema::Objection& objection : objections) {
        if (objection.element < 0 && m_found.elements().isEmpty())
            m_found.add(FindingCode::SchemaBroken, objection.place, objection.sentence);
        // Both readers count the same elements, unless one of them is wrong.
        if (objection.element < 0 || objection.element >= m_places.size())
            continue;
        const int parent = m_parents.at(objection.element);
        if (!isAround.at(objection.isOfOrder && parent >= 0 ? parent : objection.element))
            m_found.add(FindingCode::SchemaBroken, m_places.at(objection.element), objection.sentence);
    }
}
