// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QLoggingCategory>

#include <clocale>
#include <cstdio>

#include "CommandLine.h"
#include "ConnectionIcon.h"
#include "Host.h"
#include "IQuickLinkPlugin.h"
#include "LinkTable.h"
#include "Translator.h"
#include "UserFolder.h"
#include "UserSettings.h"

namespace
{
const int wrongUsage = 2;

int print(const QString& text)
{
    std::fputs(text.toLocal8Bit().constData(), stdout);
    return 0;
}

void describeApplication()
{
    QCoreApplication::setApplicationName(QStringLiteral("vellumconnect"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VELLUM_VERSION));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Vellum Connect"));
    QGuiApplication::setDesktopFileName(QStringLiteral("vellumconnect"));
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
    const CommandLine commandLine = CommandLine::parse(argc, argv);
    if (commandLine.action == CommandLine::Refuse) {
        std::fprintf(stderr, "vellumconnect: %s\n", commandLine.error.toLocal8Bit().constData());
        return wrongUsage;
    }
    if (commandLine.action != CommandLine::ShowWindow)
        qputenv("QT_QPA_PLATFORM", "offscreen");

    describeApplication();
    QApplication application(argc, argv);
    QApplication::setWindowIcon(connectionIcon(true));
    // The trace of the plug-ins is for developers: QT_LOGGING_RULES="default.debug=true" turns it on.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    UserFolder::setPath(commandLine.dataFolder);
    Translator translator;
    translator.use(commandLine.language.isEmpty() ? UserSettings::language() : commandLine.language);
    if (commandLine.action == CommandLine::ShowHelp)
        return print(CommandLine::helpText());
    if (commandLine.action == CommandLine::ShowVersion)
        return print(CommandLine::versionText());

    Host host(translator);
    host.loadPlugins(commandLine.pluginFolder);
    if (commandLine.action == CommandLine::ListLinks)
        return print(linkTable(host.container().all<IQuickLinkPlugin>()));
    host.showWindow(commandLine.connection);
    return QApplication::exec();
}
