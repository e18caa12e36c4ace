// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

/**
 * The numbers and names by which host and plug-ins know each other, beside the interfaces of include/. Plug-ins have
 * them as plain values in their own sources, so none may ever change. All numbers are decimal, as in the log.
 */
namespace HostContract
{

// Codes of notifications.
const unsigned int programStarted = 258;     ///< to every plug-in: the window is up
const unsigned int languageChanged = 1024;   ///< to every plug-in, after ChangeLang
const unsigned int connectionChanged = 1536; ///< to every plug-in: a connection came up or went down
const unsigned int linksChanged = 2309;      ///< from a plug-in to the menu manager

/** How a component of the host is found by IPluginContainer::GetPlugin(), and under which name it is notified. */
struct Component {
    const char* clsid;
    int kind;
    const char* name;
};

/** Has INotifyService. */
const Component notifyService = {"8B42D0E5-1C7F-4A93-9E26-5D8F03B7C412", 8209, "NotifyService"};

/** Has INotify, for linksChanged. */
const Component menuManager = {"0F6E2B94-83D1-4C57-A6B0-91E5D27C3A48", 8210, "MenuMgrPlugin"};

/** Has IDialupUIService. */
const Component dialupService = {"61D9E3B8-7A04-4C5F-B1E7-2C6A9F08D35E", 16401, "DialupService"};

/** The plug-in that comes with the program: what it is known by, and what folder and file are named after. */
struct InstalledPlugin {
    const char* clsid;
    const char* name;
};

const InstalledPlugin quickLinks = {"3F1C7A20-5B9E-4D61-A8C4-7E2B90D4F1A6", "QuickLinkUIPlugin"};

} // namespace HostContract
