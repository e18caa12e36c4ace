// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QLoggingCategory>

#include <clocale>
#include <cstdio>

#include "CommandLine.h"
#include "ConnectionIcon.h"
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
const int isRunningAlready = 1;
const int wrongUsage = 2;

int print(const QString& text)
{
    std::fputs(text.toLocal8Bit().constData(), stdout);
    return 0;
}

int refuse(const QString& error)
{
    std::fprintf(stderr, "vellumconnect: %s\n", error.toLocal8Bit().constData());
    return wrongUsage;
}

/** The program that runs already comes to the front, or at least this one says so. */
int handOver(qint64 owner)
{
    if (RunningProgram::handOver(UserFolder::path()))
        return 0;
    std::fprintf(stderr, "vellumconnect: it is running already, as process %lld, with the folder %s\n",
                 static_cast<long long>(owner), qUtf8Printable(UserFolder::path()));
    return isRunningAlready;
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
    if (commandLine.action != CommandLine::ShowWindow)
        qputenv("QT_QPA_PLATFORM", "offscreen");

    // What is wrong with the arguments is told in one line. The trace of the plug-ins is for developers:
    // QT_LOGGING_RULES="default.debug=true" turns it on.
    const bool isRefused = commandLine.action == CommandLine::Refuse;
    QLoggingCategory::setFilterRules(isRefused ? QStringLiteral("default=false")
                                               : QStringLiteral("default.debug=false"));
    describeApplication();
    QApplication application(argc, argv);
    QApplication::setWindowIcon(connectionIcon(true));
    UserFolder::setPath(commandLine.dataFolder);
    Translator translator;
    translator.use(commandLine.language.isEmpty() ? UserSettings::language() : commandLine.language);
    if (isRefused)
        return refuse(CommandLine::parse(arguments).error);
    if (commandLine.action == CommandLine::ShowHelp)
        return print(CommandLine::helpText());
    if (commandLine.action == CommandLine::ShowVersion)
        return print(CommandLine::versionText());

    FolderLock lock(UserFolder::path());
    const bool showsWindow = commandLine.action == CommandLine::ShowWindow;
    if (showsWindow && lock.take() == FolderLock::Busy)
        return handOver(lock.owner());
    if (showsWindow) {
        fitToLetters(start, lock);
        FolderPrivacy::keepOthersOut(UserFolder::path());
    }

    Host host(translator);
    if (showsWindow)
        host.guardLinks(lock.wasLeftBehind());
    host.loadPlugins(commandLine.pluginFolder);
    if (commandLine.action == CommandLine::ListLinks)
        return print(linkTable(host.container().all<IQuickLinkPlugin>()));
    host.showWindow(commandLine.connection);
    const int result = QApplication::exec();
    if (!host.endLinks())
        lock.leaveBehind();
    return result;
}
