// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The host's loading of plug-ins and nothing else: what a test lets plug-ins crash and hang.
//
//   load_driver DATA PLUGINS LIMIT
//
// Loads the plug-ins of the folder PLUGINS with the records of the folder DATA; a call that lasts for LIMIT
// milliseconds hangs. Prints a line for each plug-in that is refused, "loaded" with the names of the others, and, when
// its input ends and they are taken down, "done".

#include <QCoreApplication>
#include <QStringList>

#include <cstdio>

#include <sys/resource.h>

#include "Gatekeeper.h"
#include "IBasePlugin.h"
#include "PluginContainer.h"
#include "StartupContainer.h"

namespace
{
void print(const QString& line)
{
    std::printf("%s\n", line.toLocal8Bit().constData());
    std::fflush(stdout);
}
} // namespace

int main(int argc, char** argv)
{
    // Crashes are wanted here.
    const rlimit none = {};
    setrlimit(RLIMIT_CORE, &none);
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4)
        return 2;
    Gatekeeper gatekeeper{std::chrono::milliseconds(arguments.at(3).toInt())};
    PluginContainer container;
    container.setGate(&gatekeeper);
    installPluginContainer(&container);
    gatekeeper.open(arguments.at(1), arguments.at(2));
    container.loadFolder(arguments.at(2));
    const QList<PluginContainer::Refusal> refusals = container.refusals();
    for (const PluginContainer::Refusal& refusal : refusals)
        print(refusal.file + ": " + refusal.reason);
    QStringList names;
    const QList<PluginWith<IBasePlugin>> plugins = container.all<IBasePlugin>();
    for (const PluginWith<IBasePlugin>& plugin : plugins)
        names.append(plugin.name);
    print("loaded " + names.join(' '));
    while (std::getchar() != EOF) {
    }
    container.shutdown();
    print("done");
    return 0;
}
