// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "LayerLink.h"

/**
 * The operator's files of links, the layers: each *.xml of some folders, in the format of docs/config-xml.md. A file in
 * a later folder takes the place of one of the same name, and one that is empty or a link to /dev/null hides it, as
 * with the drop-in files of systemd (systemd.unit(5)).
 */
struct LayerFiles {
    QList<LayerLink> links; ///< layer by layer, in the order of the names
    QStringList unreadable; ///< names of layers that are no good
    QStringList paths;      ///< of all layers that were looked at

    /** Whether it cannot be said which layers there are: a folder, or one on the way to it, is closed to this user. */
    bool isUnknown = false;

    /** Whether there is none in folders, of which none is closed. Reads no file. */
    static bool areNone(const QStringList& folders);

    /** Reads the layers in folders, of which those that are missing have none. */
    static LayerFiles read(const QStringList& folders);
};
