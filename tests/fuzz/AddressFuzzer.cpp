// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Any text as an Internet address: it leads nowhere, or by http, https or ftp to a host; completing it once is enough.

#include <cstddef>
#include <cstdint>

#include "InternetAddress.h"
#include "Require.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    const QString address = QString::fromUtf8(reinterpret_cast<const char*>(bytes), static_cast<int>(size));
    const QUrl url = InternetAddress::completed(address);
    if (url.isEmpty())
        return 0;
    const QString scheme = url.scheme();
    require(scheme == QLatin1String("http") || scheme == QLatin1String("https") || scheme == QLatin1String("ftp"),
            "the scheme is one of the three:", scheme);
    require(url.isValid(), "a completed address is valid", address);
    require(!url.host().isEmpty(), "a completed address has a host", address);
    // In the form in which it is handed on: one address can have several objects that are not equal.
    const QByteArray text = url.toEncoded();
    const QByteArray again = InternetAddress::completed(QString::fromUtf8(text)).toEncoded();
    require(again == text, "an address is completed once:", QString::fromUtf8(text + " becomes " + again));
    return 0;
}
