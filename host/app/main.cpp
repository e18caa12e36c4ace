// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QLoggingCategory>

#include <clocale>
#include <cstdio>

#include "CommandLine.h"
#include "DecisionsOnBus.h"
#include "DisplayChoice.h"
#include "FixedSettings.h"
#include "FolderLock.h"
#include "FolderPrivacy.h"
#include "Host.h"
#include "IQuickLinkPlugin.h"
#include "LetterScale.h"
#include "LinkTable.h"
#include "OwnStart.h"
#include "RunningProgram.h"
#include "Translator.h"
#include "UserFolder.h"
#include "UserSettings.h"

namespace
{
const int cannotStart = 1; // here and now
const int wrongUsage = 2;

int print(const QString& text)
{
    std::fputs(text.toLocal8Bit().constData(), stdout);
    return 0;
}

int refuse(const QString& error, int code)
{
    std::fprintf(stderr, "vellumconnect: %s\n", error.toLocal8Bit().constData());
    return code;
}

/** The program that runs already comes to the front, or at least this one says so. */
int handOver(qint64 owner)
{
    if (RunningProgram::handOver(UserFolder::path()))
        return 0;
    return refuse(CommandLine::runningAlready(owner, UserFolder::path()), cannotStart);
}

/** What the program that runs already decided; one that does not run has forgotten. */
int printDecisions()
{
    QString text;
    if (!DecisionsOnBus::ask(UserFolder::path(), text))
        return refuse(CommandLine::notRunning(UserFolder::path()), cannotStart);
    return print(text.isEmpty() ? CommandLine::noDecisionsText() : text);
}

/** Starts anew, once, where the toolkit has to enlarge everything for the desktop's letters. */
void fitToLetters(const OwnStart& start, FolderLock& lock)
{
    const QList<QByteArray> wanted = LetterScale::wanted();
    if (!wanted.isEmpty()) {
        lock.giveBack();
        start.repeat(wanted);
        // Rather with letters cut off than not at all.
        lock.take();
    }
    LetterScale::apply();
}

void describeApplication()
{
    QCoreApplication::setApplicationName(QStringLiteral("vellumconnect"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VELLUM_VERSION));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Vellum Connect"));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.norvik.vellumconnect"));
    // Otherwise the toolkit loads OpenGL for the first window, in case a widget draws with it: half of a start.
    QCoreApplication::setAttribute(Qt::AA_ForceRasterWidgets);
#if QT_VERSION < 0x060000
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
}
} // namespace

int main(int argc, char** argv)
{
    // The arguments are read before there is an application, which would look for a display.
    std::setlocale(LC_ALL, "");
    const OwnStart start(argv);
    const QStringList arguments = CommandLine::arguments(argc, argv);
    const CommandLine commandLine = CommandLine::parse(arguments);
    const bool showsWindow = commandLine.action == CommandLine::ShowWindow;
    DisplayChoice display;
    if (showsWindow)
        display = DisplayChoice::choose(QProcessEnvironment::systemEnvironment(), QCoreApplication::libraryPaths());
    const bool isOnScreen = showsWindow && display.problem == DisplayChoice::None;
    if (!isOnScreen || !display.platform.isEmpty())
        qputenv("QT_QPA_PLATFORM", isOnScreen ? display.platform : QByteArrayLiteral("offscreen"));

    // What is wrong with the arguments is told in one line. The trace of the plug-ins is for developers:
    // QT_LOGGING_RULES="default.debug=true" turns it on.
    const bool isRefused = commandLine.action == CommandLine::Refuse;
    QLoggingCategory::setFilterRules(isRefused ? QStringLiteral("default=false")
                                               : QStringLiteral("default.debug=false"));
    describeApplication();
    QApplication application(argc, argv);
    display.connection.reset();
    // What links start chooses by itself.
    if (!display.platform.isEmpty())
        qunsetenv("QT_QPA_PLATFORM");
    UserFolder::setPath(commandLine.dataFolder);
    const FixedSettings fixed = FixedSettings::read(FixedSettings::file(), &Translator::languages);
    Translator translator;
    translator.use(commandLine.language.isEmpty() ? fixed.language.value_or(UserSettings::language())
                                                  : commandLine.language);
    if (isRefused)
        return refuse(CommandLine::parse(arguments).error, wrongUsage);
    if (commandLine.action == CommandLine::ShowHelp)
        return print(CommandLine::helpText());
    if (commandLine.action == CommandLine::ShowVersion)
        return print(CommandLine::versionText());
    if (commandLine.action == CommandLine::ShowDecisions)
        return printDecisions();
    if (display.problem != DisplayChoice::None)
        return refuse(display.error(), cannotStart);

    FolderLock lock(UserFolder::path());
    if (showsWindow && lock.take() == FolderLock::Busy)
        return commandLine.isHidden ? 0 : handOver(lock.owner());
    if (showsWindow) {
        fitToLetters(start, lock);
        FolderPrivacy::keepOthersOut(UserFolder::path());
    }

    Host host(translator);
    if (!showsWindow) {
        host.lookAtPlugins(commandLine.pluginFolder);
        return print(linkTable(host.container().all<IQuickLinkPlugin>()));
    }
    host.guardLinks(lock.wasLeftBehind());
    host.loadPlugins(commandLine.pluginFolder);
    host.setSessionArguments(commandLine.againHidden());
    host.setFixedSettings(fixed);
    host.showWindow(commandLine.connection, commandLine.isHidden);
    const int result = QApplication::exec();
    if (!host.endLinks())
        lock.leaveBehind();
    return result;
}
