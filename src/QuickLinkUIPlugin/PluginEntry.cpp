// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include <QtGlobal>

#include "QtVersionSwitches.h"

#ifdef QUICKLINK_HAND_WRITTEN_ENTRY
#include <QPointer>

#include "QuickLinkSettingPluginDlg.h"

/** The loader's one object; a new one after the last was deleted. The loader owns it. */
extern "C" Q_DECL_EXPORT QObject* qt_plugin_instance()
{
    static QPointer<QObject> instance;
    if (!instance)
        instance = new QuickLinkSettingPluginDlg;
    return instance;
}

#ifndef __i386__
#ifdef QT_NO_DEBUG
#define QUICKLINK_QT_DEBUG "false"
#else
#define QUICKLINK_QT_DEBUG "true"
#endif
// The fixed text below names the 32-bit build key. The loader prefers this section, which names the real one.
__attribute__((section(".qtplugin"), used)) static const char quickLinkBuildKey[] =
    "pattern=QT_PLUGIN_VERIFICATION_DATA\n"
    "version=" QT_VERSION_STR "\n"
    "debug=" QUICKLINK_QT_DEBUG "\n"
    "buildkey=" QT_BUILD_KEY "\0";
#endif
#endif

/**
 * What the loader of Qt 4 checks before it loads the library: it looks for the text in the file and does not call
 * the function. One literal, so that the text stands whole in the read-only data. Static; not to be freed.
 */
extern "C" Q_DECL_EXPORT const char* qt_plugin_query_verification_data()
{
    return "pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=4.6.2\ndebug=false\nbuildkey=i386 linux g++-4 full-config";
}
