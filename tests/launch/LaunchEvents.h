// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtTest>

#include "LoadedPlugin.h"

/** The two events that open links by themselves. */
enum Event { ConnectionUp, HostStart };

Q_DECLARE_METATYPE(Event)

/** A link whose flag for the event is as given, while its flag for the other event says the opposite. */
inline QuickLinkRecord marked(Event event, const char* type, const char* url, const char* flag = "1")
{
    QuickLinkRecord record = makeRecord(url, type, url);
    const QString own = QString::fromUtf8(flag);
    const QString other = QLatin1String(own == "1" ? "0" : "1");
    record.startconnect = event == ConnectionUp ? own : other;
    record.startmobile = event == ConnectionUp ? other : own;
    return record;
}

/** Lets the host tell the event, with a connection that is up. The plug-in's answer. */
inline int tell(QuickLinkSettingPluginDlg* page, Event event)
{
    FakeHost::instance().isConnected = true;
    return page->Notify(event == ConnectionUp ? 1536 : 258, 0, 0);
}

/** The row "<name>, <event>" of a data-driven test whose first column is the event. */
inline QTestData& newEventRow(const char* name, Event event)
{
    const QByteArray row = QByteArray(name) + (event == ConnectionUp ? ", connection" : ", host start");
    return QTest::newRow(row.constData()) << event;
}

const Event bothEvents[] = {ConnectionUp, HostStart};
