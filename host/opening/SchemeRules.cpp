// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "SchemeRules.h"

static const struct {
    const char* scheme;
    SchemeRule rule;
} rules[] = {
    {"", SchemeRule::Path},           {"file", SchemeRule::Path},         {"http", SchemeRule::HandOver},
    {"https", SchemeRule::HandOver},  {"ftp", SchemeRule::HandOver},      {"mailto", SchemeRule::HandOver},
    {"tel", SchemeRule::HandOver},    {"javascript", SchemeRule::Refuse}, {"data", SchemeRule::Refuse},
    {"vbscript", SchemeRule::Refuse},
};

SchemeRule SchemeRules::ruleFor(const QString& scheme)
{
    for (const auto& row : rules) {
        if (scheme == QLatin1String(row.scheme))
            return row.rule;
    }
    return SchemeRule::Ask;
}

QStringList SchemeRules::known()
{
    QStringList schemes;
    for (const auto& row : rules)
        schemes.append(QLatin1String(row.scheme));
    return schemes;
}
