// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Any bytes as config.xml: what the guard takes for good, the plug-in reads whole, with the names that the guard tells;
// and what the plug-in writes is good.

#include "FuzzedStore.h"
#include "LinkFile.h"
#include "Require.h"

static QStringList namesOf(const QuickLinkXmlParse& store)
{
    QStringList names;
    for (const QuickLinkRecord& link : *store.m_recordList)
        names.append(link.name);
    return names;
}

static void requireNames(const QStringList& found, const QStringList& expected, const char* sentence)
{
    require(found == expected, sentence,
            found.join(QLatin1Char('|')) + QLatin1String(" is not ") + expected.join(QLatin1Char('|')));
}

/** A save of the links that the plug-in has, whatever was read, is taken for good and tells their names. */
static void requireSavedIsGood(QuickLinkXmlParse& store)
{
    QStringList names;
    for (const QString& name : namesOf(store))
        names.append(FuzzedStore::xmlCharacters(name));
    QuickLinkRecordList links = *store.m_recordList;
    FuzzedStore::saveAndRead(store, links);
    const LinkFile saved = LinkFile::look(FuzzedStore::file());
    require(saved.isGood(), "what the plug-in saved is good", QString::fromUtf8(saved.content));
    requireNames(LinkFile::names(saved.content), names, "the guard tells the names that were saved:");
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    const QByteArray content(reinterpret_cast<const char*>(bytes), static_cast<int>(size));
    const LinkFile file = LinkFile::ofContent(content);
    // Which the plug-in never reads.
    if (file.condition == LinkFile::TooLarge)
        return 0;
    require(file.content == content, "the look changes nothing");
    require(file.isGood() || file.condition == LinkFile::Empty || file.condition == LinkFile::Damaged,
            "bytes are good, empty or damaged");
    const QStringList names = LinkFile::names(content);
    QuickLinkXmlParse& store = FuzzedStore::read(bytes, size);
    if (file.isGood()) {
        require(!FuzzedStore::hasStopped(), "what is good is read to its end");
        requireNames(names, namesOf(store), "the guard tells the names that the plug-in reads:");
    }
    requireSavedIsGood(store);
    return 0;
}
