// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "AddressCheck.h"

bool AddressCheck::passes(const QString& url)
{
    return url.contains(QLatin1String("http://")) || url.contains(QLatin1String("https://")) ||
           url.contains(QLatin1String("ftp")) || url.contains(QLatin1String("www."));
}
