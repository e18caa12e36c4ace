// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Any text in the fields of several links: each link is written and read back, each field less what XML cannot hold.

#include <fuzzer/FuzzedDataProvider.h>

#include "FuzzedStore.h"
#include "LinkAttributes.h"

static const int mostLinks = 6;
static const int longestField = 300; // UTF-16 units; the dialog's longest field has 261

/** Any UTF-16 units: characters, halves of them and what is none. */
static QString anyText(FuzzedDataProvider& input)
{
    const int units = input.ConsumeIntegralInRange<int>(0, longestField);
    const std::string bytes = input.ConsumeBytesAsString(2 * static_cast<size_t>(units));
    QString text;
    for (size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const int low = static_cast<uchar>(bytes[i]);
        const int high = static_cast<uchar>(bytes[i + 1]);
        text += QChar(static_cast<ushort>(high << 8 | low));
    }
    return text;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    FuzzedDataProvider input(bytes, size);
    QuickLinkXmlParse& store = FuzzedStore::fresh();
    QuickLinkRecordList links;
    QuickLinkRecordList expected;
    for (int count = input.ConsumeIntegralInRange<int>(0, mostLinks); count > 0; --count) {
        QuickLinkRecord link;
        for (const LinkAttributes::Attribute& attribute : LinkAttributes::all)
            link.*attribute.field = anyText(input);
        // Most links are to be read back, which only these are.
        if (input.ConsumeIntegralInRange<int>(0, 7) != 0)
            link.visible = QLatin1String("1");
        links.append(link);

        // The counter is empty, so it counts as 0 and a link without an id gets one less.
        if (link.id.isEmpty())
            link.id = QLatin1String("-1");
        for (const LinkAttributes::Attribute& attribute : LinkAttributes::all)
            link.*attribute.field = FuzzedStore::xmlCharacters(link.*attribute.field);
        if (link.visible == QLatin1String("1"))
            expected.append(link);
    }
    FuzzedStore::saveAndRead(store, links);
    FuzzedStore::requireLinks(store, expected);
    return 0;
}
