// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QScopedPointer>
#include <QWidget>

#include "LoadedPlugin.h"

/** A plug-in with two links whose settings page is shown in English. */
class LanguagePage
{
public:
    void make()
    {
        plugin.make();
        plugin.load(QuickLinkRecordList()
                    << makeRecord("News", "internet", "http://example.org/") << makeRecord("Mail", "email", "mailto:"));
        show();
    }

    void unload()
    {
        plugin.unload();
        parent.reset();
    }

    /** Shows the page, again in the same parent if there is one. */
    void show()
    {
        if (!parent)
            parent.reset(new QWidget);
        QRect area(0, 0, 400, 360);
        plugin.page->ShowSettingDialog(parent.data(), area);
    }

    /** The host changes its language and tells it. The plug-in's answer. */
    int changeLanguage(const char* language = "de")
    {
        FakeHost::instance().language = QLatin1String(language);
        return plugin.page->Notify(1024, 0, 0);
    }

    LoadedPlugin plugin;
    QScopedPointer<QWidget> parent;
};
