// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkChanges.h"

#include <QHash>
#include <QSet>
#include <QVector>

#include <algorithm>

#include "LinkItems.h"

namespace
{
QString nameOf(const LinkItems::Fields& fields)
{
    return fields.value(QStringLiteral("name"));
}

/** Which link of the one state each link of the other was; -1 for none. */
QVector<int> origins(const QList<LinkItems::Fields>& from, const QList<LinkItems::Fields>& to)
{
    QHash<QString, QList<int>> places;
    for (int i = 0; i < from.size(); ++i)
        places[nameOf(from.at(i))].append(i);
    QVector<int> origins;
    QSet<int> left;
    for (int i = 0; i < from.size(); ++i)
        left.insert(i);
    for (const LinkItems::Fields& link : to) {
        QList<int>& same = places[nameOf(link)];
        origins.append(same.isEmpty() ? -1 : same.takeFirst());
        left.remove(origins.last());
    }
    // A link in the place of one that went, among as many as before, is that one with a new name.
    for (int i = 0; i < to.size() && from.size() == to.size(); ++i) {
        if (origins.at(i) < 0 && left.contains(i))
            origins[i] = i;
    }
    return origins;
}

/** The values that do not belong to a longest rising sequence of values, found in n log n steps; negative ones do not
 * count. */
QSet<int> outOfOrder(const QVector<int>& values)
{
    QVector<int> ends; // index of the lowest value that ends a rising sequence of each length
    QVector<int> before(values.size(), -1);
    QSet<int> others;
    for (int i = 0; i < values.size(); ++i) {
        if (values.at(i) < 0)
            continue;
        others.insert(values.at(i));
        const auto place = std::lower_bound(ends.begin(), ends.end(), values.at(i),
                                            [&values](int end, int value) { return values.at(end) < value; });
        if (place != ends.begin())
            before[i] = *(place - 1);
        if (place == ends.end())
            ends.append(i);
        else
            *place = i;
    }
    for (int i = ends.isEmpty() ? -1 : ends.last(); i >= 0; i = before.at(i))
        others.remove(values.at(i));
    return others;
}
} // namespace

LinkChanges LinkChanges::between(const QByteArray& from, const QByteArray& to)
{
    const QList<LinkItems::Fields> before = LinkItems::of(from), after = LinkItems::of(to);
    const QVector<int> origin = origins(before, after);
    const QSet<int> isMoved = outOfOrder(origin);
    LinkChanges changes;
    QSet<int> isKept;
    for (int i = 0; i < after.size(); ++i) {
        const int was = origin.at(i);
        if (was < 0) {
            changes.added.append(nameOf(after.at(i)));
            continue;
        }
        isKept.insert(was);
        if (!LinkItems::isSame(after.at(i), before.at(was)))
            changes.edited.append(nameOf(before.at(was)));
        if (isMoved.contains(was))
            changes.moved.append(nameOf(before.at(was)));
    }
    for (int i = 0; i < before.size(); ++i) {
        if (!isKept.contains(i))
            changes.removed.append(nameOf(before.at(i)));
    }
    return changes;
}
