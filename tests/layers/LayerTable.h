// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QStringList>

#include "LayerLink.h"

/** Links as the table of docs/layer-rules.md writes them: "#k P=p connect -delete own in b, Q=q"; "none" for none. */
namespace LayerTable
{

/** What stands in a cell. */
struct Cell {
    QList<GivenLink> links;
    QStringList unreadable;

    QList<LayerLink> layerLinks() const;
    QList<LinkItems::Fields> fields() const;
};

Cell read(const QString& text);

/** The text of such links. */
QString written(const QList<GivenLink>& links);

/** The text of a user's links. */
QString written(const QList<LinkItems::Fields>& links);

} // namespace LayerTable
