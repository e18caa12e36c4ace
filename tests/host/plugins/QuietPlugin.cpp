// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// A plug-in that has no more than it must.

#include "PlainAnswers.h"
#include "QtVersions.h"

class QuietPlugin : public QObject, public PlainAnswers<IBasePlugin>
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.norvik.vellumconnect.plugin.IBasePlugin")
    Q_INTERFACES(IBasePlugin)

public:
    QString GetCLSID() override { return QStringLiteral(SAMPLE_NAME); }
    QString GetPluginName() override { return QStringLiteral(SAMPLE_NAME); }
};

EXPORT_FAKE_PLUGIN(QuietPlugin)
#include "QuietPlugin.moc"
