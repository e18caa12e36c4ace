// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QStringList>

#include "QuickLinkRecord.h"

/**
 * Links in the formats of others. JSON has every field, by the names of docs/config-xml.md. HTML is the file of
 * bookmarks that browsers import and export, and XBEL the "XML Bookmark Exchange Language" 1.0: both have names and
 * addresses only, and folders, which become one list.
 */
namespace LinkExchange
{

/** What --format may be. */
QStringList formats();

/** The links in one of these formats, in UTF-8. */
QByteArray to(const QuickLinkRecordList& links, const QString& format);

/**
 * The links of a file in any of these formats, which is told by what is in it. False where it is in none of them. The
 * name of a bookmark is cut to what the dialog lets it have.
 */
bool from(const QByteArray& content, QuickLinkRecordList& links);

/** The address of a link as a browser takes it: with its scheme. Links with one name and such address are the same. */
QString addressOf(const QuickLinkRecord& link);

} // namespace LinkExchange
