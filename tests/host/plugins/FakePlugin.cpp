// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The fake plug-in as a library of its own, whose name comes from the build.

#include "FakePlugin.h"
#include "QtVersions.h"

class BuiltFakePlugin : public FakePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.norvik.vellumconnect.plugin.IBasePlugin")

public:
    BuiltFakePlugin()
        : FakePlugin(QStringLiteral(FAKE_NAME))
    {
    }
};

EXPORT_FAKE_PLUGIN(BuiltFakePlugin)
#include "FakePlugin.moc"
