// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinksOnBus.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include "LinkAttributes.h"
#include "LinkFile.h"
#include "LinkKeeper.h"
#include "LinkObjection.h"
#include "LinkRewrite.h"
#include "LinkWords.h"
#include "MenuManager.h"
#include "QuickLinkRecord.h"
#include "RunningProgram.h"
#include "StoreText.h"

/** Answers a call with an error, whose sentence is for people. */
static void fail(const QDBusMessage& call, const char* error, const QString& sentence)
{
    call.setDelayedReply(true);
    QDBusConnection::sessionBus().send(
        call.createErrorReply(QLatin1String("com.norvik.vellumconnect.Error.") + QLatin1String(error), sentence));
}

LinksOnBus::LinksOnBus(LinkKeeper& keeper, MenuManager& menu, RunningProgram& program)
    : QDBusAbstractAdaptor(&program)
    , m_keeper(keeper)
    , m_menu(menu)
{
    connect(&m_keeper.guard(), &LinkGuard::stateChanged, this, &LinksOnBus::Changed);
}

QStringList LinksOnBus::List()
{
    return LinkFile::names(m_keeper.guard().current());
}

bool LinksOnBus::Open(const QString& name)
{
    return m_menu.open(name);
}

bool LinksOnBus::Replace(const QByteArray& from, const QByteArray& to)
{
    return m_keeper.replace(from, to);
}

void LinksOnBus::Add(const QString& name, const QString& type, const QString& url, const QDBusMessage& call)
{
    QuickLinkRecord link;
    link.name = StoreText::writable(name);
    link.type = LinkWords::typeOf(type);
    link.url = StoreText::writable(url);
    const QString objection = LinkObjection::to(link, List());
    if (!objection.isEmpty())
        return fail(call, "Refused", objection);
    LinkRewrite rewrite;
    LinkItems::Fields fields;
    for (const LinkAttributes::Attribute& attribute : LinkAttributes::all)
        fields.insert(QLatin1String(attribute.name), link.*attribute.field);
    rewrite.added.append(fields);
    change(rewrite, call);
}

void LinksOnBus::Remove(const QString& name, const QDBusMessage& call)
{
    const QStringList names = List();
    const int index = int(names.indexOf(name));
    if (index < 0)
        return fail(call, "NoSuchLink", QStringLiteral("There is no link \"%1\".").arg(name));
    if (names.lastIndexOf(name) != index)
        return fail(call, "Ambiguous", QStringLiteral("Several links have the name \"%1\".").arg(name));
    const LinkItems::Fields link = LinkItems::of(m_keeper.guard().current()).at(index);
    if (!isSet(link.value(QStringLiteral("delete"))))
        return fail(call, "NotAllowed", QStringLiteral("The link \"%1\" may not be deleted.").arg(name));
    LinkRewrite rewrite;
    rewrite.removed.insert(index);
    change(rewrite, call);
}

void LinksOnBus::change(const LinkRewrite& rewrite, const QDBusMessage& call)
{
    const QByteArray& links = m_keeper.guard().current();
    if (!m_keeper.replace(links, rewrite.applied(links.isEmpty() ? LinkFile::withoutLinks() : links)))
        fail(call, "Busy",
             QStringLiteral("The links cannot be changed now: their settings are open, a question waits for an answer, "
                            "or the file is another one meanwhile."));
}
