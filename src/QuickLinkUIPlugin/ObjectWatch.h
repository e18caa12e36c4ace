// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

/**
 * Tells its owner at once when a watched object goes, whoever deletes it.
 *
 * The page and the New/Edit dialog build their widgets inside widgets of the host, which may delete those at
 * any time. Their own lists of slots are fixed, so the slot for it is here.
 *
 * Watch every object that is pointed at, not its parent alone: a widget of Qt 4 says that it goes after its children
 * went, one of Qt 5 and 6 before.
 */
class ObjectWatch : public QObject
{
    Q_OBJECT

public:
    /** What to call: the owner as given to the constructor, and the object that goes (no longer of its class). */
    typedef void (*Callback)(void* owner, QObject* object);

    /** owner is not owned and must outlive the watch, which is best a member of it. */
    ObjectWatch(void* owner, Callback gone);

    /** Watches object from now on, which stays its owner's. null is ignored; watching twice tells once. */
    void watch(QObject* object);

private Q_SLOTS:
    void onDestroyed(QObject* object);

private:
    void* m_owner;
    Callback m_gone;
};
