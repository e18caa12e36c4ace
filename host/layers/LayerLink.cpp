// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LayerLink.h"

QStringList LayerLink::names()
{
    static const QStringList names = {
        QStringLiteral("key"),         QStringLiteral("name"),   QStringLiteral("type"),
        QStringLiteral("url"),         QStringLiteral("para"),   QStringLiteral("startconnect"),
        QStringLiteral("startmobile"), QStringLiteral("delete"), QStringLiteral("edit")};
    return names;
}

bool GivenLink::operator==(const GivenLink& other) const
{
    return layer == other.layer && fields == other.fields && isUsers == other.isUsers;
}
