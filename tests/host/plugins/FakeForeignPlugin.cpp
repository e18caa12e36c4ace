// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// A plug-in of the toolkit that has none of the host's interfaces, whatever its metadata claims.

#include <QObject>
#include <QtPlugin>

#include "QtVersions.h"

class FakeForeignPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.norvik.vellumconnect.plugin.IBasePlugin")
};

EXPORT_FAKE_PLUGIN(FakeForeignPlugin)
#include "FakeForeignPlugin.moc"
