// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkTarget.h"

#include <QDesktopServices>
#include <QUrl>

#include "QuickLinkRecord.h"

void openTarget(const QuickLinkRecord& record)
{
    QDesktopServices::openUrl(QUrl(record.url));
}
