// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LayerRules.h"

#include <QHash>
#include <QVector>

#include <functional>

namespace
{
using Fields = LinkItems::Fields;

const QString keyField = QStringLiteral("key");
const QString nameField = QStringLiteral("name");
const QString addressField = QStringLiteral("url");
/** The fields that say what a link is, those by which it opens by itself, and what the user may do with it. */
const QStringList& whereItLeads()
{
    static const QStringList fields = {nameField, QStringLiteral("type"), addressField, QStringLiteral("para")};
    return fields;
}

const QStringList& marks()
{
    static const QStringList fields = {QStringLiteral("startconnect"), QStringLiteral("startmobile")};
    return fields;
}

const QStringList& rights()
{
    static const QStringList fields = {QStringLiteral("delete"), QStringLiteral("edit")};
    return fields;
}

/** What tells a link from others; empty where that is nothing. */
using Identity = QString (*)(const Fields& link);

QString keyOf(const Fields& link)
{
    return link.value(keyField);
}

QString nameAndAddressOf(const Fields& link)
{
    return link.value(nameField) + QLatin1Char('\n') + link.value(addressField);
}

QString nameOf(const Fields& link)
{
    return link.value(nameField);
}

/** All links of the mail program have the same one. */
QString addressOf(const Fields& link)
{
    const QString address = link.value(addressField);
    return address == QLatin1String("mailto:") ? QString() : address;
}

bool isSame(const Fields& one, const Fields& other, const QStringList& fields)
{
    for (const QString& field : fields) {
        if (one.value(field) != other.value(field))
            return false;
    }
    return true;
}

/** Finds links in a list, each once. */
class Finder
{
public:
    explicit Finder(const QList<Fields>& links)
        : m_links(links)
        , m_isTaken(links.size(), false)
    {
    }

    /** Sets the places of wanted links that have none yet (-1), by one identity after the other. */
    void find(const QList<Fields>& wanted, QVector<int>& places, Identity identity)
    {
        QHash<QString, QList<int>> offered;
        for (int i = 0; i < m_links.size(); ++i) {
            if (!m_isTaken.at(i))
                offered[identity(m_links.at(i))].append(i);
        }
        offered.remove(QString());
        for (int i = 0; i < wanted.size(); ++i) {
            QList<int>& found = offered[places.at(i) < 0 ? identity(wanted.at(i)) : QString()];
            if (found.isEmpty())
                continue;
            places[i] = found.takeFirst();
            m_isTaken[places.at(i)] = true;
        }
    }

private:
    const QList<Fields>& m_links;
    QVector<bool> m_isTaken;
};

/** Of two that are the same link, the later one in the place of the first. */
QList<LayerLink> withoutTwins(const QList<LayerLink>& links)
{
    QList<LayerLink> single;
    QHash<QString, int> places;
    for (const LayerLink& link : links) {
        const QString key = keyOf(link.fields);
        const QString identity = key.isEmpty() ? nameAndAddressOf(link.fields) : key;
        const auto place = places.constFind(identity);
        if (place != places.constEnd()) {
            single[*place] = link;
            continue;
        }
        places.insert(identity, single.size());
        single.append(link);
    }
    return single;
}

template <class Link>
QList<Fields> fieldsOf(const QList<Link>& links)
{
    QList<Fields> fields;
    for (const Link& link : links)
        fields.append(link.fields);
    return fields;
}

/** The rules at work on one user's links. */
class Seeding
{
public:
    Seeding(const QList<Fields>& users, const QList<GivenLink>& given, const QList<LayerLink>& operators,
            const QStringList& unreadable)
        : m_users(users)
        , m_given(given)
        , m_operators(withoutTwins(operators))
        , m_unreadable(unreadable)
        , m_operatorOf(given.size(), -1)
        , m_userOf(given.size(), -1)
        , m_finder(m_users)
    {
        findOperators();
        findUsers();
    }

    LayerRules::Outcome outcome()
    {
        QVector<bool> isGiven(m_operators.size(), false);
        for (int i = 0; i < m_given.size(); ++i) {
            const int place = m_operatorOf.at(i);
            if (place >= 0) {
                isGiven[place] = true;
                follow(m_given.at(i), m_operators.at(place), m_userOf.at(i));
            } else {
                letGo(m_given.at(i), m_userOf.at(i));
            }
        }
        addNew(isGiven);
        return m_outcome;
    }

private:
    /** Which link of the operator each given one is now. */
    void findOperators()
    {
        const QList<Fields> operators = fieldsOf(m_operators), given = fieldsOf(m_given);
        Finder finder(operators);
        finder.find(given, m_operatorOf, &keyOf);
        finder.find(given, m_operatorOf, &nameAndAddressOf);
    }

    /** Which link of the user each given one is now. */
    void findUsers()
    {
        const QList<Fields> given = fieldsOf(m_given);
        m_finder.find(given, m_userOf, &nameAndAddressOf);
        // As the operator has it now: a run before this one was interrupted before it could note that.
        QList<Fields> current, undecided;
        for (int i = 0; i < m_given.size(); ++i) {
            const int place = m_operatorOf.at(i);
            current.append(place < 0 ? given.at(i) : m_operators.at(place).fields);
            undecided.append(m_given.at(i).isUsers ? Fields() : given.at(i));
        }
        m_finder.find(current, m_userOf, &nameAndAddressOf);
        // Edited by the user.
        m_finder.find(undecided, m_userOf, &nameOf);
        m_finder.find(undecided, m_userOf, &addressOf);
    }

    /** The operator still has the link. */
    void follow(GivenLink given, const LayerLink& link, int place)
    {
        given.layer = link.layer;
        if (place < 0) {
            given.isUsers = true;
            setKey(given, keyOf(link.fields));
        } else {
            const Fields& users = m_users.at(place);
            Fields changes = differing(users, link.fields, rights());
            const bool isAsGiven = isSame(users, given.fields, whereItLeads());
            if (isAsGiven) {
                changes.insert(differing(users, link.fields, whereItLeads()));
                for (const QString& mark : marks()) {
                    if (isSame(users, given.fields, {mark}))
                        changes.insert(differing(users, link.fields, {mark}));
                }
            }
            if (isAsGiven || isSame(users, link.fields, whereItLeads()))
                given.fields = link.fields;
            else
                setKey(given, keyOf(link.fields));
            change(place, changes);
        }
        m_outcome.given.append(given);
    }

    /** The operator has the link no longer, as far as is known. */
    void letGo(GivenLink given, int place)
    {
        if (!given.isUsers && !m_unreadable.contains(given.layer)) {
            const bool isUntouched = place >= 0 && isSame(m_users.at(place), given.fields, whereItLeads() + marks());
            if (isUntouched) {
                m_outcome.links.removed.insert(place);
                return;
            }
            given.isUsers = true;
            if (place >= 0)
                change(place, differing(m_users.at(place), allRights(), rights()));
        }
        m_outcome.given.append(given);
    }

    /** What was not given yet, unless the user has it already. */
    void addNew(const QVector<bool>& isGiven)
    {
        QList<LayerLink> links;
        for (int i = 0; i < m_operators.size(); ++i) {
            if (!isGiven.at(i))
                links.append(m_operators.at(i));
        }
        QVector<int> places(links.size(), -1);
        m_finder.find(fieldsOf(links), places, &nameAndAddressOf);
        for (int i = 0; i < links.size(); ++i) {
            const bool isThere = places.at(i) >= 0;
            if (isThere)
                change(places.at(i), differing(m_users.at(places.at(i)), links.at(i).fields, rights()));
            else
                m_outcome.links.added.append(links.at(i).fields);
            GivenLink given;
            static_cast<LayerLink&>(given) = links.at(i);
            given.isUsers = isThere;
            m_outcome.given.append(given);
        }
    }

    void change(int place, const Fields& changes)
    {
        if (!changes.isEmpty())
            m_outcome.links.changed.insert(place, changes);
    }

    /** What other has in these fields, where that is something else. */
    static Fields differing(const Fields& link, const Fields& other, const QStringList& fields)
    {
        Fields differing;
        for (const QString& field : fields) {
            if (link.value(field) != other.value(field))
                differing.insert(field, other.value(field));
        }
        return differing;
    }

    static Fields allRights()
    {
        Fields all;
        for (const QString& right : rights())
            all.insert(right, QStringLiteral("1"));
        return all;
    }

    static void setKey(GivenLink& given, const QString& key)
    {
        given.fields.remove(keyField);
        if (!key.isEmpty())
            given.fields.insert(keyField, key);
    }

    const QList<Fields>& m_users;
    const QList<GivenLink>& m_given;
    const QList<LayerLink> m_operators;
    const QStringList& m_unreadable;
    QVector<int> m_operatorOf; ///< place of the operator's link of each given one; -1 for none
    QVector<int> m_userOf;     ///< place of the user's; -1 for none
    Finder m_finder;           ///< in the user's links
    LayerRules::Outcome m_outcome;
};
} // namespace

LayerRules::Outcome LayerRules::outcome(const QList<Fields>& users, const QList<GivenLink>& given,
                                        const QList<LayerLink>& operators, const QStringList& unreadable)
{
    return Seeding(users, given, operators, unreadable).outcome();
}
