// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "InternetAddress.h"

static bool isLetter(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z')) || (c >= QLatin1Char('A') && c <= QLatin1Char('Z'));
}

static bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

/** What stands before the first colon if it has the form of a scheme, in lower case; else empty. */
static QString schemeOf(const QString& text)
{
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == QLatin1Char(':'))
            return text.left(i).toLower();
        if (!isLetter(c) && !isDigit(c) && !QString::fromLatin1("+-.").contains(c))
            return QString();
    }
    return QString();
}

/** Whether text is a port number from its beginning up to a path, query or fragment or its end. */
static bool beginsWithPort(const QString& text)
{
    int end = 0;
    while (end < text.size() && isDigit(text.at(end)))
        ++end;
    if (end < text.size() && !QString::fromLatin1("/?#").contains(text.at(end)))
        return false;
    return text.left(end).toUShort() > 0;
}

static bool isOpenedScheme(const QString& scheme)
{
    return scheme == QLatin1String("http") || scheme == QLatin1String("https") || scheme == QLatin1String("ftp");
}

/** Whether the host stays the same once written out: a browser may read a name once more, and go elsewhere. */
static bool isHostClear(const QUrl& url)
{
    return !url.host().isEmpty() && QUrl::fromEncoded(url.toEncoded()).host() == url.host();
}

QUrl InternetAddress::completed(const QString& address)
{
    QString text = address.trimmed();
    const QString scheme = schemeOf(text);
    if (!isOpenedScheme(scheme)) {
        if (!scheme.isEmpty() && !beginsWithPort(text.mid(scheme.size() + 1)))
            return QUrl();
        if (text.startsWith(QLatin1String("//")))
            text.prepend(QLatin1String("http:"));
        else if (text.startsWith(QLatin1String("ftp."), Qt::CaseInsensitive))
            text.prepend(QLatin1String("ftp://"));
        else
            text.prepend(QLatin1String("http://"));
    } else {
        // Qt 4 leaves it as it was typed, and then finds no one who opens it.
        text.replace(0, scheme.size(), scheme);
    }
    const QUrl url(text);
    return url.isValid() && isHostClear(url) ? url : QUrl();
}
