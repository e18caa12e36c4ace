// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkSchema.h"

#include <QFile>

#include <libxml/parser.h>
#include <libxml/relaxng.h>

namespace
{
/** What libxml2 made, with the function that frees it. */
template <class Object>
using Freed = std::unique_ptr<Object, void (*)(Object*)>;

using Objections = QList<LinkSchema::Objection>;

/** In place of what would fetch whatever a schema or a file names. */
xmlParserInputPtr loadNothing(const char* address, const char* name, xmlParserCtxtPtr context)
{
    Q_UNUSED(address);
    Q_UNUSED(name);
    Q_UNUSED(context);
    return nullptr;
}

QString messageOf(const xmlError& error)
{
    return QString::fromUtf8(error.message).trimmed();
}

/** The element that comes behind another one or in it; null behind the last. */
xmlNode* next(xmlNode* node)
{
    if (node->type == XML_ELEMENT_NODE && node->children)
        return node->children;
    while (node && !node->next)
        node = node->parent;
    return node ? node->next : nullptr;
}

/** Lets every element know its number. */
void number(xmlDoc* document)
{
    quintptr count = 0;
    for (xmlNode* node = xmlDocGetRootElement(document); node; node = next(node)) {
        if (node->type == XML_ELEMENT_NODE)
            node->_private = reinterpret_cast<void*>(count++);
    }
}

// What is told of errors; newer versions of the library have the error constant.

/** Instead of printing. */
template <class Error>
void keepQuiet(void* data, Error* error)
{
    Q_UNUSED(data);
    Q_UNUSED(error);
}

/** Where and why a file was read no further: the first error, as others may follow from it. */
struct EndOfReading {
    Place place;
    QString message;
};

template <class Error>
void noteEnd(void* parser, Error* error)
{
    auto* const end = static_cast<EndOfReading*>(static_cast<xmlParserCtxt*>(parser)->_private);
    if (error->level == XML_ERR_FATAL && end->message.isEmpty())
        *end = {{qMax(1, error->line), qMax(1, error->int2)}, messageOf(*error)};
}

/** Adds what is said against one element; several sentences about it become one. */
template <class Error>
void note(void* to, Error* error)
{
    Objections& objections = *static_cast<Objections*>(to);
    const auto* node = static_cast<const xmlNode*>(error->node);
    while (node && node->type != XML_ELEMENT_NODE)
        node = node->parent;
    const int element = node ? int(reinterpret_cast<quintptr>(node->_private)) : 0;
    const bool isOfOrder = error->code == XML_RELAXNG_ERR_ELEMWRONG;
    if (!objections.isEmpty() && objections.constLast().element == element)
        objections.last().sentence += QStringLiteral("; ") + messageOf(*error);
    else
        objections.append({element, isOfOrder, Place(), QStringLiteral("By the schema: ") + messageOf(*error)});
}
} // namespace

struct LinkSchema::Rules {
    Freed<xmlRelaxNG> schema;
};

LinkSchema::LinkSchema(const QString& file)
{
    xmlSetExternalEntityLoader(loadNothing);
    xmlSetStructuredErrorFunc(nullptr, keepQuiet);
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) {
        m_problem = QStringLiteral("The schema %1 cannot be read: %2.").arg(file, source.errorString());
        return;
    }
    const QByteArray text = source.readAll();
    const Freed<xmlRelaxNGParserCtxt> context(xmlRelaxNGNewMemParserCtxt(text.constData(), int(text.size())),
                                              xmlRelaxNGFreeParserCtxt);
    Freed<xmlRelaxNG> schema(xmlRelaxNGParse(context.get()), xmlRelaxNGFree);
    if (schema)
        m_rules = std::make_unique<Rules>(Rules{std::move(schema)});
    else
        m_problem = QStringLiteral("The file %1 is no schema.").arg(file);
}

LinkSchema::~LinkSchema() = default;

QList<LinkSchema::Objection> LinkSchema::objectionsTo(const QByteArray& content) const
{
    Objections objections;
    if (!m_rules)
        return objections;
    const Freed<xmlParserCtxt> parser(xmlNewParserCtxt(), xmlFreeParserCtxt);
    EndOfReading end;
    parser->_private = &end;
    parser->sax->serror = noteEnd;
    // Entities of the file itself stand for their text, as for the plug-in. The limits of size and depth stay.
    const Freed<xmlDoc> document(xmlCtxtReadMemory(parser.get(), content.constData(), int(content.size()), nullptr,
                                                   nullptr, XML_PARSE_NOENT | XML_PARSE_NONET),
                                 xmlFreeDoc);
    if (!document)
        return {{-1, false, end.place,
                 QStringLiteral("Who goes by the schema reads the file no further: %1").arg(end.message)}};
    number(document.get());
    const Freed<xmlRelaxNGValidCtxt> context(xmlRelaxNGNewValidCtxt(m_rules->schema.get()), xmlRelaxNGFreeValidCtxt);
    xmlRelaxNGSetValidStructuredErrors(context.get(), note, &objections);
    xmlRelaxNGValidateDoc(context.get(), document.get());
    return objections;
}
