// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "ConnectionChoice.h"

namespace
{
/** The options, which the parser and the help text share. */
struct Options {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    Options()
        : help({QStringLiteral("h"), QStringLiteral("help")}, tr("Show this help and exit."))
        , version({QStringLiteral("v"), QStringLiteral("version")}, tr("Show the version and exit."))
        , dataFolder(QStringLiteral("data-dir"), tr("Keep your own data in DIR."), QStringLiteral("DIR"))
        , pluginFolder(QStringLiteral("plugin-dir"), tr("Load the plug-ins of DIR."), QStringLiteral("DIR"))
        , language(QStringLiteral("language"), tr("Show texts in the language LANG, such as en or pt_BR."),
                   QStringLiteral("LANG"))
        , connection(
              QStringLiteral("connection"),
              tr("Watch connections of type KIND in this run, whatever the settings say: mobile (mobile broadband), "
                 "any (whatever has a default route) or manual (you press a button)."),
              QStringLiteral("KIND"))
        , hidden(QStringLiteral("hidden"),
                 tr("Wait in the tray without a window; where there is no tray, the window shows."))
        , listLinks(QStringLiteral("list-links"), tr("Print the quick links and exit. Needs no graphical session."))
        , why(QStringLiteral("why"),
              tr("Print which links the running program opened or did not, and why, newest first, and exit."))
    {
        parser.setApplicationDescription(tr("Connection manager with quick links."));
        parser.addOptions({help, version, dataFolder, pluginFolder, language, connection, hidden, listLinks, why});
    }

    /** What is wrong with the arguments; empty when nothing is. */
    QString error() const
    {
        if (!parser.errorText().isEmpty())
            return parser.errorText();
        if (!parser.positionalArguments().isEmpty())
            return tr("Unexpected argument \"%1\".").arg(parser.positionalArguments().constFirst());
        for (const QCommandLineOption& option : {dataFolder, pluginFolder, language, connection}) {
            if (parser.isSet(option) && parser.value(option).isEmpty())
                return tr("Empty value after \"--%1\".").arg(option.names().constFirst());
        }
        const QFileInfo data(parser.value(dataFolder));
        if (parser.isSet(dataFolder) && data.exists() && !data.isDir())
            return tr("There is no folder \"%1\".").arg(parser.value(dataFolder));
        if (parser.isSet(pluginFolder) && !QFileInfo(parser.value(pluginFolder)).isDir())
            return tr("There is no folder \"%1\".").arg(parser.value(pluginFolder));
        if (parser.isSet(connection) && !ConnectionChoice::kinds().contains(parser.value(connection)))
            return tr("No such kind of connection: \"%1\".").arg(parser.value(connection));
        return QString();
    }

    CommandLine::Action action() const
    {
        if (parser.isSet(help))
            return CommandLine::ShowHelp;
        if (parser.isSet(version))
            return CommandLine::ShowVersion;
        if (parser.isSet(listLinks))
            return CommandLine::ListLinks;
        return parser.isSet(why) ? CommandLine::ShowDecisions : CommandLine::ShowWindow;
    }

    QCommandLineOption help, version, dataFolder, pluginFolder, language, connection, hidden, listLinks, why;
    QCommandLineParser parser;
};
} // namespace

QStringList CommandLine::arguments(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QFile::decodeName(argv[i]));
    return arguments;
}

CommandLine CommandLine::parse(const QStringList& arguments)
{
    Options options;
    options.parser.parse(arguments);

    CommandLine line;
    line.error = options.error().simplified();
    line.action = line.error.isEmpty() ? options.action() : Refuse;
    if (line.action == Refuse)
        line.error = Options::tr("%1 Try --help.").arg(line.error);
    line.dataFolder = options.parser.value(options.dataFolder);
    line.pluginFolder = options.parser.value(options.pluginFolder);
    line.language = options.parser.value(options.language);
    const QHash<QString, ConnectionKind> kinds = ConnectionChoice::kinds();
    const auto kind = kinds.constFind(options.parser.value(options.connection));
    if (kind != kinds.constEnd())
        line.connection = *kind;
    line.isHidden = options.parser.isSet(options.hidden);
    return line;
}

QStringList CommandLine::againHidden() const
{
    const Options options;
    QStringList arguments;
    const auto add = [&arguments](const QCommandLineOption& option, const QString& value) {
        if (!value.isEmpty())
            arguments << QStringLiteral("--") + option.names().constFirst() << value;
    };
    add(options.dataFolder, dataFolder.isEmpty() ? QString() : QDir().absoluteFilePath(dataFolder));
    add(options.pluginFolder, pluginFolder.isEmpty() ? QString() : QDir().absoluteFilePath(pluginFolder));
    add(options.language, language);
    if (connection)
        add(options.connection, ConnectionChoice::kinds().key(*connection));
    return arguments << QStringLiteral("--") + options.hidden.names().constFirst();
}

QString CommandLine::helpText()
{
    return Options().parser.helpText();
}

QString CommandLine::runningAlready(qint64 process, const QString& folder)
{
    return Options::tr("It is running already, as process %1, with the folder %2.").arg(process).arg(folder);
}

QString CommandLine::noPlugins(const QString& folder)
{
    return Options::tr("There is no plug-in in the folder \"%1\".").arg(folder);
}

QString CommandLine::notRunning(const QString& folder)
{
    return Options::tr("No running program with the folder %1 can be asked.").arg(folder);
}

QString CommandLine::noDecisionsText()
{
    return Options::tr("Nothing was decided yet") + QLatin1Char('\n');
}

QString CommandLine::versionText()
{
    return QStringLiteral("%1 %2\n").arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion());
}
