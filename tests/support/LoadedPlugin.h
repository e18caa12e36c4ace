// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaType>

#include "FakeHost.h"
#include "QuickLinkRecord.h"
#include "QuickLinkSettingPluginDlg.h"
#include "QuickLinkXmlParse.h"
#include "RecordingTrace.h"
#include "Records.h"

Q_DECLARE_METATYPE(QuickLinkRecord)
DECLARE_LIST_METATYPE(QuickLinkRecordList)

/** The plug-in object of one test: make() in init(), unload() in cleanup(). Only for tests that see private members. */
class LoadedPlugin
{
public:
    LoadedPlugin()
        : page(nullptr)
    {
    }

    /** A fresh host and the plug-in object as the loader makes it, without Init(). */
    void make()
    {
        FakeHost::instance().reset();
        page = new QuickLinkSettingPluginDlg;
    }

    /** Init() without a file, then exactly these links in the list, hidden ones included. */
    void load(const QuickLinkRecordList& records)
    {
        page->Init();
        *page->m_recordList = records;
    }

    /** What the host does at its end. A test may have called OnDestroy() before. */
    void unload()
    {
        if (page)
            page->OnDestroy();
        delete page;
        page = nullptr;
        QuickLinkXmlParse::Destroy();
    }

    QuickLinkSettingPluginDlg* page;
};
