// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include "QuickLinkRecord.h"

/** The attributes of a link in config.xml. Each has its text in one field of the record. */
namespace LinkAttributes
{
struct Attribute {
    const char* name;
    QString QuickLinkRecord::*field;
};

const int count = 10;

/** All of them, in the order in which they are written. */
extern const Attribute all[count];
} // namespace LinkAttributes
