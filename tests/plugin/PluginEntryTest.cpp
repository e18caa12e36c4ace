// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The two functions that the plug-in loader calls.

#include "FakeHost.h"
#include "QuickLinkSettingPluginDlg.h"
#include "Test.h"

extern "C" QObject* qt_plugin_instance();
extern "C" const char* qt_plugin_query_verification_data();

class PluginEntryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { FakeHost::instance().reset(); }
    void cleanup() { delete qt_plugin_instance(); }

    void sameObjectEveryTime();
    void objectIsThePlugin();
    void newObjectAfterDeletion();
    void objectIsNotTheSingleOne();
    void verificationText();
};

void PluginEntryTest::sameObjectEveryTime()
{
    QObject* const first = qt_plugin_instance();
    QVERIFY(first);
    QCOMPARE(qt_plugin_instance(), first);
}

void PluginEntryTest::objectIsThePlugin()
{
    QObject* const object = qt_plugin_instance();
    QVERIFY(qobject_cast<QuickLinkSettingPluginDlg*>(object));
    QCOMPARE(QByteArray(object->metaObject()->className()), "QuickLinkSettingPluginDlg");
    QVERIFY(!object->parent());
}

void PluginEntryTest::newObjectAfterDeletion()
{
    QPointer<QObject> first(qt_plugin_instance());
    delete first.data();
    QVERIFY(!first);
    QPointer<QObject> second(qt_plugin_instance());
    QVERIFY(second);
    QVERIFY(!first);
    QVERIFY(qobject_cast<QuickLinkSettingPluginDlg*>(second.data()));
    QCOMPARE(qt_plugin_instance(), second.data());
}

void PluginEntryTest::objectIsNotTheSingleOne()
{
    QObject* const object = qt_plugin_instance();
    QVERIFY(!QuickLinkSettingPluginDlg::m_pInstance);
    QuickLinkSettingPluginDlg* const single = QuickLinkSettingPluginDlg::GetInstance();
    QVERIFY(static_cast<QObject*>(single) != object);
    QCOMPARE(qt_plugin_instance(), object);
    QuickLinkSettingPluginDlg::Destroy();
}

void PluginEntryTest::verificationText()
{
    const QByteArray expected = "pattern=QT_PLUGIN_VERIFICATION_DATA\n"
                                "version=4.6.2\n"
                                "debug=false\n"
                                "buildkey=i386 linux g++-4 full-config";
    QCOMPARE(QByteArray(qt_plugin_query_verification_data()), expected);
    QCOMPARE(static_cast<const void*>(qt_plugin_query_verification_data()),
             static_cast<const void*>(qt_plugin_query_verification_data()));
}

REGISTER_TEST(PluginEntryTest)
#include "PluginEntryTest.moc"
