// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// A plug-in that has no more than it must.

#include "FakeAnswers.h"
#include "QtVersions.h"

class FakeSilentPlugin : public QObject, public FakeAnswers<IBasePlugin>
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.norvik.vellumconnect.plugin.IBasePlugin")
    Q_INTERFACES(IBasePlugin)

public:
    QString GetCLSID() override { return QStringLiteral(FAKE_NAME); }
    QString GetPluginName() override { return QStringLiteral(FAKE_NAME); }
};

EXPORT_FAKE_PLUGIN(FakeSilentPlugin)
#include "FakeSilentPlugin.moc"
