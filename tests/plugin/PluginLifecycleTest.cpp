// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The object's beginning: made, Init(), the single object, its end by the destructor.

#include <cstring>
#include <new>

#include <QAction>

#include "FakeHost.h"
#include "PluginMembers.h"
#include "RecordingTrace.h"
#include "Test.h"

namespace
{
const char twoLinks[] = "<tovadoc><menu><item name='a' visible='1'/><item name='b' visible='1'/></menu></tovadoc>";

/** An object made in memory full of ones: a member that its constructor forgot shows them. */
class DirtyPlugin
{
public:
    DirtyPlugin()
        : m_memory(::operator new(sizeof(QuickLinkSettingPluginDlg)))
        , plugin(new (std::memset(m_memory, 0xff, sizeof(QuickLinkSettingPluginDlg))) QuickLinkSettingPluginDlg)
    {
    }

    ~DirtyPlugin()
    {
        // Its destructor frees nothing that a forgotten member could name.
        plugin->~QuickLinkSettingPluginDlg();
        ::operator delete(m_memory);
    }

private:
    DirtyPlugin(const DirtyPlugin&);
    DirtyPlugin& operator=(const DirtyPlugin&);

    void* m_memory;

public:
    QuickLinkSettingPluginDlg* const plugin;
};
} // namespace

class PluginLifecycleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void membersStartEmpty();
    void initAnswersTrue_data();
    void initAnswersTrue();
    void initTakesStoreAndList();
    void initMakesTheSecondObject();
    void initKeepsTheSingleObject();
    void initAgainTakesTheNewList();
    void traceOfInit();
    void getInstanceMakesOne();
    void destroyDeletesTheSingleObject();
    void destructorLeavesStoreAndList();
    void destructorLeavesTheOtherObject();
    void destructorForgetsTheSingleObject();
    void destructorFreesTheActionMap();

private:
    QuickLinkSettingPluginDlg* m_plugin;
};

void PluginLifecycleTest::init()
{
    FakeHost::instance().reset();
    m_plugin = new QuickLinkSettingPluginDlg;
}

void PluginLifecycleTest::cleanup()
{
    if (m_plugin)
        m_plugin->OnDestroy();
    delete m_plugin;
    QuickLinkXmlParse::Destroy();
}

void PluginLifecycleTest::membersStartEmpty()
{
    DirtyPlugin dirty;
    QCOMPARE(releasedMembersThatAre(false, dirty.plugin), QStringList());
    QVERIFY(!dirty.plugin->m_parentWidget);
    QVERIFY(!dirty.plugin->m_isEditing);
    QVERIFY(dirty.plugin->m_actionMap.isEmpty());
    QVERIFY(!dirty.plugin->parent());
}

void PluginLifecycleTest::initAnswersTrue_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("count");
    QTest::newRow("good file") << QString::fromLatin1(twoLinks) << 2;
    QTest::newRow("damaged file") << "<tovadoc><menu><item name='a' visible='1'/><item" << 1;
    QTest::newRow("empty file") << "" << 0;
    QTest::newRow("missing file") << "missing" << 0;
    QTest::newRow("folder in the file's place") << "folder" << 0;
}

void PluginLifecycleTest::initAnswersTrue()
{
    QFETCH(QString, file);
    QFETCH(int, count);
    FakeHost& host = FakeHost::instance();
    if (file == "folder")
        QVERIFY(QDir().mkpath(host.configPath()));
    else if (file != "missing")
        QVERIFY(host.writeConfig(file.toUtf8()));
    QCOMPARE(m_plugin->Init(), 1);
    QVERIFY(m_plugin->m_recordList);
    QCOMPARE(static_cast<int>(m_plugin->m_recordList->size()), count);
    QCOMPARE(m_plugin->GetQuickLinkRecordSize(), count);
}

void PluginLifecycleTest::initTakesStoreAndList()
{
    QVERIFY(!QuickLinkXmlParse::m_spInstance);
    m_plugin->Init();
    QVERIFY(m_plugin->m_store);
    QCOMPARE(m_plugin->m_store, QuickLinkXmlParse::m_spInstance);
    QVERIFY(m_plugin->m_recordList);
    QCOMPARE(m_plugin->m_recordList, m_plugin->m_store->m_recordList);
}

void PluginLifecycleTest::initMakesTheSecondObject()
{
    m_plugin->Init();
    QuickLinkSettingPluginDlg* const single = QuickLinkSettingPluginDlg::m_pInstance;
    QVERIFY(single);
    QVERIFY(single != m_plugin);
    // It is made, not initialised.
    QVERIFY(!single->m_store);
    QVERIFY(!single->m_recordList);
    QCOMPARE(single->GetQuickLinkRecordSize(), -1);
}

void PluginLifecycleTest::initKeepsTheSingleObject()
{
    QPointer<QuickLinkSettingPluginDlg> single(QuickLinkSettingPluginDlg::GetInstance());
    m_plugin->Init();
    QVERIFY(single);
    QCOMPARE(QuickLinkSettingPluginDlg::m_pInstance, single.data());
    m_plugin->Init();
    QVERIFY(single);
    QCOMPARE(QuickLinkSettingPluginDlg::m_pInstance, single.data());
}

void PluginLifecycleTest::initAgainTakesTheNewList()
{
    m_plugin->Init();
    QCOMPARE(m_plugin->GetQuickLinkRecordSize(), 0);
    FakeHost::instance().writeConfig(twoLinks);
    QCOMPARE(m_plugin->Init(), 1);
    QCOMPARE(m_plugin->m_recordList, m_plugin->m_store->m_recordList);
    QCOMPARE(m_plugin->GetQuickLinkRecordSize(), 2);
}

void PluginLifecycleTest::traceOfInit()
{
    RecordingTrace trace;
    m_plugin->Init();
    const QString called = tracePattern("%T: %F: Init: called");
    QCOMPARE(trace.countDebug(called), 1);
    QCOMPARE(trace.countDebug("File .* is not present"), 1);
    QVERIFY(trace.debugLines.first().endsWith(": Init: called"));
}

void PluginLifecycleTest::getInstanceMakesOne()
{
    QVERIFY(!QuickLinkSettingPluginDlg::m_pInstance);
    QuickLinkSettingPluginDlg* const single = QuickLinkSettingPluginDlg::GetInstance();
    QVERIFY(single);
    QVERIFY(single != m_plugin);
    QCOMPARE(QuickLinkSettingPluginDlg::m_pInstance, single);
    QCOMPARE(QuickLinkSettingPluginDlg::GetInstance(), single);
    // Made, not initialised.
    QVERIFY(!QuickLinkXmlParse::m_spInstance);
}

void PluginLifecycleTest::destroyDeletesTheSingleObject()
{
    QuickLinkSettingPluginDlg::Destroy();
    QVERIFY(!QuickLinkSettingPluginDlg::m_pInstance);
    QPointer<QuickLinkSettingPluginDlg> single(QuickLinkSettingPluginDlg::GetInstance());
    QPointer<QuickLinkSettingPluginDlg> other(m_plugin);
    QuickLinkSettingPluginDlg::Destroy();
    QVERIFY(!single);
    QVERIFY(other);
    QVERIFY(!QuickLinkSettingPluginDlg::m_pInstance);
    QuickLinkSettingPluginDlg::Destroy();
    QVERIFY(!QuickLinkSettingPluginDlg::m_pInstance);
}

void PluginLifecycleTest::destructorLeavesStoreAndList()
{
    FakeHost::instance().writeConfig(twoLinks);
    m_plugin->Init();
    QuickLinkXmlParse* const store = m_plugin->m_store;
    QuickLinkRecordList* const list = m_plugin->m_recordList;
    delete m_plugin;
    m_plugin = nullptr;
    QCOMPARE(QuickLinkXmlParse::m_spInstance, store);
    QCOMPARE(store->m_recordList, list);
    QCOMPARE(static_cast<int>(list->size()), 2);
    delete list;
    QuickLinkSettingPluginDlg::Destroy();
}

void PluginLifecycleTest::destructorLeavesTheOtherObject()
{
    m_plugin->Init();
    QPointer<QuickLinkSettingPluginDlg> single(QuickLinkSettingPluginDlg::m_pInstance);
    delete m_plugin->m_recordList;
    delete m_plugin;
    m_plugin = nullptr;
    QVERIFY(single);
    QCOMPARE(QuickLinkSettingPluginDlg::m_pInstance, single.data());
    QuickLinkSettingPluginDlg::Destroy();
}

void PluginLifecycleTest::destructorForgetsTheSingleObject()
{
    delete QuickLinkSettingPluginDlg::GetInstance();
    QVERIFY(!QuickLinkSettingPluginDlg::m_pInstance);
}

void PluginLifecycleTest::destructorFreesTheActionMap()
{
    FakeHost::instance().writeConfig(twoLinks);
    m_plugin->Init();
    QAction* const action = m_plugin->GetActionFromQuickLink(0);
    QVERIFY(action);
    // A shared copy tells whether the map that it was taken from is gone.
    QHash<QAction*, QuickLinkRecord> copy = m_plugin->m_actionMap;
    QCOMPARE(static_cast<int>(copy.size()), 1);
    m_plugin->OnDestroy();
    QVERIFY(!copy.isDetached());
    delete m_plugin;
    m_plugin = nullptr;
    QVERIFY(copy.isDetached());
}

REGISTER_TEST(PluginLifecycleTest)
#include "PluginLifecycleTest.moc"
