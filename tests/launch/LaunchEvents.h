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
    const QString other = own == "1" ? "0" : "1";
    record.startconnect = event == ConnectionUp ? own : other;
    record.startmobile = event == ConnectionUp ? other : own;
    return record;
}

/**
 * Links of the given addresses, which "|" separates, with that flag: "/..." is an application, "mailto:..." an e-mail,
 * all else of the Internet, "." there without an address. One with "-" before it is not marked.
 */
inline QuickLinkRecordList markedLinks(Event event, const char* addresses, const char* flag = "1")
{
    QuickLinkRecordList links;
    const QList<QByteArray> all = *addresses ? QByteArray(addresses).split('|') : QList<QByteArray>();
    for (const QByteArray& address : all) {
        const bool isMarked = !address.startsWith('-');
        const QByteArray url = address == "." ? QByteArray("") : address.mid(isMarked ? 0 : 1);
        const char* const type = url.startsWith('/') ? "application" : url.startsWith("mailto:") ? "email" : "internet";
        links.append(marked(event, type, url.constData(), isMarked ? flag : "0"));
    }
    return links;
}

/** "host a|desktop b" as the list that FakeHost::openings is compared with. */
inline QStringList listed(const char* openings)
{
    return *openings ? QString::fromUtf8(openings).split('|') : QStringList();
}

/** Lets the host tell the event, with a connection that is up. The plug-in's answer. */
inline int tell(QuickLinkSettingPluginDlg* page, Event event)
{
    FakeHost::instance().isConnected = true;
    return page->Notify(event == ConnectionUp ? 1536 : 258, 0, 0);
}
