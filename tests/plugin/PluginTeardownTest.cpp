// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// OnDestroy(): what goes, in which order, and that it may be called again.


#include "ExtendDialog.h"
#include "FakeHost.h"
#include "PluginMembers.h"
#include "RecordingTrace.h"
#include "Test.h"

namespace
{
/** Notes the order in which objects go, and what of the plug-in's data is there still at each. */
class Witness : public QObject
{
    Q_OBJECT

public:
    struct Moment {
        bool hasRowRecords, hasList, hasStore, storeHasList;
    };

    explicit Witness(QuickLinkSettingPluginDlg* plugin)
        : m_plugin(plugin)
        , m_sharedList(*plugin->m_recordList)
    {
        for (const PluginMember& member : releasedMembers(plugin)) {
            if (member.object)
                watch(member.object, QLatin1String(member.name));
        }
    }

    void watch(QObject* object, const QString& name)
    {
        m_names.insert(object, name);
        connect(object, SIGNAL(destroyed(QObject*)), this, SLOT(note(QObject*)));
    }

    /** Where in the order the object went; -1 when it did not. */
    int place(const QString& name) const { return static_cast<int>(order.indexOf(name)); }

    QStringList order;
    QMap<QString, Moment> moments;

private Q_SLOTS:
    void note(QObject* object)
    {
        const QString name = m_names.value(object);
        order.append(name);
        QuickLinkXmlParse* const store = QuickLinkXmlParse::m_spInstance;
        const Moment moment = {!m_plugin->m_rowRecords.isEmpty(), !m_sharedList.isDetached(), store != nullptr,
                               store && store->m_recordList};
        moments.insert(name, moment);
    }

private:
    QuickLinkSettingPluginDlg* m_plugin;
    QuickLinkRecordList m_sharedList; ///< shared with the plug-in's list while that exists
    QMap<QObject*, QString> m_names;
};
} // namespace

class PluginTeardownTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void memberIsNullAfterwards_data();
    void memberIsNullAfterwards();
    void objectsAreDeleted();
    void order_data();
    void order();
    void dataGoesInItsStep_data();
    void dataGoesInItsStep();
    void dialogFramesGoToo();
    void actionMapStays();
    void secondCallDoesNothing();
    void secondCallDestroysNewStore();
    void neverInitialised();
    void withoutPage();
    void onTheSingleObjectItself();
    void afterTheHostDeletedThePage();
    void lifeMayBeginAgain();
    void trace();

private:
    void buildEverything();

    QuickLinkSettingPluginDlg* m_plugin;
    QWidget* m_window;
};

void PluginTeardownTest::init()
{
    FakeHost::instance().reset();
    FakeHost::instance().writeConfig("<tovadoc><menu><item name='a' type='IDS_LINK_TYPE_INTERNET' url='u' edit='1' "
                                     "delete='1' visible='1'/><item name='b' visible='1'/></menu></tovadoc>");
    m_plugin = new QuickLinkSettingPluginDlg;
    m_window = new QWidget;
}

void PluginTeardownTest::cleanup()
{
    m_plugin->OnDestroy();
    delete m_plugin;
    delete m_window;
}

/** Everything that the object can hold: the page with rows, both dialogs, an action. */
void PluginTeardownTest::buildEverything()
{
    m_plugin->Init();
    QRect area(0, 0, 400, 360);
    m_plugin->ShowSettingDialog(m_window, area);
    m_plugin->onNewBtnClick();
    m_plugin->onEditBtnClick();
    m_plugin->GetActionFromQuickLink(0);
}

void PluginTeardownTest::memberIsNullAfterwards_data()
{
    QuickLinkSettingPluginDlg plugin;
    addMemberRows(&plugin);
}

void PluginTeardownTest::memberIsNullAfterwards()
{
    QFETCH(int, index);
    buildEverything();
    QVERIFY(releasedMembers(m_plugin).at(index).pointer);
    m_plugin->OnDestroy();
    QVERIFY(!releasedMembers(m_plugin).at(index).pointer);
}

void PluginTeardownTest::objectsAreDeleted()
{
    buildEverything();
    QMap<QString, QPointer<QObject>> objects;
    for (const PluginMember& member : releasedMembers(m_plugin)) {
        if (member.object)
            objects.insert(QLatin1String(member.name), member.object);
    }
    QCOMPARE(static_cast<int>(objects.size()), 18);
    m_plugin->OnDestroy();
    for (auto object = objects.constBegin(); object != objects.constEnd(); ++object)
        QVERIFY2(!object.value(), qPrintable(object.key()));
}

void PluginTeardownTest::order_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    const char* const steps[][2] = {{"m_newDlg", "m_gridDelegate"},
                                    {"m_gridDelegate", "m_QLinkListTblView"},
                                    {"m_gridDelegate", "m_launchOrderLbl"},
                                    {"m_gridDelegate", "m_upBtn"},
                                    {"m_gridDelegate", "m_newBtn"},
                                    {"m_gridDelegate", "m_editDlg"},
                                    {"m_gridDelegate", "m_orderButtonsLayout"},
                                    {"m_gridDelegate", "m_buttonColumnLayout"},
                                    {"m_QLinkListTblView", "m_pInstance"},
                                    {"m_launchOrderLbl", "m_pInstance"},
                                    {"m_upBtn", "m_pInstance"},
                                    {"m_downBtn", "m_pInstance"},
                                    {"m_newBtn", "m_pInstance"},
                                    {"m_editBtn", "m_pInstance"},
                                    {"m_deleteBtn", "m_pInstance"},
                                    {"m_pageLayout", "m_pInstance"},
                                    {"m_tabLayout", "m_pInstance"},
                                    {"m_buttonColumnLayout", "m_pInstance"},
                                    {"m_orderButtonsLayout", "m_pInstance"},
                                    {"m_editDlg", "m_pInstance"},
                                    {"m_orderButtonsLayout", "m_tabLayout"},
                                    {"m_buttonColumnLayout", "m_pageLayout"},
                                    {"m_pInstance", "m_QLinkTab"},
                                    {"m_pInstance", "m_QLinkTabWidget"},
                                    {"m_QLinkTab", "m_pageWidget"},
                                    {"m_QLinkTabWidget", "m_pageWidget"}};
    for (const auto& step : steps)
        QTest::newRow(QByteArray(QByteArray(step[0]) + " before " + step[1]).constData())
            << QString::fromLatin1(step[0]) << QString::fromLatin1(step[1]);
}

void PluginTeardownTest::order()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    buildEverything();
    Witness witness(m_plugin);
    m_plugin->OnDestroy();
    QVERIFY(witness.place(first) >= 0);
    QVERIFY2(witness.place(first) < witness.place(second), qPrintable(witness.order.join(" ")));
}

void PluginTeardownTest::dataGoesInItsStep_data()
{
    QTest::addColumn<QString>("object");
    QTest::addColumn<bool>("hasRowRecords");
    QTest::addColumn<bool>("hasList");
    QTest::newRow("the New dialog") << "m_newDlg" << true << true;
    QTest::newRow("the delegate") << "m_gridDelegate" << false << true;
    QTest::newRow("the table") << "m_QLinkListTblView" << false << true;
    QTest::newRow("the Edit dialog") << "m_editDlg" << false << true;
    QTest::newRow("the single object") << "m_pInstance" << false << false;
    QTest::newRow("the page") << "m_pageWidget" << false << false;
}

void PluginTeardownTest::dataGoesInItsStep()
{
    QFETCH(QString, object);
    QFETCH(bool, hasRowRecords);
    QFETCH(bool, hasList);
    buildEverything();
    Witness witness(m_plugin);
    m_plugin->OnDestroy();
    QVERIFY(witness.moments.contains(object));
    const Witness::Moment moment = witness.moments.value(object);
    QCOMPARE(moment.hasRowRecords, hasRowRecords);
    QCOMPARE(moment.hasList, hasList);
    QVERIFY(moment.hasStore);
    // The store must not be left with the address of a freed list.
    QCOMPARE(moment.storeHasList, hasList);
    QVERIFY(!QuickLinkXmlParse::m_spInstance);
}

void PluginTeardownTest::dialogFramesGoToo()
{
    buildEverything();
    QPointer<QObject> newFrame(m_plugin->m_newDlg->m_frameDialog);
    QPointer<QObject> editFrame(m_plugin->m_editDlg->m_frameDialog);
    QVERIFY(newFrame);
    QVERIFY(editFrame);
    m_plugin->OnDestroy();
    QVERIFY(!newFrame);
    QVERIFY(!editFrame);
}

void PluginTeardownTest::actionMapStays()
{
    buildEverything();
    QCOMPARE(static_cast<int>(m_plugin->m_actionMap.size()), 1);
    m_plugin->OnDestroy();
    QCOMPARE(static_cast<int>(m_plugin->m_actionMap.size()), 1);
}

void PluginTeardownTest::secondCallDoesNothing()
{
    buildEverything();
    m_plugin->OnDestroy();
    const QByteArray file = FakeHost::instance().readConfig();
    m_plugin->OnDestroy();
    for (const PluginMember& member : releasedMembers(m_plugin))
        QVERIFY2(!member.pointer, member.name);
    QCOMPARE(FakeHost::instance().readConfig(), file);
    QCOMPARE(m_plugin->GetQuickLinkRecordSize(), -1);
}

void PluginTeardownTest::secondCallDestroysNewStore()
{
    m_plugin->Init();
    m_plugin->OnDestroy();
    QuickLinkXmlParse::GetInstance();
    m_plugin->OnDestroy();
    QVERIFY(!QuickLinkXmlParse::m_spInstance);
}

void PluginTeardownTest::neverInitialised()
{
    QPointer<QuickLinkSettingPluginDlg> single(QuickLinkSettingPluginDlg::GetInstance());
    m_plugin->OnDestroy();
    QVERIFY(!single);
    QVERIFY(!QuickLinkSettingPluginDlg::m_pInstance);
}

void PluginTeardownTest::withoutPage()
{
    m_plugin->Init();
    QuickLinkRecordList copy = *m_plugin->m_recordList;
    QPointer<QuickLinkSettingPluginDlg> single(QuickLinkSettingPluginDlg::m_pInstance);
    m_plugin->OnDestroy();
    QVERIFY(copy.isDetached());
    QVERIFY(!single);
    QVERIFY(!QuickLinkXmlParse::m_spInstance);
}

void PluginTeardownTest::onTheSingleObjectItself()
{
    QPointer<QuickLinkSettingPluginDlg> single(QuickLinkSettingPluginDlg::GetInstance());
    single->Init();
    QCOMPARE(QuickLinkSettingPluginDlg::m_pInstance, single.data());
    QVERIFY(single->m_recordList);
    single->OnDestroy();
    QVERIFY(single);
    QVERIFY(!single->m_recordList);
    QVERIFY(!QuickLinkSettingPluginDlg::m_pInstance);
    QVERIFY(!QuickLinkXmlParse::m_spInstance);
    delete single.data();
}

void PluginTeardownTest::afterTheHostDeletedThePage()
{
    buildEverything();
    delete m_window;
    m_window = nullptr;
    m_plugin->OnDestroy();
    for (const PluginMember& member : releasedMembers(m_plugin))
        QVERIFY2(!member.pointer, member.name);
    QVERIFY(m_plugin->m_rowRecords.isEmpty());
}

void PluginTeardownTest::lifeMayBeginAgain()
{
    for (int life = 0; life < 3; ++life) {
        buildEverything();
        QCOMPARE(m_plugin->GetQuickLinkRecordSize(), 2);
        QVERIFY(QuickLinkSettingPluginDlg::m_pInstance);
        m_plugin->OnDestroy();
        QCOMPARE(m_plugin->GetQuickLinkRecordSize(), -1);
    }
}

void PluginTeardownTest::trace()
{
    m_plugin->Init();
    RecordingTrace recorder;
    m_plugin->OnDestroy();
    const QString place = QLatin1String(TracePattern::file) + ": OnDestroy: " +
                          QLatin1String(TracePattern::line) + ": ";
    QCOMPARE(recorder.countDebug("Start of " + place), 1);
    QCOMPARE(recorder.countDebug("End of " + place), 1);
    QCOMPARE(recorder.warningLines, QStringList());
}

REGISTER_TEST(PluginTeardownTest)
#include "PluginTeardownTest.moc"
