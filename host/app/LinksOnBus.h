// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDBusAbstractAdaptor>
#include <QStringList>

class LinkKeeper;
struct LinkRewrite;
class MenuManager;
class QDBusMessage;
class RunningProgram;

/**
 * The links of the running program on the session bus, for vellumconnect-links: the interface
 * com.norvik.vellumconnect.Links of the object by which the program is reached. So a change from outside goes through
 * the program, and both never write at once. The bus is the user's own and lets nobody else ask.
 */
class LinksOnBus : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.norvik.vellumconnect.Links")

public:
    /** The links of keeper, which menu shows; both must outlive program, to which this belongs. */
    LinksOnBus(LinkKeeper& keeper, MenuManager& menu, RunningProgram& program);

public Q_SLOTS:
    // By their names on the bus.

    /** The names of the links in their order. */
    QStringList List();

    /** Opens a link as if the user had picked it. False where there is none of this name. */
    bool Open(const QString& name);

    /** Lets the file of the links be as in to, for a caller that has seen it as in from; see LinkKeeper::replace(). */
    bool Replace(const QByteArray& from, const QByteArray& to);

    /**
     * Adds a link behind the others. type is one of the words "internet", "e-mail" and "application". Where it is not
     * added, the answer to call is one of the errors below com.norvik.vellumconnect.Error: Refused, where the dialog or
     * a click would object to it, or Busy.
     */
    void Add(const QString& name, const QString& type, const QString& url, const QDBusMessage& call);

    /**
     * Removes a link, as the user may. Where it is not removed, the answer to call is one of these errors: NoSuchLink,
     * Ambiguous where several have the name, NotAllowed where the link lacks the right, or Busy.
     */
    void Remove(const QString& name, const QDBusMessage& call);

Q_SIGNALS:
    /** The links are others now, whoever changed them. */
    void Changed();

private:
    void change(const LinkRewrite& rewrite, const QDBusMessage& call);

    LinkKeeper& m_keeper;
    MenuManager& m_menu;
};
