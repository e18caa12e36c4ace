// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "DesktopPrograms.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtDebug>

#include <dlfcn.h>
#include <link.h>

#include "DesktopEntries.h"
#include "OutlivingProcess.h"

/** Where a library lies that is loaded; empty for none. */
static QString folderOf(const char* library)
{
    void* const loaded = ::dlopen(library, RTLD_NOW | RTLD_NOLOAD);
    const link_map* map = nullptr;
    const bool isFound = loaded && ::dlinfo(loaded, RTLD_DI_LINKMAP, &map) == 0;
    const QString path = isFound ? QFile::decodeName(map->l_name) : QString();
    if (loaded)
        ::dlclose(loaded);
    return QFileInfo(path).path();
}

/** Of the library, which is loaded when it is first needed and stays; null where it is missing. */
static const DesktopEntries* entries()
{
    static const DesktopEntries* const found = [] {
        // By its name alone it would be looked for where the libraries are of whoever calls, which a sanitizer does.
        const QString path = QDir(folderOf("libsdk.so")).filePath(QStringLiteral("libdesktopentries.so"));
        void* const library = ::dlopen(QFile::encodeName(path).constData(), RTLD_NOW | RTLD_LOCAL);
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
