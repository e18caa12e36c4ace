// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QTemporaryDir>

#include "GuardedFolder.h"
#include "ProcessLimits.h"

/** The operator's two folders of layers, the packages' and the computer's. */
class LayerFolders
{
public:
    LayerFolders()
    {
        // Others may pass: a test that gives up root's power still finds its files.
        setMode(m_folder.path(), 0755);
        for (const QString& folder : folders())
            QDir().mkpath(folder);
    }

    QString packages() const { return m_folder.filePath("share/links.d"); }
    QString computers() const { return m_folder.filePath("etc/links.d"); }
    QStringList folders() const { return {packages(), computers()}; }

    /** A layer whose items have these attributes, and are visible. */
    static QByteArray layer(const QList<QByteArray>& items)
    {
        QByteArray content = "<tovadoc><menu>";
        for (const QByteArray& item : items)
            content += "<item visible=\"1\" " + item + "/>";
        return content + "</menu></tovadoc>";
    }

    /** A layer of links of these names, whose addresses are the same. */
    static QByteArray links(const QList<QByteArray>& names)
    {
        QList<QByteArray> items;
        for (const QByteArray& name : names)
            items.append("name=\"" + name + "\" url=\"" + name + "\" delete=\"1\" edit=\"1\"");
        return layer(items);
    }

    /** Whether the layer is there now. */
    static bool write(const QString& folder, const QString& name, const QByteArray& content)
    {
        return GuardedFolder::writeTo(folder + '/' + name, content);
    }

private:
    QTemporaryDir m_folder;
};
