// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include "IBasePlugin.h"

/** An Interface that is IBasePlugin or more, with the answers of a plug-in that has nothing special about it. */
template <class Interface>
class FakeAnswers : public Interface
{
public:
    void Release() override {}
    int GetLastError() override { return 0; }
    int Init() override { return 1; }
    int GetPluginType() override { return 0; }
    int GetVersion() override { return 0x100; }
    int IsAllowRelease() override { return 1; }
    int QueryInterface(int, QObject**) override { return 0; }
    void OnDestroy() override {}
};
