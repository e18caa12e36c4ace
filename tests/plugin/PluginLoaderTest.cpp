// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The built module in the hands of Qt's own plug-in loader, with the real host libraries behind it.


#include <QLibrary>
#include <QPluginLoader>
#include <QTemporaryDir>

#include "INotify.h"
#include "IQuickLinkPlugin.h"
#include "ISettingUIPlugin.h"
#include "IUIPlugin.h"
#include "Test.h"

class PluginLoaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void metadata();
    void objectHasEveryInterface_data();
    void objectHasEveryInterface();
    void objectAnswersWhoItIs();
    void sameObjectEveryTime();
    void verificationText();
    void lifeWithLinks();
    void lifeWithoutFile();
    void unloadDeletesTheObject();
    void objectDeletedByHandIsMadeAnew();

private:
    QTemporaryDir m_dataHome;
    QScopedPointer<QPluginLoader> m_loader;
};

void PluginLoaderTest::initTestCase()
{
    // The host's libraries look here for the user's folder; it must never be the real one.
    QVERIFY(m_dataHome.isValid());
    qputenv("XDG_DATA_HOME", m_dataHome.path().toLocal8Bit());
}

void PluginLoaderTest::init()
{
    m_loader.reset(new QPluginLoader(QString::fromLocal8Bit(PLUGIN_FILE)));
    QVERIFY2(m_loader->load(), qPrintable(m_loader->errorString()));
}

void PluginLoaderTest::cleanup()
{
    if (m_loader->isLoaded() && m_loader->instance())
        qobject_cast<IBasePlugin*>(m_loader->instance())->OnDestroy();
    m_loader->unload();
}

void PluginLoaderTest::metadata()
{
    const QJsonObject data = m_loader->metaData();
    QCOMPARE(data.value("IID").toString(),
             "com.norvik.vellumconnect.plugin.IBasePlugin");
    QCOMPARE(data.value("className").toString(), "QuickLinkSettingPluginDlg");
}

void PluginLoaderTest::objectHasEveryInterface_data()
{
    QTest::addColumn<QByteArray>("identifier");
    QTest::newRow("IBasePlugin") << QByteArray(qobject_interface_iid<IBasePlugin*>());
    QTest::newRow("IUIPlugin") << QByteArray(qobject_interface_iid<IUIPlugin*>());
    QTest::newRow("ISettingUIPlugin") << QByteArray(qobject_interface_iid<ISettingUIPlugin*>());
    QTest::newRow("INotify") << QByteArray(qobject_interface_iid<INotify*>());
    QTest::newRow("IQuickLinkPlugin") << QByteArray(qobject_interface_iid<IQuickLinkPlugin*>());
}

void PluginLoaderTest::objectHasEveryInterface()
{
    QFETCH(QByteArray, identifier);
    QObject* const object = m_loader->instance();
    QVERIFY2(object, qPrintable(m_loader->errorString()));
    QVERIFY(object->qt_metacast(identifier.constData()));
}

void PluginLoaderTest::objectAnswersWhoItIs()
{
    IBasePlugin* const plugin = qobject_cast<IBasePlugin*>(m_loader->instance());
    QVERIFY(plugin);
    QCOMPARE(plugin->GetPluginName(), "QuickLinkUIPlugin");
    QCOMPARE(plugin->GetCLSID(), "3F1C7A20-5B9E-4D61-A8C4-7E2B90D4F1A6");
    QCOMPARE(plugin->GetVersion(), 0x101);
    QCOMPARE(plugin->GetPluginType(), 0);
}

void PluginLoaderTest::sameObjectEveryTime()
{
    QObject* const object = m_loader->instance();
    QVERIFY(object);
    QCOMPARE(m_loader->instance(), object);
    QPluginLoader second(QString::fromLocal8Bit(PLUGIN_FILE));
    QCOMPARE(second.instance(), object);
    second.unload();
    QCOMPARE(m_loader->instance(), object);
}

void PluginLoaderTest::verificationText()
{
    QLibrary library(QString::fromLocal8Bit(PLUGIN_FILE));
    typedef const char* (*Query)();
    const Query query = reinterpret_cast<Query>(library.resolve("qt_plugin_query_verification_data"));
    QVERIFY2(query, qPrintable(library.errorString()));
    QCOMPARE(QByteArray(query()), QByteArray("pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=4.6.2\ndebug=false\n"
                                             "buildkey=i386 linux g++-4 full-config"));
    library.unload();
}

void PluginLoaderTest::lifeWithLinks()
{
    const QString folder = m_dataHome.path() + "/vellumconnect/plugins/QuickLinkUIPlugin";
    QVERIFY(QDir().mkpath(folder));
    QFile file(folder + "/config.xml");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<tovadoc><menu><item name='a' visible='1'/><item name='b' visible='1'/></menu></tovadoc>");
    file.close();
    QObject* const object = m_loader->instance();
    IBasePlugin* const plugin = qobject_cast<IBasePlugin*>(object);
    IQuickLinkPlugin* const links = qobject_cast<IQuickLinkPlugin*>(object);
    QCOMPARE(plugin->Init(), 1);
    QCOMPARE(links->GetQuickLinkRecordSize(), 2);
    QVERIFY(links->GetActionFromQuickLink(1));
    QVERIFY(!qobject_cast<ISettingUIPlugin*>(object)->GetModuleName().isEmpty());
    plugin->OnDestroy();
    QCOMPARE(links->GetQuickLinkRecordSize(), -1);
    QVERIFY(file.remove());
}

void PluginLoaderTest::lifeWithoutFile()
{
    QObject* const object = m_loader->instance();
    QCOMPARE(qobject_cast<IBasePlugin*>(object)->Init(), 1);
    QCOMPARE(qobject_cast<IQuickLinkPlugin*>(object)->GetQuickLinkRecordSize(), 0);
}

void PluginLoaderTest::unloadDeletesTheObject()
{
    QPointer<QObject> object(m_loader->instance());
    QVERIFY(object);
    qobject_cast<IBasePlugin*>(object.data())->Init();
    qobject_cast<IBasePlugin*>(object.data())->OnDestroy();
    QVERIFY2(m_loader->unload(), qPrintable(m_loader->errorString()));
    QVERIFY(!object);
    QVERIFY(!m_loader->isLoaded());
}

void PluginLoaderTest::objectDeletedByHandIsMadeAnew()
{
    QPointer<QObject> first(m_loader->instance());
    delete first.data();
    QPointer<QObject> second(m_loader->instance());
    QVERIFY(!first);
    QVERIFY(second);
    QVERIFY(qobject_cast<IBasePlugin*>(second.data()));
}

REGISTER_TEST(PluginLoaderTest)
#include "PluginLoaderTest.moc"
