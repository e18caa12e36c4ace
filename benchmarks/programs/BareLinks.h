// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVector>

/** A link as ten texts, in the order of the file's attributes. */
struct BareLink {
    QString id, name, type, url, para, startconnect, startmobile, mayDelete, mayEdit, visible;
};
Q_DECLARE_TYPEINFO(BareLink, Q_MOVABLE_TYPE);

/** What config.xml holds. */
struct BareLinks {
    QString visible, currentId;
    QVector<BareLink> links;
};

/** The path of config.xml below a user's folder. */
QString bareConfigPath(const QString& folder);

/**
 * The least that the toolkit needs to read the file: every token once, the attributes of an item taken by their place
 * in the writer's order, ten texts made of them. It would not do for a file whose attributes stand in another order.
 */
BareLinks bareLoad(const QString& folder);

/** Replaces the file by one with the same bytes as the plug-in writes. Every name is a constant of the program. */
void bareSave(const QString& folder, const BareLinks& links);
