// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkItems.h"

#include "LinkRewrite.h"
#include "LinkWalk.h"

QList<LinkItems::Fields> LinkItems::of(const QByteArray& content)
{
    QList<Fields> items;
    LinkWalk walk(content, LinkWalk::AsThePlugin);
    while (walk.next()) {
        if (walk.isAtLink())
            items.append(walk.link());
    }
    return items;
}

bool LinkItems::isSame(Fields one, Fields other)
{
    one.remove(QStringLiteral("id"));
    other.remove(QStringLiteral("id"));
    return one == other;
}

QByteArray LinkItems::with(const QByteArray& content, int index, const Fields& fields)
{
    LinkRewrite rewrite;
    rewrite.changed.insert(index, fields);
    return rewrite.applied(content);
}
