// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LayerTable.h"

namespace
{
const QString internet = "IDS_LINK_TYPE_INTERNET";
const QString application = "IDS_LINK_TYPE_APPLICATION";

/** Sets what a word behind the link says; false for a word that says nothing. */
bool take(GivenLink& link, const QString& word)
{
    if (word == "connect" || word == "start")
        link.fields["start" + (word == "start" ? QString("mobile") : word)] = "1";
    else if (word == "-delete" || word == "-edit")
        link.fields[word.mid(1)] = "0";
    else if (word == "app")
        link.fields["type"] = application;
    else if (word == "own")
        link.isUsers = true;
    else
        return false;
    return true;
}

GivenLink linkOf(QStringList words)
{
    GivenLink link;
    link.layer = "a";
    if (words.first().startsWith('#'))
        link.fields["key"] = words.takeFirst().mid(1);
    const QString target = words.takeFirst();
    link.fields["name"] = target.section('=', 0, 0);
    link.fields["url"] = target.section('=', 1);
    link.fields["type"] = internet;
    link.fields["para"] = QString();
    for (const char* const mark : {"startconnect", "startmobile"})
        link.fields[mark] = "0";
    for (const char* const right : {"delete", "edit"})
        link.fields[right] = "1";
    while (!words.isEmpty()) {
        const QString word = words.takeFirst();
        if (word == "in")
            link.layer = words.takeFirst();
        else if (!take(link, word))
            qFatal("unknown word \"%s\"", qUtf8Printable(word));
    }
    return link;
}

QString textOf(const LinkItems::Fields& link)
{
    QStringList words;
    if (!link.value("key").isEmpty())
        words += '#' + link.value("key");
    words += link.value("name") + '=' + link.value("url");
    if (link.value("type") == application)
        words += "app";
    if (link.value("startconnect") == "1")
        words += "connect";
    if (link.value("startmobile") == "1")
        words += "start";
    for (const char* const right : {"delete", "edit"}) {
        if (link.value(right) != "1")
            words += QString("-") + right;
    }
    return words.join(' ');
}

QString joined(const QStringList& links)
{
    return links.isEmpty() ? QString("none") : links.join(", ");
}
} // namespace

QList<LayerLink> LayerTable::Cell::layerLinks() const
{
    QList<LayerLink> list;
    for (const GivenLink& link : links)
        list.append(link);
    return list;
}

QList<LinkItems::Fields> LayerTable::Cell::fields() const
{
    QList<LinkItems::Fields> list;
    for (const GivenLink& link : links)
        list.append(link.fields);
    return list;
}

LayerTable::Cell LayerTable::read(const QString& text)
{
    Cell cell;
    if (text == "none")
        return cell;
    const QStringList parts = text.split(", ");
    for (const QString& part : parts) {
        const QStringList words = part.split(' ');
        if (words.last() == "unreadable")
            cell.unreadable.append(words.first());
        else
            cell.links.append(linkOf(words));
    }
    return cell;
}

QString LayerTable::written(const QList<GivenLink>& links)
{
    QStringList texts;
    for (const GivenLink& link : links)
        texts += textOf(link.fields) + (link.isUsers ? " own" : "") + (link.layer == "a" ? "" : " in " + link.layer);
    return joined(texts);
}

QString LayerTable::written(const QList<LinkItems::Fields>& links)
{
    QStringList texts;
    for (const LinkItems::Fields& link : links)
        texts += textOf(link);
    return joined(texts);
}
