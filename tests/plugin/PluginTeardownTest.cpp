// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// OnDestroy(): what goes, in which order, and that it may be called again.

#include "PluginMembers.h"
#include "Test.h"

namespace
{
/** Notes the order in which objects go, and what of the plug-in's data is there still at each. */
class Witness : public QObject
{
    Q_OBJECT

public:
    struct Moment {
        bool isForgotten, hasRowRecords, hasList, hasStore, storeHasList;
    };

    explicit Witness(const ShownPage& shown)
        : m_members(releasedMembers(shown.page))
        , m_rowRecord(shown.recordOf(0))
        , m_sharedList(*shown.page->m_recordList)
    {
        for (const PointerMember& member : m_members) {
            if (member.object)
                watch(member.object, member.name);
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
        const Moment moment = {memberNamed(m_members, name).isNull(), !m_rowRecord.isFreed(),
                               !m_sharedList.isDetached(), store != nullptr, store && store->m_recordList};
        moments.insert(name, moment);
    }

private:
    const QList<PointerMember> m_members;
    RecordProbe m_rowRecord;
    QuickLinkRecordList m_sharedList; ///< shared with the plug-in's list while that exists
    QMap<QObject*, QString> m_names;
};
} // namespace

/** The host, or the user, selects another row while the page goes. */
class SelectingHost : public QObject
{
    Q_OBJECT

public:
    explicit SelectingHost(QTableWidget* shownTable)
        : table(shownTable)
    {
    }

    const QPointer<QTableWidget> table;

public Q_SLOTS:
    void select() { table->item(1, 0)->setSelected(true); }
};

class PluginTeardownTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void everythingIsDeleted();
    void order_data();
    void order();
    void dataGoesInItsStep_data();
    void dataGoesInItsStep();
    void eachIsForgottenBeforeItGoes();
    void freedRecordsAreNotRead();
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
    /** Everything that the object can hold: the page with rows, both dialogs, an action. */
    void buildEverything();
    void openDialogs();
    void destroy() { m_page.page->OnDestroy(); }
    QStringList leftMembers() { return releasedMembersThatAre(false, m_page.page); }

    ShownPage m_page;
};

void PluginTeardownTest::buildEverything()
{
    m_page.begin(links("a b"));
    openDialogs();
}

void PluginTeardownTest::openDialogs()
{
    m_page.page->onNewBtnClick();
    m_page.page->onEditBtnClick();
    m_page.page->GetActionFromQuickLink(0);
}

void PluginTeardownTest::everythingIsDeleted()
{
    buildEverything();
    QCOMPARE(releasedMembersThatAre(true, m_page.page), QStringList());
    QMap<QString, QPointer<QObject>> objects;
    const QList<PointerMember> members = releasedMembers(m_page.page);
    for (const PointerMember& member : members) {
        if (member.object)
            objects.insert(member.name, member.object);
    }
    QCOMPARE(static_cast<int>(objects.size()), 18);
    QCOMPARE(m_page.liveFrames(), 2);
    destroy();
    QCOMPARE(leftMembers(), QStringList());
    QCOMPARE(m_page.liveFrames(), 0);
    for (auto object = objects.constBegin(); object != objects.constEnd(); ++object)
        QVERIFY2(!object.value(), qPrintable(object.key()));
}

void PluginTeardownTest::order_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    // Each of the first before each of the second.
    const char* const steps[][2] = {
        {"m_newDlg", "m_gridDelegate"},
        {"m_gridDelegate", "m_QLinkListTblView m_launchOrderLbl m_upBtn m_newBtn m_editDlg m_orderButtonsLayout "
                           "m_buttonColumnLayout"},
        {"m_QLinkListTblView m_launchOrderLbl m_upBtn m_downBtn m_newBtn m_editBtn m_deleteBtn m_pageLayout "
         "m_tabLayout m_buttonColumnLayout m_orderButtonsLayout m_editDlg",
         "m_pInstance"},
        {"m_orderButtonsLayout", "m_tabLayout"},
        {"m_buttonColumnLayout", "m_pageLayout"},
        {"m_pInstance", "m_QLinkTab m_QLinkTabWidget"},
        {"m_QLinkTab m_QLinkTabWidget", "m_pageWidget"}};
    for (const auto& step : steps) {
        for (const QString& first : names(step[0])) {
            for (const QString& second : names(step[1]))
                QTest::newRow(qPrintable(first + " before " + second)) << first << second;
        }
    }
}

void PluginTeardownTest::order()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    buildEverything();
    Witness witness(m_page);
    destroy();
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
    Witness witness(m_page);
    destroy();
    QVERIFY(witness.moments.contains(object));
    const Witness::Moment moment = witness.moments.value(object);
    QCOMPARE(moment.hasRowRecords, hasRowRecords);
    QCOMPARE(moment.hasList, hasList);
    QVERIFY(moment.hasStore);
    // The store must not be left with the address of a freed list.
    QCOMPARE(moment.storeHasList, hasList);
    QVERIFY(!QuickLinkXmlParse::m_spInstance);
}

/** Whoever hears that an object goes may come back in. */
void PluginTeardownTest::eachIsForgottenBeforeItGoes()
{
    buildEverything();
    Witness witness(m_page);
    destroy();
    QCOMPARE(static_cast<int>(witness.moments.size()), 18);
    for (auto moment = witness.moments.constBegin(); moment != witness.moments.constEnd(); ++moment)
        QVERIFY2(moment.value().isForgotten, qPrintable(moment.key()));
}

void PluginTeardownTest::freedRecordsAreNotRead()
{
    m_page.begin(links("a b"));
    SelectingHost host(m_page.table());
    const QSignalSpy selected(m_page.table(), SIGNAL(itemSelectionChanged()));
    connect(m_page.page->m_gridDelegate, SIGNAL(destroyed()), &host, SLOT(select()));
    const RecordingTrace trace;
    destroy();
    QVERIFY(!host.table);
    QCOMPARE(static_cast<int>(selected.count()), 1);
    QCOMPARE(trace.countDebug(".*enableDeleteEditButton.*"), 0);
}

void PluginTeardownTest::actionMapStays()
{
    buildEverything();
    QCOMPARE(static_cast<int>(m_page.page->m_actionMap.size()), 1);
    destroy();
    QCOMPARE(static_cast<int>(m_page.page->m_actionMap.size()), 1);
}

void PluginTeardownTest::secondCallDoesNothing()
{
    buildEverything();
    destroy();
    const QByteArray file = FakeHost::instance().readConfig();
    destroy();
    QCOMPARE(leftMembers(), QStringList());
    QCOMPARE(FakeHost::instance().readConfig(), file);
    QCOMPARE(m_page.page->GetQuickLinkRecordSize(), -1);
}

void PluginTeardownTest::secondCallDestroysNewStore()
{
    m_page.beginHidden(links("a"));
    destroy();
    QuickLinkXmlParse::GetInstance();
    destroy();
    QVERIFY(!QuickLinkXmlParse::m_spInstance);
}

void PluginTeardownTest::neverInitialised()
{
    m_page.make();
    QPointer<QuickLinkSettingPluginDlg> single(QuickLinkSettingPluginDlg::GetInstance());
    destroy();
    QVERIFY(!single);
    QVERIFY(!QuickLinkSettingPluginDlg::m_pInstance);
}

void PluginTeardownTest::withoutPage()
{
    m_page.beginHidden(links("a b"));
    QuickLinkRecordList copy = *m_page.page->m_recordList;
    QPointer<QuickLinkSettingPluginDlg> single(QuickLinkSettingPluginDlg::m_pInstance);
    destroy();
    QVERIFY(copy.isDetached());
    QVERIFY(!single);
    QVERIFY(!QuickLinkXmlParse::m_spInstance);
}

void PluginTeardownTest::onTheSingleObjectItself()
{
    m_page.make();
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
    const RecordProbe rowRecord(m_page.recordOf(0));
    delete m_page.host;
    destroy();
    QCOMPARE(leftMembers(), QStringList());
    QVERIFY(rowRecord.isFreed());
}

void PluginTeardownTest::lifeMayBeginAgain()
{
    buildEverything();
    for (int life = 0; life < 3; ++life) {
        QCOMPARE(m_page.page->GetQuickLinkRecordSize(), 2);
        QVERIFY(QuickLinkSettingPluginDlg::m_pInstance);
        destroy();
        QCOMPARE(m_page.page->GetQuickLinkRecordSize(), -1);
        m_page.page->Init();
        m_page.show();
        openDialogs();
    }
}

void PluginTeardownTest::trace()
{
    m_page.beginHidden(links("a"));
    RecordingTrace recorder;
    destroy();
    QCOMPARE(recorder.countDebug(tracePattern("Start of %F: OnDestroy: %L: ")), 1);
    QCOMPARE(recorder.countDebug(tracePattern("End of %F: OnDestroy: %L: ")), 1);
    QCOMPARE(recorder.warningLines, QStringList());
}

REGISTER_TEST(PluginTeardownTest)
#include "PluginTeardownTest.moc"
