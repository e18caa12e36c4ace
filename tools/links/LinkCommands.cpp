// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkCommands.h"

#include <QCoreApplication>

#include <climits>

#include "FindingsReport.h"
#include "LinkEdits.h"
#include "LinkExchange.h"
#include "LinkFileCheck.h"
#include "LinkSchema.h"
#include "LinkStart.h"
#include "LinkTexts.h"
#include "LinkWords.h"
#include "LinksFile.h"
#include "Places.h"

namespace
{
QString formatOf(const LinkCall& call)
{
    return call.line.value(QStringLiteral("format"));
}

LinkCall::Result check(const LinkCall& call)
{
    const LinkSchema schema(Places::schemaFile());
    Findings findings;
    for (const QString& file : call.words)
        findings += LinkFileCheck::of(file, &schema);
    LinkCall::print(FindingsReport::of(findings, formatOf(call)));
    // Half a check is none to rely on.
    if (!schema.problem().isEmpty())
        return LinkCall::refuse(schema.problem());
    return findings.isEmpty() ? LinkCall::Done : LinkCall::NotDone;
}

LinkCall::Result list(const LinkCall& call)
{
    LinksFile file(call.word(0));
    const QString problem = file.read();
    if (!problem.isEmpty())
        return LinkCall::refuse(problem);
    if (formatOf(call) != QLatin1String("text")) {
        LinkCall::print(LinkExchange::to(file.links, formatOf(call)));
        return LinkCall::Done;
    }
    int number = 0;
    for (const QuickLinkRecord& link : qAsConst(file.links)) {
        QStringList row{QString::number(++number), link.name, LinkWords::ofType(link.type), link.url};
        for (QString& text : row)
            text = plainLine(text);
        LinkCall::print(row.join(QLatin1Char('\t')).toLocal8Bit() + '\n');
    }
    return LinkCall::Done;
}

LinkCall::Result open(const LinkCall& call)
{
    LinksFile file(call.word(1));
    QString problem = file.read();
    const int index = problem.isEmpty() ? LinkWords::find(file.links, call.word(0), problem) : -1;
    if (index >= 0 && !file.openInProgram(index))
        problem = LinkStart::open(file.links.at(index));
    if (!problem.isEmpty())
        return LinkCall::refuse(problem);
    LinkCall::say(QStringLiteral("Opening \"%1\": %2").arg(file.links.at(index).name, file.links.at(index).url));
    return LinkCall::Done;
}

const char* const help = R"(Usage: vellumconnect-links COMMAND [OPTION]... [FILE]
Checks and changes files of quick links. FILE is the user's own where none is named.

  check [--format text|json|sarif] FILE...   say what is wrong with each file
  list [--format text|json] [FILE]           print the links
  export [--format json|html|xbel] [FILE]    print the links for other programs
  import SOURCE [FILE]                       take in links of such a format
  add FIELD... [FILE]                        add a link behind the others
  edit LINK FIELD... [FILE]                  change a link
  remove LINK [FILE]                         remove a link
  move LINK PLACE [FILE]                     move a link to another place
  open LINK [FILE]                           open a link

LINK is a name, or else a number as "list" has it. A FIELD is one of --name TEXT, --url TEXT, --para TEXT,
--type internet|e-mail|application, and --startconnect, --startmobile, --delete and --edit, each with 0 or 1.
It ends with 0 when all is done, 1 when something was found or cannot be done, and 2 for wrong usage.
)";

struct Command {
    const char* name;
    int fewest; ///< words behind the name
    int most;
    QStringList formats; ///< of --format, the default first
    bool hasFields;
    LinkCall::Result (*run)(const LinkCall& call);
};

const QList<Command>& commands()
{
    static const QList<Command> all{
        {"check", 1, INT_MAX, FindingsReport::formats(), false, check},
        {"list", 0, 1, {QStringLiteral("text"), QStringLiteral("json")}, false, list},
        {"export", 0, 1, LinkExchange::formats(), false, list},
        {"import", 1, 2, {}, false, LinkEdits::importLinks},
        {"add", 0, 1, {}, true, LinkEdits::add},
        {"edit", 1, 2, {}, true, LinkEdits::edit},
        {"remove", 1, 2, {}, false, LinkEdits::remove},
        {"move", 2, 3, {}, false, LinkEdits::move},
        {"open", 1, 2, {}, false, open},
    };
    return all;
}

/** What is wrong with the words and options of a command; empty for nothing. */
QString usageProblem(const Command& command, const LinkCall& call)
{
    if (!call.line.errorText().isEmpty())
        return call.line.errorText();
    if (call.words.size() < command.fewest)
        return QStringLiteral("\"%1\" needs more words.").arg(QLatin1String(command.name));
    if (call.words.size() > command.most)
        return QStringLiteral("Unexpected argument \"%1\".").arg(call.words.constLast());
    // As a variable of a shell that is not set: it must not stand for the user's own file.
    if (call.words.contains(QString()))
        return QStringLiteral("A word is empty.");
    if (!command.formats.isEmpty() && !command.formats.contains(formatOf(call)))
        return QStringLiteral("No such format: \"%1\".").arg(formatOf(call));
    if (!command.hasFields)
        return QString();
    for (const char* const flag : {"startconnect", "startmobile", "delete", "edit"}) {
        const QString value = call.line.value(QLatin1String(flag));
        if (call.line.isSet(QLatin1String(flag)) && value != QLatin1String("0") && value != QLatin1String("1"))
            return QStringLiteral("\"--%1\" is 0 or 1, and not \"%2\".").arg(QLatin1String(flag), value);
    }
    return QString();
}

LinkCall::Result run(const Command& command, const QStringList& arguments)
{
    LinkCall call;
    if (!command.formats.isEmpty())
        call.line.addOption(
            {QStringLiteral("format"), QString(), QStringLiteral("FORMAT"), command.formats.constFirst()});
    if (command.hasFields) {
        const QList<LinkAttributes::Attribute> attributes = LinkEdits::fields();
        for (const LinkAttributes::Attribute& attribute : attributes)
            call.line.addOption({QLatin1String(attribute.name), QString(), QStringLiteral("TEXT")});
    }
    call.line.parse(arguments);
    call.words = call.line.positionalArguments().mid(1);
    const QString problem = usageProblem(command, call);
    if (!problem.isEmpty())
        return LinkCall::refuse(problem + QStringLiteral(" Try --help."), LinkCall::WrongUsage);
    return command.run(call);
}
} // namespace

LinkCall::Result LinkCommands::run(const QStringList& arguments)
{
    const QString word = arguments.value(1);
    if (word == QLatin1String("--help")) {
        LinkCall::print(help);
        return LinkCall::Done;
    }
    if (word == QLatin1String("--version")) {
        LinkCall::say(QStringLiteral("vellumconnect-links %1").arg(QCoreApplication::applicationVersion()));
        return LinkCall::Done;
    }
    for (const Command& command : commands()) {
        if (word == QLatin1String(command.name))
            return ::run(command, arguments);
    }
    return LinkCall::refuse(QStringLiteral("No such command: \"%1\". Try --help.").arg(word), LinkCall::WrongUsage);
}
