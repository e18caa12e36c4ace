// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTemporaryDir>

#include "PluginFixture.h"
#include "Translator.h"
#include "UserFolder.h"

/** What a Host finds: two plug-ins, an empty folder of the user's own, and the texts. They outlive the Host. */
struct HostSurroundings {
    HostSurroundings()
    {
        plugins.add("FakeFirst");
        plugins.add("FakeSecond");
        UserFolder::setPath(user.path());
    }

    PluginFolder plugins;
    QTemporaryDir user;
    Translator translator;
};
