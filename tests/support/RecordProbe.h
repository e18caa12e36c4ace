// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include "QuickLinkRecord.h"

/** Knows whether a record, which it does not own, has been freed. It marks the record's para, which no table shows. */
class RecordProbe
{
public:
    explicit RecordProbe(QuickLinkRecord* record)
        : m_mark("watched")
    {
        record->para = m_mark;
        if (m_mark.isDetached())
            qFatal("The toolkit does not share the texts of records");
    }

    bool isFreed() const { return m_mark.isDetached(); }

private:
    QString m_mark;
};
