// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ElementRules.h"

#include <algorithm>

const ElementRules::Rule ElementRules::all[count] = {
    {"tovadoc", "", "type", "config", true},         {"function", "tovadoc", nullptr, nullptr, true},
    {"Visible", "function", nullptr, nullptr, true}, {"CurrentID", "function", nullptr, nullptr, true},
    {"type", "tovadoc", nullptr, nullptr, false}, // Nobody reads it.
    {"item", "type", nullptr, nullptr, false},       {"menu", "tovadoc", "parent", "quicklink", true},
    {"item", "menu", nullptr, nullptr, false},
};

const char* const ElementRules::types[typeCount][2] = {
    {" 0", "IDS_LINK_TYPE_APPLICATION"}, {" 1", "IDS_LINK_TYPE_E_MAIL"}, {" 2", "IDS_LINK_TYPE_INTERNET"}};

bool ElementRules::Rule::isNamed(const char* other) const
{
    return qstrcmp(name, other) == 0;
}

bool ElementRules::Rule::isIn(const char* other) const
{
    return qstrcmp(parent, other) == 0;
}

const ElementRules::Rule* ElementRules::of(const QString& name, const QString& parent)
{
    const auto* const found = std::find_if(std::begin(all), std::end(all), [&](const Rule& rule) {
        return name == QLatin1String(rule.name) && parent == QLatin1String(rule.parent);
    });
    return found == std::end(all) ? nullptr : found;
}

bool ElementRules::isKnown(const QString& name)
{
    return std::any_of(std::begin(all), std::end(all),
                       [&](const Rule& rule) { return name == QLatin1String(rule.name); });
}
