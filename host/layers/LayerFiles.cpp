// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LayerFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>

#include <algorithm>
#include <cerrno>
#include <utility>

#include <unistd.h>

#include "LinkFile.h"

/** Whether a folder is there, or may be, but not for this user. */
static bool isClosed(const QString& folder)
{
    return ::access(QFile::encodeName(folder).constData(), R_OK | X_OK) != 0 && errno != ENOENT && errno != ENOTDIR;
}

/** The paths of the layers by their names. */
static QMap<QString, QString> layersIn(const QStringList& folders)
{
    QMap<QString, QString> layers;
    for (const QString& folder : folders) {
        // Devices and links that lead nowhere count: they hide a file of the same name.
        const QStringList names =
            QDir(folder).entryList({QStringLiteral("*.xml")}, QDir::Files | QDir::System | QDir::CaseSensitive);
        for (const QString& name : names)
            layers.insert(name, folder + QLatin1Char('/') + name);
    }
    return layers;
}

/** Whether a layer of this path is there only to hide another. */
static bool isMask(const QString& path, const LinkFile& file)
{
    return file.condition == LinkFile::Empty || QFileInfo(path).canonicalFilePath() == QLatin1String("/dev/null");
}

static LayerLink linkOf(const QString& layer, const LinkItems::Fields& item)
{
    LayerLink link;
    link.layer = layer;
    const QStringList names = LayerLink::names();
    for (const QString& name : names) {
        if (item.contains(name))
            link.fields.insert(name, item.value(name));
    }
    return link;
}

bool LayerFiles::areNone(const QStringList& folders)
{
    return layersIn(folders).isEmpty() && std::none_of(folders.begin(), folders.end(), &isClosed);
}

LayerFiles LayerFiles::read(const QStringList& folders)
{
    LayerFiles files;
    files.isUnknown = std::any_of(folders.begin(), folders.end(), &isClosed);
    const QMap<QString, QString> layers = layersIn(folders);
    for (auto layer = layers.cbegin(); layer != layers.cend(); ++layer) {
        LinkFile file = LinkFile::read(*layer);
        QList<LinkItems::Fields> items;
        if (file.isGood())
            file = LinkFile::ofContent(file.content, &items);
        files.paths.append(*layer);
        if (!file.isGood() && !isMask(*layer, file))
            files.unreadable.append(layer.key());
        if (!file.isGood())
            continue;
        for (const LinkItems::Fields& item : std::as_const(items))
            files.links.append(linkOf(layer.key(), item));
    }
    return files;
}
