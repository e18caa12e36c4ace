// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "DroppedFields.h"

static const QString onConnect = QStringLiteral("startconnect");
static const QString onStart = QStringLiteral("startmobile");
static const QString address = QStringLiteral("url");

static bool isSet(const LinkItems::Fields& link, const QString& flag)
{
    return link.value(flag) == QLatin1String("1");
}

/** The only link that differs; -1 where there is none, or more. */
static int editedLink(const QList<LinkItems::Fields>& before, const QList<LinkItems::Fields>& after)
{
    int edited = -1;
    if (before.size() != after.size())
        return edited;
    for (int i = 0; i < before.size(); ++i) {
        if (LinkItems::isSame(before.at(i), after.at(i)))
            continue;
        if (edited >= 0)
            return -1;
        edited = i;
    }
    return edited;
}

DroppedFields DroppedFields::between(const QByteArray& from, const QByteArray& to, const Shown& shown)
{
    const QList<LinkItems::Fields> before = LinkItems::of(from), after = LinkItems::of(to);
    DroppedFields dropped;
    dropped.index = editedLink(before, after);
    if (dropped.index < 0)
        return dropped;
    const LinkItems::Fields& was = before.at(dropped.index);
    const LinkItems::Fields& is = after.at(dropped.index);
    for (const QString& right : {QStringLiteral("delete"), QStringLiteral("edit")}) {
        if (was.contains(right) && was.value(right) != is.value(right))
            dropped.rights.insert(right, was.value(right));
    }
    // What the dialog showed as not marked, the user took away.
    if (isSet(was, onConnect) && !isSet(is, onConnect) && shown.opensOnConnect)
        dropped.marks.insert(onConnect, was.value(onConnect));
    if (isSet(was, onStart) && !isSet(is, onStart) && shown.opensOnStart)
        dropped.marks.insert(onStart, was.value(onStart));
    const QString bare = QStringLiteral("mailto:");
    if (is.value(address) == bare && was.value(address).size() > bare.size() && was.value(address).startsWith(bare))
        dropped.marks.insert(address, was.value(address));
    return dropped;
}
