// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The answers to the host that never change.

#include <climits>

#include "LoadedPlugin.h"
#include "Test.h"

class PluginIdentityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_plugin.make(); }
    void cleanup() { m_plugin.unload(); }

    void answersNeverChange();
    void queryInterfaceFindsNothing_data();
    void queryInterfaceFindsNothing();
    void releaseOnlyTraces();

private:
    QStringList answers();

    LoadedPlugin m_plugin;
};

QStringList PluginIdentityTest::answers()
{
    const QString numbers =
        "GetVersion %1, GetPluginType %2, IsReady %3, IsAllowRelease %4, DoModal %5, GetLastError %6";
    QuickLinkSettingPluginDlg* const plugin = m_plugin.page;
    return QStringList() << plugin->GetPluginName() << plugin->GetCLSID()
                         << numbers.arg(plugin->GetVersion())
                                .arg(plugin->GetPluginType())
                                .arg(plugin->IsReady())
                                .arg(plugin->IsAllowRelease())
                                .arg(plugin->DoModal())
                                .arg(plugin->GetLastError());
}

void PluginIdentityTest::answersNeverChange()
{
    const QStringList expected =
        QStringList() << "QuickLinkUIPlugin"
                      << "3F1C7A20-5B9E-4D61-A8C4-7E2B90D4F1A6"
                      << "GetVersion 257, GetPluginType 0, IsReady 0, IsAllowRelease 0, DoModal 0, GetLastError 0";
    QCOMPARE(answers(), expected);
    QCOMPARE(m_plugin.page->Init(), 1);
    QCOMPARE(m_plugin.page->Init(), 1);
    QCOMPARE(answers(), expected);
    m_plugin.page->OnDestroy();
    QCOMPARE(answers(), expected);
    QCOMPARE(m_plugin.page->Init(), 1);
}

void PluginIdentityTest::queryInterfaceFindsNothing_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("hasOutPointer");
    const int numbers[] = {INT_MIN, -1, 0, 1, 2, 8209, 16401, INT_MAX};
    for (const int number : numbers) {
        QTest::newRow(QByteArray::number(number).constData()) << number << true;
        QTest::newRow((QByteArray::number(number) + ", no out pointer").constData()) << number << false;
    }
}

void PluginIdentityTest::queryInterfaceFindsNothing()
{
    QFETCH(int, number);
    QFETCH(bool, hasOutPointer);
    QObject* found = this;
    QCOMPARE(m_plugin.page->QueryInterface(number, hasOutPointer ? &found : nullptr), 0);
    QCOMPARE(found, this);
}

void PluginIdentityTest::releaseOnlyTraces()
{
    m_plugin.page->Init();
    QuickLinkSettingPluginDlg* const single = QuickLinkSettingPluginDlg::m_pInstance;
    QPointer<QObject> alive(m_plugin.page);
    RecordingTrace trace;
    m_plugin.page->Release();
    QCOMPARE(trace.debugDifference(QStringList() << tracePattern("Start of %F: Release: %L: ")
                                                 << tracePattern("End of %F: Release: %L: ")),
             QString());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(alive);
    QCOMPARE(QuickLinkSettingPluginDlg::m_pInstance, single);
    QVERIFY(m_plugin.page->m_store);
    QVERIFY(m_plugin.page->m_recordList);
}

REGISTER_TEST(PluginIdentityTest)
#include "PluginIdentityTest.moc"
