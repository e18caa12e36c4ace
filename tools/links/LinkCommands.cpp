// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkCommands.h"

#include <QCoreApplication>

#include <climits>

#include "FindingsReport.h"
#include "LinkFileCheck.h"

namespace
{
QString formatOf(const LinkCall& call)
{
    return call.line.value(QStringLiteral("format"));
}

LinkCall::Result check(const LinkCall& call)
{
    Findings findings;
    for (const QString& file : call.words)
        findings += LinkFileCheck::of(file);
    LinkCall::print(FindingsReport::of(findings, formatOf(call)));
    return findings.isEmpty() ? LinkCall::Done : LinkCall::NotDone;
}

const char* const help = R"(Usage: vellumconnect-links COMMAND [OPTION]... [FILE]...
Checks files of quick links.

  check [--format text|json|sarif] FILE...   say what is wrong with each file

It ends with 0 when all is done, 1 when something was found or cannot be done, and 2 for wrong usage.
)";

struct Command {
    const char* name;
    int fewest; ///< words behind the name
    int most;
    QStringList formats; ///< of --format, the default first
    LinkCall::Result (*run)(const LinkCall& call);
};

const QList<Command>& commands()
{
    static const QList<Command> all{
        {"check", 1, INT_MAX, FindingsReport::formats(), check},
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
    if (!command.formats.isEmpty() && !command.formats.contains(formatOf(call)))
        return QStringLiteral("No such format: \"%1\".").arg(formatOf(call));
    return QString();
}

LinkCall::Result run(const Command& command, const QStringList& arguments)
{
    LinkCall call;
    if (!command.formats.isEmpty())
        call.line.addOption(
            {QStringLiteral("format"), QString(), QStringLiteral("FORMAT"), command.formats.constFirst()});
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
