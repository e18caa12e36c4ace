// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include "FakePlugin.h"
#include "PluginFixture.h"

/** Loaded: FakeFirst and FakeSecond, then one that can do nothing more and one that is only notified. */
class FakePlugins : public PluginFixture
{
public:
    FakePlugins()
        : PluginFixture({"FakeFirst", "FakeSecond", "FakeSilent", "RecordingFirst"})
    {
        if (load().size() != 4)
            qFatal("Not every plug-in was loaded");
        takeEvents();
    }

    QObject* first() const { return container.plugins().at(0); }
    QObject* second() const { return container.plugins().at(1); }
};
