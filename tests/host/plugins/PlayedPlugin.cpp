// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The played plug-in as a library of its own, whose name comes from the build.

#include "PlayedPlugin.h"
#include "QtVersions.h"

class LoadedPlayedPlugin : public PlayedPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.norvik.vellumconnect.plugin.IBasePlugin")

public:
    LoadedPlayedPlugin()
        : PlayedPlugin(QStringLiteral(SAMPLE_NAME))
    {
    }
};

EXPORT_FAKE_PLUGIN(LoadedPlayedPlugin)
#include "PlayedPlugin.moc"
