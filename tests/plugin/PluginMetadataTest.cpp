// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the loader of Qt 5 and 6 reads from the module before it loads it; Qt 4 has nothing of the kind.

#include <QJsonObject>
#include <QPluginLoader>

#include "Test.h"

class PluginMetadataTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metadata();
};

void PluginMetadataTest::metadata()
{
    const QJsonObject data = QPluginLoader(QString::fromLocal8Bit(PLUGIN_FILE)).metaData();
    QCOMPARE(data.value("IID").toString(), "com.norvik.vellumconnect.plugin.IBasePlugin");
    QCOMPARE(data.value("className").toString(), "QuickLinkSettingPluginDlg");
}

REGISTER_TEST(PluginMetadataTest)
#include "PluginMetadataTest.moc"
