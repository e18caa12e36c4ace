// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkFileCheck.h"

#include <QVector>

#include <algorithm>

#include "LinkAttributes.h"
#include "LinkFile.h"
#include "LinkItemCheck.h"
#include "LinkTexts.h"
#include "PlacedReader.h"

namespace
{
/** An element where it belongs; children of one parent are in their order. */
struct Rule {
    const char* name;
    const char* parent;
    const char* attribute; ///< the only one, where it is no item
    const char* value;     ///< which it must have
    bool isNeeded;
};

const Rule elementRules[] = {
    {"tovadoc", "", "type", "config", true},         {"function", "tovadoc", nullptr, nullptr, true},
    {"Visible", "function", nullptr, nullptr, true}, {"CurrentID", "function", nullptr, nullptr, true},
    {"type", "tovadoc", nullptr, nullptr, false}, // Nobody reads it.
    {"item", "type", nullptr, nullptr, false},       {"menu", "tovadoc", "parent", "quicklink", true},
    {"item", "menu", nullptr, nullptr, false},
};

/** The list of types as every save writes it. */
const char* const fixedTypes[][2] = {
    {" 0", "IDS_LINK_TYPE_APPLICATION"}, {" 1", "IDS_LINK_TYPE_E_MAIL"}, {" 2", "IDS_LINK_TYPE_INTERNET"}};
const int fixedTypeCount = 3;

bool is(const char* one, const char* other)
{
    return qstrcmp(one, other) == 0;
}

const Rule* ruleOf(const QString& name, const QString& parent)
{
    const auto* const found = std::find_if(std::begin(elementRules), std::end(elementRules), [&](const Rule& rule) {
        return name == QLatin1String(rule.name) && parent == QLatin1String(rule.parent);
    });
    return found == std::end(elementRules) ? nullptr : found;
}

bool isKnown(const QString& name)
{
    return std::any_of(std::begin(elementRules), std::end(elementRules),
                       [&](const Rule& rule) { return name == QLatin1String(rule.name); });
}

/** One element that is open. */
struct Element {
    QString name;
    Place place;
    const Rule* rule = nullptr; ///< null inside of what is unknown
    QVector<const Rule*> children;
    QString text;
    Place textPlace;
};

class Check
{
public:
    Check(const QString& file, const QByteArray& content)
        : m_reader(content)
        , m_found(file)
        , m_links(m_reader, m_found)
    {
    }

    Findings run();

private:
    void start();
    const Rule* placeElement(const QString& name, const QString& shown);
    void placeChild(const Rule* rule, const QString& shown);
    void checkAttributes(const Rule* rule, int index);
    void checkNames(const QStringList& known);
    void checkValue(const char* attribute, const char* value);
    void text();
    void end();
    void checkHeader(const Element& element);
    void checkCounter();

    PlacedReader m_reader;
    FindingsInFile m_found;
    LinkItemCheck m_links;
    QVector<Element> m_open;
    bool m_isInMenu = false; ///< as the plug-in has it: from the first menu on, to the end
    QString m_counter;
    Place m_counterPlace;
};

Findings Check::run()
{
    while (m_reader.next()) {
        if (m_reader.reader().isStartElement())
            start();
        else if (m_reader.reader().isCharacters())
            text();
        else if (m_reader.reader().isEndElement())
            end();
    }
    if (m_reader.reader().hasError())
        m_found.add(FindingCode::NotWellFormed, m_reader.end(),
                    QStringLiteral("The file is not well-formed XML (%1); the program reads nothing from here on.")
                        .arg(m_reader.reader().errorString().remove(QLatin1Char('.'))));
    else
        checkCounter();
    return m_found.inOrder();
}

void Check::start()
{
    const QXmlStreamReader& reader = m_reader.reader();
    const QString name = reader.name().toString();
    Element element;
    element.name = name;
    element.place = m_reader.place();
    element.textPlace = m_reader.end();
    // Inside of what is unknown there is nothing to say of the structure.
    if (m_open.isEmpty() || m_open.constLast().rule) {
        const bool isOurs = reader.namespaceUri().isEmpty();
        element.rule = placeElement(isOurs ? name : QString(), reader.qualifiedName().toString());
    }
    const int index = m_open.isEmpty() ? 0 : int(m_open.constLast().children.size()) - 1;
    if (element.rule)
        checkAttributes(element.rule, index);
    const bool isOfTypes = element.rule && is(element.rule->parent, "type");
    if (m_isInMenu && name == QLatin1String("item") && !isOfTypes)
        m_links.look();
    m_isInMenu = m_isInMenu || name == QLatin1String("menu");
    m_open.append(element);
}

/** The rule for an element of this name here; null, with a finding, where there is none. */
const Rule* Check::placeElement(const QString& name, const QString& shown)
{
    const QString parent = m_open.isEmpty() ? QString() : m_open.constLast().name;
    const Rule* const rule = ruleOf(name, parent);
    if (rule)
        placeChild(rule, shown);
    else if (name == QLatin1String("CurrentID") && m_isInMenu)
        m_found.add(FindingCode::CounterAfterLinks, m_reader.place(),
                    QStringLiteral("The counter stands after the links, where it is ignored."));
    else if (isKnown(name) && m_open.isEmpty())
        m_found.add(FindingCode::MisplacedElement, m_reader.place(),
                    QStringLiteral("The root is \"tovadoc\", and not %1.").arg(quoted(shown)));
    else if (isKnown(name))
        m_found.add(FindingCode::MisplacedElement, m_reader.place(),
                    QStringLiteral("%1 does not belong into %2.").arg(quoted(shown), quoted(parent)));
    else
        m_found.add(FindingCode::UnknownElement, m_reader.place(),
                    QStringLiteral("There is no element %1 in a file of links.").arg(quoted(shown)));
    return rule;
}

/** What stands in the one parent with others, and in which order. */
void Check::placeChild(const Rule* rule, const QString& shown)
{
    const bool isHeader = is(rule->parent, "function");
    if (isHeader && m_isInMenu && is(rule->name, "CurrentID"))
        m_found.add(FindingCode::CounterAfterLinks, m_reader.place(),
                    QStringLiteral("The counter stands after the links, where it is ignored."));
    else if (isHeader && m_isInMenu)
        m_found.add(FindingCode::MisplacedElement, m_reader.place(),
                    QStringLiteral("%1 stands after the links, where it is ignored.").arg(quoted(shown)));
    if (m_open.isEmpty())
        return;
    QVector<const Rule*>& before = m_open.last().children;
    if (before.contains(rule) && !is(rule->name, "item"))
        m_found.add(FindingCode::RepeatedElement, m_reader.place(),
                    QStringLiteral("%1 stands here twice.").arg(quoted(shown)));
    // Of a header after the links its parts are told.
    else if (!isHeader && !before.isEmpty() && rule < before.constLast() && !(m_isInMenu && is(rule->name, "function")))
        m_found.add(FindingCode::MisplacedElement, m_reader.place(),
                    QStringLiteral("%1 must stand before %2.")
                        .arg(quoted(shown), quoted(QLatin1String(before.constLast()->name))));
    before.append(rule);
}

/** index counts the element among the children of its parent. */
void Check::checkAttributes(const Rule* rule, int index)
{
    QStringList known;
    if (!is(rule->name, "item")) {
        if (rule->attribute)
            known.append(QLatin1String(rule->attribute));
        checkNames(known);
        if (rule->attribute)
            checkValue(rule->attribute, rule->value);
    } else if (is(rule->parent, "type")) {
        checkNames({QStringLiteral("id"), QStringLiteral("name")});
        if (index >= fixedTypeCount) {
            m_found.add(FindingCode::RepeatedElement, m_reader.place(),
                        QStringLiteral("The list of types has three items."));
            return;
        }
        checkValue("id", fixedTypes[index][0]);
        checkValue("name", fixedTypes[index][1]);
    } else {
        for (const LinkAttributes::Attribute& attribute : LinkAttributes::all)
            known.append(QLatin1String(attribute.name));
        checkNames(known);
    }
}

/** That the attributes are these. */
void Check::checkNames(const QStringList& known)
{
    const QXmlStreamAttributes present = m_reader.reader().attributes();
    for (const QXmlStreamAttribute& attribute : present) {
        const QString name = attribute.qualifiedName().toString();
        if (!known.contains(name))
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

void Check::checkValue(const char* attribute, const char* value)
{
    const QXmlStreamAttributes attributes = m_reader.reader().attributes();
    const QString name = QLatin1String(attribute);
    if (attributes.hasAttribute(name) && attributes.value(name) != QLatin1String(value))
        m_found.add(FindingCode::WrongValue, m_reader.placeOf(name),
                    QStringLiteral("%1 is %2 here, and nothing else.").arg(quoted(name), quoted(QLatin1String(value))));
}

void Check::text()
{
    Element& element = m_open.last();
    if (element.rule && is(element.rule->parent, "function"))
        element.text += m_reader.reader().text();
    else if (element.rule && !m_reader.reader().isWhitespace())
        m_found.add(FindingCode::UnexpectedText, m_reader.place(),
                    QStringLiteral("Text does not belong into %1.").arg(quoted(element.name)));
}

void Check::end()
{
    const Element element = m_open.takeLast();
    if (!element.rule)
        return;
    for (const Rule& rule : elementRules) {
        if (rule.isNeeded && element.name == QLatin1String(rule.parent) && !element.children.contains(&rule))
            m_found.add(
                FindingCode::MissingElement, element.place,
                QStringLiteral("%1 has no %2 in it.").arg(quoted(element.name), quoted(QLatin1String(rule.name))));
    }
    if (element.name == QLatin1String("type") && element.children.size() < fixedTypeCount)
        m_found.add(FindingCode::MissingElement, element.place, QStringLiteral("The list of types has three items."));
    if (is(element.rule->parent, "function"))
        checkHeader(element);
}

void Check::checkHeader(const Element& element)
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

void Check::checkCounter()
{
    if (LinkItemCheck::isNumber(m_counter) && m_counter.toLongLong() <= m_links.largestId())
        m_found.add(FindingCode::CounterTooLow, m_counterPlace,
                    QStringLiteral("The counter is %1 and a link has the id %2: a new link repeats an id.")
                        .arg(m_counter, QString::number(m_links.largestId())));
}

QString reasonOf(LinkFile::Condition condition)
{
    if (condition == LinkFile::Missing)
        return QStringLiteral("There is no such file.");
    if (condition == LinkFile::NotRegular)
        return QStringLiteral("This is a folder or a device, and no file.");
    return QStringLiteral("The file cannot be read: it is not for this user, or the disk fails.");
}
} // namespace

Findings LinkFileCheck::of(const QString& file)
{
    const LinkFile look = LinkFile::look(file);
    switch (look.condition) {
    case LinkFile::Good:
    case LinkFile::Empty:
    case LinkFile::Damaged:
        return Check(file, look.content).run();
    case LinkFile::TooLarge:
        return {{file, Place(), FindingCode::TooLarge,
                 QStringLiteral("The file is larger than any file of links, or stands for more by its entities.")}};
    case LinkFile::Missing:
    case LinkFile::Unreadable:
    case LinkFile::NotRegular:
        break;
    }
    return {{file, Place(), FindingCode::Unreadable, reasonOf(look.condition)}};
}
