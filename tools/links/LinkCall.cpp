// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkCall.h"

#include <cstdio>

#include "LinkTexts.h"

void LinkCall::print(const QByteArray& bytes)
{
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
}

void LinkCall::say(const QString& sentence)
{
    print(plainLine(sentence).toLocal8Bit() + '\n');
}

LinkCall::Result LinkCall::refuse(const QString& sentence, Result result)
{
    std::fprintf(stderr, "vellumconnect-links: %s\n", plainLine(sentence).toLocal8Bit().constData());
    return result;
}
