// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Start of a plug-in: load the library, take its object, read the links.

#include <QPluginLoader>

#include "BareLinks.h"
#include "FakeAnswers.h"
#include "IBasePlugin.h"
#include "Measure.h"

namespace
{
void plugin(const QString& folder)
{
    FakeAnswers::setUserFolder(folder);
    measure([] {
        QPluginLoader loader(QStringLiteral(PLUGIN_FILE));
        IBasePlugin* const object = qobject_cast<IBasePlugin*>(loader.instance());
        if (!object || !object->Init())
            qFatal("%s does not start", PLUGIN_FILE);
    });
}

void bare(const QString& folder)
{
    BareLinks links;
    measure([&] {
        QPluginLoader loader(QStringLiteral(EMPTY_PLUGIN_FILE));
        if (!loader.instance())
            qFatal("%s does not start", EMPTY_PLUGIN_FILE);
        links = bareLoad(folder);
    });
}
} // namespace

int main(int argc, char** argv)
{
    return runTask(argc, argv, {{"plugin", plugin}, {"bare", bare}});
}
