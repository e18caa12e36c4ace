// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "AddressProblem.h"

#include <QCoreApplication>

#include "InternetAddress.h"

namespace
{
/** The context of the sentences. */
class Sentence
{
    Q_DECLARE_TR_FUNCTIONS(AddressProblem)
};

bool beginsAsAnAddress(const QString& address, Qt::CaseSensitivity letters)
{
    const char* const beginnings[] = {"http://", "https://", "ftp", "www."};
    for (const char* beginning : beginnings) {
        if (address.startsWith(QLatin1String(beginning), letters))
            return true;
    }
    return false;
}
} // namespace

QString AddressProblem::sentence(const QString& address)
{
    const QString trimmed = address.trimmed();
    if (trimmed.isEmpty())
        return Sentence::tr("This link has no address:");
    // Of another address nothing is to be mended.
    const bool isInternet = !InternetAddress::completed(trimmed).isEmpty();
    if (isInternet && trimmed.size() != address.size())
        return Sentence::tr("There are blanks before or behind this address:");
    if (isInternet && !beginsAsAnAddress(address, Qt::CaseInsensitive))
        return Sentence::tr("This address needs \"http://\", \"https://\", \"ftp://\" or \"www.\" at its beginning:");
    if (isInternet && !beginsAsAnAddress(address, Qt::CaseSensitive))
        return Sentence::tr("The beginning of this address must be written in small letters:");
    return Sentence::tr("Only Internet addresses (http, https and ftp) are opened. This is not one:");
}
