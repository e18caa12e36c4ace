// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** The host's translations. Part of libsdk. */
class Change
{
public:
    /** The text behind key in the given context and the current language; the key itself where there is none. */
    static QString tr(QString key, QString context);
};
