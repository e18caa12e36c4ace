// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The object's beginning: made, Init(), its caption, the single object, its end by the destructor.

#include <QtTest>

#include <cstring>
#include <new>

#include <QAction>

#include "FakeHost.h"
#include "PluginMembers.h"
#include "TraceRecorder.h"

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

class TestLifecycle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void pointerStartsNull_data();
    void pointerStartsNull();
    void otherMembersStartEmpty();
    void initAnswersTrue_data();
    void initAnswersTrue();
    void initTakesStoreAndList();
    void initMakesTheSecondObject();
    void initKeepsTheSingleObject();
    void initAgainTakesTheNewList();
    void traceOfInit();
    void moduleName_data();
    void moduleName();
    void moduleNameBeforeInit();
    void moduleNameFollowsLanguage();
    void traceOfModuleName();
    void getInstanceMakesOne();
    void destroyDeletesTheSingleObject();
    void destructorLeavesStoreAndList();
    void destructorLeavesTheOtherObject();
    void destructorFreesTheActionMap();

private:
    QuickLinkSettingPluginDlg* m_plugin;
};

void TestLifecycle::init()
{
    FakeHost::instance().reset();
    m_plugin = new QuickLinkSettingPluginDlg;
}

void TestLifecycle::cleanup()
{
    if (m_plugin)
        m_plugin->OnDestroy();
    delete m_plugin;
    QuickLinkXmlParse::Destroy();
}

void TestLifecycle::pointerStartsNull_data()
{
    QuickLinkSettingPluginDlg plugin;
    addMemberRows(&plugin);
}

void TestLifecycle::pointerStartsNull()
{
    QFETCH(int, index);
    DirtyPlugin dirty;
    QVERIFY(!releasedMembers(dirty.plugin).at(index).pointer);
}

void TestLifecycle::otherMembersStartEmpty()
{
    DirtyPlugin dirty;
    QVERIFY(!dirty.plugin->m_parentWidget);
    QVERIFY(!dirty.plugin->m_isEditing);
    QVERIFY(dirty.plugin->m_actionMap.isEmpty());
    QVERIFY(!dirty.plugin->parent());
}

void TestLifecycle::initAnswersTrue_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("count");
    QTest::newRow("good file") << QString::fromLatin1(twoLinks) << 2;
    QTest::newRow("damaged file") << QStringLiteral("<tovadoc><menu><item name='a' visible='1'/><item") << 1;
    QTest::newRow("empty file") << QStringLiteral("") << 0;
    QTest::newRow("missing file") << QStringLiteral("missing") << 0;
    QTest::newRow("folder in the file's place") << QStringLiteral("folder") << 0;
}

void TestLifecycle::initAnswersTrue()
{
    QFETCH(QString, file);
    QFETCH(int, count);
    FakeHost& host = FakeHost::instance();
    if (file == QLatin1String("folder"))
        QVERIFY(QDir().mkpath(host.configPath()));
    else if (file != QLatin1String("missing"))
        QVERIFY(host.writeConfig(file.toUtf8()));
    QCOMPARE(m_plugin->Init(), 1);
    QVERIFY(m_plugin->m_recordList);
    QCOMPARE(static_cast<int>(m_plugin->m_recordList->size()), count);
    QCOMPARE(m_plugin->GetQuickLinkRecordSize(), count);
}

void TestLifecycle::initTakesStoreAndList()
{
    QVERIFY(!QuickLinkXmlParse::m_spInstance);
    m_plugin->Init();
    QVERIFY(m_plugin->m_store);
    QCOMPARE(m_plugin->m_store, QuickLinkXmlParse::m_spInstance);
    QVERIFY(m_plugin->m_recordList);
    QCOMPARE(m_plugin->m_recordList, m_plugin->m_store->m_recordList);
}

void TestLifecycle::initMakesTheSecondObject()
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

void TestLifecycle::initKeepsTheSingleObject()
{
    QPointer<QuickLinkSettingPluginDlg> single(QuickLinkSettingPluginDlg::GetInstance());
    m_plugin->Init();
    QVERIFY(single);
    QCOMPARE(QuickLinkSettingPluginDlg::m_pInstance, single.data());
    m_plugin->Init();
    QVERIFY(single);
    QCOMPARE(QuickLinkSettingPluginDlg::m_pInstance, single.data());
}

void TestLifecycle::initAgainTakesTheNewList()
{
    m_plugin->Init();
    QCOMPARE(m_plugin->GetQuickLinkRecordSize(), 0);
    FakeHost::instance().writeConfig(twoLinks);
    QCOMPARE(m_plugin->Init(), 1);
    QCOMPARE(m_plugin->m_recordList, m_plugin->m_store->m_recordList);
    QCOMPARE(m_plugin->GetQuickLinkRecordSize(), 2);
}

void TestLifecycle::traceOfInit()
{
    TraceRecorder trace;
    m_plugin->Init();
    const QString called = QLatin1String(TracePattern::time) + QLatin1String(": ") + QLatin1String(TracePattern::file) +
                           QLatin1String(": Init: called");
    QCOMPARE(trace.countDebug(called), 1);
    QCOMPARE(trace.countDebug(QStringLiteral("File .* is not present")), 1);
    QCOMPARE(trace.debugLines.value(0), trace.debugLines.filter(QStringLiteral(": called")).value(0));
}

void TestLifecycle::moduleName_data()
{
    QTest::addColumn<QByteArray>("element");
    QTest::addColumn<bool>("hasName");
    QTest::newRow("0") << QByteArray("<Visible>0</Visible>") << false;
    QTest::newRow("1") << QByteArray("<Visible>1</Visible>") << true;
    QTest::newRow("empty") << QByteArray("<Visible></Visible>") << true;
    QTest::newRow("blank before 0") << QByteArray("<Visible> 0</Visible>") << true;
    QTest::newRow("blank after 0") << QByteArray("<Visible>0 </Visible>") << true;
    QTest::newRow("00") << QByteArray("<Visible>00</Visible>") << true;
    QTest::newRow("false") << QByteArray("<Visible>false</Visible>") << true;
    QTest::newRow("no") << QByteArray("<Visible>no</Visible>") << true;
    QTest::newRow("no element") << QByteArray() << true;
    QTest::newRow("0 after the menu") << QByteArray("<menu/><Visible>0</Visible>") << true;
}

void TestLifecycle::moduleName()
{
    QFETCH(QByteArray, element);
    QFETCH(bool, hasName);
    FakeHost::instance().writeConfig("<tovadoc>" + element + "<menu><item name='a' visible='1'/></menu></tovadoc>");
    m_plugin->Init();
    QCOMPARE(m_plugin->GetModuleName(), hasName ? shown("IDS_SETTING_NAME") : QString());
    // The links load all the same.
    QCOMPARE(m_plugin->GetQuickLinkRecordSize(), 1);
}

void TestLifecycle::moduleNameBeforeInit()
{
    QuickLinkXmlParse::GetInstance()->m_visible = QLatin1String("0");
    QCOMPARE(m_plugin->GetModuleName(), shown("IDS_SETTING_NAME"));
    QCOMPARE(FakeHost::instance().translationContexts, QStringList(QStringLiteral("QuickLinkUIPlugin")));
}

void TestLifecycle::moduleNameFollowsLanguage()
{
    m_plugin->Init();
    QCOMPARE(m_plugin->GetModuleName(), QStringLiteral("en:IDS_SETTING_NAME"));
    FakeHost::instance().language = QLatin1String("de");
    QCOMPARE(m_plugin->GetModuleName(), QStringLiteral("de:IDS_SETTING_NAME"));
}

void TestLifecycle::traceOfModuleName()
{
    TraceRecorder trace;
    m_plugin->GetModuleName();
    const QString line = QLatin1String("Returning Module Name ") + QLatin1String(TracePattern::file) +
                         QLatin1String(": GetModuleName: ") + QLatin1String(TracePattern::line) + QLatin1String(": ");
    QCOMPARE(trace.countDebug(line), 1);
}

void TestLifecycle::getInstanceMakesOne()
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

void TestLifecycle::destroyDeletesTheSingleObject()
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

void TestLifecycle::destructorLeavesStoreAndList()
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

void TestLifecycle::destructorLeavesTheOtherObject()
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

void TestLifecycle::destructorFreesTheActionMap()
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

QTEST_MAIN(TestLifecycle)
#include "tst_lifecycle.moc"
