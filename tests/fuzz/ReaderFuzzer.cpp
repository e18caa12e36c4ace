// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Any bytes as config.xml: the reader comes to an end, keeps only links that exist for the user, and reads the same
// twice.

#include "FuzzedStore.h"
#include "Require.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    const QuickLinkXmlParse& first = FuzzedStore::read(bytes, size);
    const QuickLinkRecordList links = *first.m_recordList;
    const QString counter = first.m_currentId;
    const QString visible = first.m_visible;
    for (const QuickLinkRecord& link : links)
        require(link.visible == QLatin1String("1"), "only links that exist for the user are read");

    const QuickLinkXmlParse& second = FuzzedStore::read(bytes, size);
    FuzzedStore::requireLinks(second, links);
    require(second.m_currentId == counter, "the counter is read the same twice");
    require(second.m_visible == visible, "what shows the page is read the same twice");
    return 0;
}
