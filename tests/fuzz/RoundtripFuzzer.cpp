// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Any bytes as config.xml: what is read from them is written and read back as it was.

#include "FuzzedStore.h"
#include "LinkAttributes.h"
#include "Require.h"

/** What the file says of a link that has no id: that of the link added last. */
static QString idOfUnnumbered(const QString& counter)
{
    return QString::number(static_cast<qint64>(static_cast<quint64>(counter.toLongLong()) - 1));
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    QuickLinkXmlParse& store = FuzzedStore::read(bytes, size);
    QuickLinkRecordList links = *store.m_recordList;
    QuickLinkRecordList expected = links;
    for (QuickLinkRecord& link : expected) {
        if (link.id.isEmpty())
            link.id = idOfUnnumbered(store.m_currentId);
        // A file in UTF-16 can hold halves of surrogate pairs.
        for (const LinkAttributes::Attribute& attribute : LinkAttributes::all)
            link.*attribute.field = FuzzedStore::xmlCharacters(link.*attribute.field);
    }
    // The counter is text between tags, where the toolkit writes a carriage return as it is, and a file that is read in
    // text mode has none.
    const QString counter = FuzzedStore::xmlCharacters(store.m_currentId).remove(QLatin1Char('\r'));

    FuzzedStore::saveAndRead(store, links);
    FuzzedStore::requireLinks(store, expected);
    require(store.m_currentId == counter, "the counter is read as it was written", store.m_currentId);
    require(store.m_visible == QLatin1String("1"), "a save shows the page again", store.m_visible);
    return 0;
}
