// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The store as an object: the single one, and where its file lies.

#include "CommonUtils.h"
#include "Pointers.h"
#include "QuickLinkXmlParse.h"

QuickLinkXmlParse* QuickLinkXmlParse::m_spInstance = nullptr;

QuickLinkXmlParse::QuickLinkXmlParse()
    : m_recordList(nullptr)
    , m_visible(QLatin1String("1"))
{
}

QuickLinkXmlParse* QuickLinkXmlParse::GetInstance()
{
    if (!m_spInstance)
        m_spInstance = new QuickLinkXmlParse;
    return m_spInstance;
}

void QuickLinkXmlParse::Destroy()
{
    release(m_spInstance);
}

QString QuickLinkXmlParse::configFilePath()
{
    return CommonUtils::GetPluginLibraryPath() + QLatin1String("/plugins/") + QLatin1String("QuickLinkUIPlugin") +
           QLatin1String("/") + QLatin1String("config.xml");
}
