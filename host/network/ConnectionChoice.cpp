// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ConnectionChoice.h"

#include <QStringList>

#include "ConnectionMonitor.h"

namespace
{
const QString kindName = QStringLiteral("kind");
const QString plansName = QStringLiteral("plans");
const QString roamingName = QStringLiteral("notWhileRoaming");

void tellBroken(const QString& name)
{
    qCWarning(connectionLog, "The choice of connections has no good value for \"%s\"; it is as by default",
              qUtf8Printable(name));
}

/** UUID and name by turns, which a file of settings can hold whatever is in them. */
QStringList listOf(const ConnectionChoice::Plans& plans)
{
    QStringList list;
    for (auto plan = plans.constBegin(); plan != plans.constEnd(); ++plan)
        list << plan.key() << plan.value();
    return list;
}

/** None where a part of the list is broken: the rest would not be what the user chose. */
ConnectionChoice::Plans plansOf(const QStringList& list)
{
    ConnectionChoice::Plans plans;
    for (int i = 0; i + 1 < list.size(); i += 2)
        plans.insert(list.at(i), list.at(i + 1));
    const bool isGood = list.size() % 2 == 0 && !plans.contains(QString());
    if (!isGood)
        tellBroken(plansName);
    return isGood ? plans : ConnectionChoice::Plans();
}
} // namespace

ConnectionChoice::ConnectionChoice(ConnectionKind chosenKind)
    : kind(chosenKind)
{
}

QHash<QString, ConnectionKind> ConnectionChoice::kinds()
{
    return {{QStringLiteral("mobile"), ConnectionKind::Mobile},
            {QStringLiteral("any"), ConnectionKind::Any},
            {QStringLiteral("manual"), ConnectionKind::Manual}};
}

bool ConnectionChoice::countsPlan(const QString& uuid) const
{
    return plans.isEmpty() || plans.contains(uuid);
}

bool ConnectionChoice::forbidsRoaming() const
{
    return kind == ConnectionKind::Mobile && isNotWhileRoaming;
}

QVariantMap ConnectionChoice::values() const
{
    return {{kindName, kinds().key(kind)}, {plansName, listOf(plans)}, {roamingName, isNotWhileRoaming}};
}

ConnectionChoice ConnectionChoice::of(const QVariantMap& values)
{
    ConnectionChoice choice;
    if (values.contains(kindName)) {
        const QString kind = values.value(kindName).toString();
        if (!kinds().contains(kind))
            tellBroken(kindName);
        choice.kind = kinds().value(kind, choice.kind);
    }
    choice.plans = plansOf(values.value(plansName).toStringList());
    if (values.contains(roamingName)) {
        // A file has texts only.
        const QString text = values.value(roamingName).toString();
        choice.isNotWhileRoaming = text == QLatin1String("true");
        if (!choice.isNotWhileRoaming && text != QLatin1String("false"))
            tellBroken(roamingName);
    }
    return choice;
}

bool ConnectionChoice::operator==(const ConnectionChoice& other) const
{
    return values() == other.values();
}
