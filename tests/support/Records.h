// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include "QuickLinkRecord.h"

/** A record of the given type ("application", "email" or "internet") with the defaults in all other fields. */
QuickLinkRecord makeRecord(const char* name, const char* type, const char* url);

/** Empty when the two records are alike in all ten fields, else which fields differ and how. */
QString difference(const QuickLinkRecord& actual, const QuickLinkRecord& expected);

/** The same for two lists: the first record in which they differ, or their sizes. */
QString listDifference(const QuickLinkRecordList& actual, const QuickLinkRecordList& expected);

/** The file as the plug-in writes it, made here by hand: one item a record, texts escaped. */
QByteArray configDocument(const QString& visible, const QString& currentId, const QList<QuickLinkRecord>& records);
