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

    void number_data();
    void number();
    void text_data();
    void text();
    void queryInterfaceFindsNothing_data();
    void queryInterfaceFindsNothing();
    void releaseOnlyTraces();

private:
    LoadedPlugin m_plugin;
};

typedef int (QuickLinkSettingPluginDlg::*NumberAnswer)();
typedef QString (QuickLinkSettingPluginDlg::*TextAnswer)();
Q_DECLARE_METATYPE(NumberAnswer)
Q_DECLARE_METATYPE(TextAnswer)

void PluginIdentityTest::number_data()
{
    QTest::addColumn<NumberAnswer>("answer");
    QTest::addColumn<int>("expected");
    typedef QuickLinkSettingPluginDlg Plugin;
    QTest::newRow("GetVersion") << static_cast<NumberAnswer>(&Plugin::GetVersion) << 257;
    QTest::newRow("GetPluginType") << static_cast<NumberAnswer>(&Plugin::GetPluginType) << 0;
    QTest::newRow("IsReady") << static_cast<NumberAnswer>(&Plugin::IsReady) << 0;
    QTest::newRow("IsAllowRelease") << static_cast<NumberAnswer>(&Plugin::IsAllowRelease) << 0;
    QTest::newRow("DoModal") << static_cast<NumberAnswer>(&Plugin::DoModal) << 0;
    QTest::newRow("GetLastError") << static_cast<NumberAnswer>(&Plugin::GetLastError) << 0;
    QTest::newRow("Init") << static_cast<NumberAnswer>(&Plugin::Init) << 1;
}

void PluginIdentityTest::number()
{
    QFETCH(NumberAnswer, answer);
    QFETCH(int, expected);
    QCOMPARE((m_plugin.page->*answer)(), expected);
    m_plugin.page->Init();
    QCOMPARE((m_plugin.page->*answer)(), expected);
    m_plugin.page->OnDestroy();
    QCOMPARE((m_plugin.page->*answer)(), expected);
}

void PluginIdentityTest::text_data()
{
    QTest::addColumn<TextAnswer>("answer");
    QTest::addColumn<QString>("expected");
    typedef QuickLinkSettingPluginDlg Plugin;
    QTest::newRow("GetPluginName") << static_cast<TextAnswer>(&Plugin::GetPluginName) << "QuickLinkUIPlugin";
    QTest::newRow("GetCLSID") << static_cast<TextAnswer>(&Plugin::GetCLSID) << "3F1C7A20-5B9E-4D61-A8C4-7E2B90D4F1A6";
}

void PluginIdentityTest::text()
{
    QFETCH(TextAnswer, answer);
    QFETCH(QString, expected);
    QCOMPARE((m_plugin.page->*answer)(), expected);
    m_plugin.page->Init();
    QCOMPARE((m_plugin.page->*answer)(), expected);
    m_plugin.page->OnDestroy();
    QCOMPARE((m_plugin.page->*answer)(), expected);
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
    QVERIFY(alive);
    QCOMPARE(QuickLinkSettingPluginDlg::m_pInstance, single);
    QVERIFY(m_plugin.page->m_store);
    QVERIFY(m_plugin.page->m_recordList);
}

REGISTER_TEST(PluginIdentityTest)
#include "PluginIdentityTest.moc"
