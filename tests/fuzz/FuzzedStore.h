// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>

#include "QuickLinkXmlParse.h"

/** The plug-in's store as a fuzzer uses it: over a folder of its own below the system's temporary one, without traces.
 */
namespace FuzzedStore
{
/** A store that knows nothing yet. The one before is freed with its list. */
QuickLinkXmlParse& fresh();

/** Lets a fresh store read the bytes as config.xml; no file is touched. */
QuickLinkXmlParse& read(const uint8_t* bytes, size_t size);

/** Whether the last read() stopped before the end of the bytes. */
bool hasStopped();

/** Where the store saves its links. */
QString file();

/** Lets the store write the links to its file, then read the file into its list. */
void saveAndRead(QuickLinkXmlParse& store, QuickLinkRecordList& links);

/** The text less what is no character of XML 1.0. Told without the product's help, since the product is judged by it.
 */
QString xmlCharacters(const QString& text);

/** Ends the program unless the store's list holds exactly these links, field by field. */
void requireLinks(const QuickLinkXmlParse& store, const QuickLinkRecordList& expected);
} // namespace FuzzedStore
