// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QStringList>
#include <QVariant>

// What happened to the plug-ins of a test. The application keeps it, so that it outlives them and their libraries.

/** What happened since the last takeEvents(), in order. */
inline QStringList recordedEvents()
{
    return QCoreApplication::instance()->property("events").toStringList();
}

inline void recordEvent(const QString& event)
{
    QCoreApplication::instance()->setProperty("events", recordedEvents() << event);
}

/** The recorded events, which are forgotten. */
inline QStringList takeEvents()
{
    const QStringList events = recordedEvents();
    QCoreApplication::instance()->setProperty("events", QVariant());
    return events;
}
