// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "DesktopPrograms.h"

#include <QFileInfo>
#include <QtDebug>

#include <dlfcn.h>

#include "DesktopEntries.h"
#include "OutlivingProcess.h"

/** Of the library, which is loaded when it is first needed and stays; null where it is missing. */
static const DesktopEntries* entries()
{
    static const DesktopEntries* const found = [] {
        // By its name alone it is found where the program's other libraries are.
        void* const library = ::dlopen("libdesktopentries.so", RTLD_NOW | RTLD_LOCAL);
        if (!library)
            qWarning("desktop entries are not known: %s", ::dlerror());
        return library ? static_cast<const DesktopEntries*>(::dlsym(library, "desktopEntries")) : nullptr;
    }();
    return found;
}

bool DesktopPrograms::isEntry(const QFileInfo& file)
{
    return file.isFile() && file.suffix() == QLatin1String("desktop");
}

DesktopPrograms::Start DesktopPrograms::start(const QString& path)
{
    return entries() ? entries()->start(path, OutlivingProcess::cutOff) : Start();
}

QString DesktopPrograms::iconOfEntry(const QString& path)
{
    return entries() ? entries()->iconOfEntry(path) : QString();
}

QString DesktopPrograms::iconOfScheme(const QString& scheme)
{
    return entries() ? entries()->iconOfScheme(scheme) : QString();
}
