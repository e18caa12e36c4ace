// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The host deletes its widget, and the page in it: every operation is then as if the page had never been built.


#include "ShownPage.h"
#include "QuickLinkSettingNewEditDlg.h"
#include "Test.h"

namespace
{
QRect anyArea(0, 0, 450, 400);

/** What a host or a signal may call; the answer where there is one. */
struct Operation {
    const char* name;
    int (*call)(QuickLinkSettingPluginDlg* page);
};

const Operation operations[] = {
    {"HideSetting",
     [](QuickLinkSettingPluginDlg* page) {
         return page->HideSetting();
     }},
    {"OnClickSettingOkButton",
     [](QuickLinkSettingPluginDlg* page) {
         return page->OnClickSettingOkButton();
     }},
    {"OnClickSettingCancelButton",
     [](QuickLinkSettingPluginDlg* page) {
         return page->OnClickSettingCancelButton();
     }},
    {"IsActiveSetting",
     [](QuickLinkSettingPluginDlg* page) {
         return page->IsActiveSetting();
     }},
    {"Hide",
     [](QuickLinkSettingPluginDlg* page) {
         return page->Hide(), 0;
     }},
    {"FitSize",
     [](QuickLinkSettingPluginDlg* page) {
         return page->FitSize(anyArea), 0;
     }},
    {"ChangeLang",
     [](QuickLinkSettingPluginDlg* page) {
         return page->ChangeLang("de");
     }},
    {"Notify language",
     [](QuickLinkSettingPluginDlg* page) {
         return page->Notify(1024, 0, 0);
     }},
    {"Notify connection",
     [](QuickLinkSettingPluginDlg* page) {
         return page->Notify(1536, 0, 0);
     }},
    {"Notify start",
     [](QuickLinkSettingPluginDlg* page) {
         return page->Notify(258, 0, 0);
     }},
    {"OnDestroy",
     [](QuickLinkSettingPluginDlg* page) {
         return page->OnDestroy(), 0;
     }},
    {"onNewBtnClick",
     [](QuickLinkSettingPluginDlg* page) {
         return page->onNewBtnClick(), 0;
     }},
    {"onEditBtnClick",
     [](QuickLinkSettingPluginDlg* page) {
         return page->onEditBtnClick(), 0;
     }},
    {"onDeleteBtnClick",
     [](QuickLinkSettingPluginDlg* page) {
         return page->onDeleteBtnClick(), 0;
     }},
    {"onUpBtnClick",
     [](QuickLinkSettingPluginDlg* page) {
         return page->onUpBtnClick(), 0;
     }},
    {"ondownBtnClick",
     [](QuickLinkSettingPluginDlg* page) {
         return page->ondownBtnClick(), 0;
     }},
    {"AddRecord",
     [](QuickLinkSettingPluginDlg* page) {
         QuickLinkRecord record;
         return page->AddRecord(&record), 0;
     }},
    {"onClickQuickLinkRow",
     [](QuickLinkSettingPluginDlg* page) {
         return page->onClickQuickLinkRow(0), 0;
     }},
    {"onTableSelectionChanged",
     [](QuickLinkSettingPluginDlg* page) {
         return page->onTableSelectionChanged(), 0;
     }},
    {"onCancelNewEditor",
     [](QuickLinkSettingPluginDlg* page) {
         return page->onCancelNewEditor(), 0;
     }},
    {"launchOnConnection",
     [](QuickLinkSettingPluginDlg* page) {
         return page->launchOnConnection(), 0;
     }},
    {"initializeUI",
     [](QuickLinkSettingPluginDlg* page) {
         return page->initializeUI(), 0;
     }},
    {"setObjectNameDlg",
     [](QuickLinkSettingPluginDlg* page) {
         return page->setObjectNameDlg(), 0;
     }},
    {"setDisplayLayout",
     [](QuickLinkSettingPluginDlg* page) {
         return page->setDisplayLayout(), 0;
     }},
    {"setDisplayString",
     [](QuickLinkSettingPluginDlg* page) {
         return page->setDisplayString(), 0;
     }},
    {"fillTable",
     [](QuickLinkSettingPluginDlg* page) {
         return page->fillTable(), 0;
     }},
    {"populateTableRow",
     [](QuickLinkSettingPluginDlg* page) {
         QuickLinkRecord record;
         return page->populateTableRow(&record, 0), 0;
     }},
    {"releaseTable",
     [](QuickLinkSettingPluginDlg* page) {
         return page->releaseTable(), 0;
     }},
    {"enableDeleteEditButton",
     [](QuickLinkSettingPluginDlg* page) {
         return page->enableDeleteEditButton(), 0;
     }},
    {"replaceRecordWithEditedRecord",
     [](QuickLinkSettingPluginDlg* page) {
         QuickLinkRecord record;
         return page->replaceRecordWithEditedRecord(&record), 0;
     }},
    {"addRecordOnUpButtonClick",
     [](QuickLinkSettingPluginDlg* page) {
         QuickLinkRecord record;
         return page->addRecordOnUpButtonClick(&record, 0), 0;
     }},
};

const char* const states[] = {"shown",     "hidden",    "cancelled, then the page", "New open",
                              "Edit open", "only page", "shown twice over",         "table first"};

/** Counts how often it is destroyed. */
class CountedItem : public QTableWidgetItem
{
public:
    explicit CountedItem(int* destructions)
        : m_destructions(destructions)
    {
    }
    ~CountedItem() override { ++*m_destructions; }

private:
    int* m_destructions;
};
} // namespace

class PageHostDeletesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void likeNeverBuilt_data();
    void likeNeverBuilt();
    void membersAreNull_data();
    void membersAreNull();
    void showsAgain_data();
    void showsAgain();
    void rowRecordsAreKept_data();
    void rowRecordsAreKept();
    void cancelledPageOutlivesTheWidget();
    void newAfterTheFrameWent_data();
    void newAfterTheFrameWent();
    void languageAfterTheFrameWent_data();
    void languageAfterTheFrameWent();
    void widgetGoesAfterTheEnd();
    void partIsForgotten_data();
    void partIsForgotten();
    void headerItemGoesOnce_data();
    void headerItemGoesOnce();
    void headerItemWithoutTableIsKept_data();
    void headerItemWithoutTableIsKept();
    void layoutWithoutWidgetIsKept_data();
    void layoutWithoutWidgetIsKept();

private:
    static void stateRows();
    /** Brings the page into a state and deletes what holds it, as a host may. */
    void deleteIn(const QString& state);
    /** What comes of an operation: its answer, its traces and all that the host sees. */
    QString outcome(const Operation& operation);
    /** Deletes what is named, or lets the plug-in do it. */
    void remove(const QString& what);

    ShownPage m_page;
};

void PageHostDeletesTest::stateRows()
{
    QTest::addColumn<QString>("state");
    for (const char* state : states)
        QTest::newRow(state) << QString::fromLatin1(state);
}

void PageHostDeletesTest::deleteIn(const QString& state)
{
    m_page.begin(links("a b c"));
    if (state == "hidden")
        m_page.page->HideSetting();
    else if (state.startsWith("cancelled"))
        m_page.page->OnClickSettingCancelButton();
    else if (state == "New open")
        m_page.click("m_newBtn");
    else if (state == "Edit open")
        m_page.click("m_editBtn");
    else if (state == "shown twice over")
        m_page.show();
    if (state == "table first")
        delete m_page.page->m_QLinkListTblView;
    if (state.startsWith("cancelled") || state == "only page")
        delete m_page.page->m_pageWidget;
    delete m_page.host;
}

QString PageHostDeletesTest::outcome(const Operation& operation)
{
    FakeHost& host = FakeHost::instance();
    const int framesBefore = host.frames.size();
    const QByteArray file = host.readConfig();
    QStringList lines;
    {
        RecordingTrace trace;
        lines.append(QString::number(operation.call(m_page.page)));
        lines += trace.debugLines;
        lines += trace.warningLines.filter("sendNotifyToMenu");
    }
    QString text = withoutTimes(lines.join("\n"));
    for (int i = framesBefore; i < host.frames.size(); ++i)
        text += QString("\nframe, parent %1, titles ").arg(host.frames.at(i).parent != nullptr) +
                host.frames.at(i).titles.join(",");
    for (const ShownMessage& message : host.messages)
        text += QString("\nmessage, parent %1, ").arg(message.hasParent) + message.text;
    text +=
        QString("\n%1 told, %2 look-ups, links ").arg(host.notifications.size()).arg(host.lookups.size());
    text += m_page.listNames();
    text +=
        QString("\nfile kept: %1, edits: %2").arg(host.readConfig() == file).arg(m_page.page->m_isEditing);
    return text;
}

void PageHostDeletesTest::likeNeverBuilt_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("number");
    const int count = int(sizeof operations / sizeof *operations);
    for (const char* state : states) {
        for (int i = 0; i < count; ++i)
            QTest::newRow(
                qPrintable(QString("%1: %2").arg(QLatin1String(state), QLatin1String(operations[i].name))))
                << QString::fromLatin1(state) << i;
    }
}

void PageHostDeletesTest::likeNeverBuilt()
{
    QFETCH(QString, state);
    QFETCH(int, number);
    m_page.beginHidden(links("a b c"));
    const QString expected = outcome(operations[number]);
    m_page.end();
    deleteIn(state);
    // An edit that nobody can finish is not part of what is compared.
    m_page.page->m_isEditing = false;
    QCOMPARE(outcome(operations[number]), expected);
}

void PageHostDeletesTest::membersAreNull_data()
{
    stateRows();
}

void PageHostDeletesTest::membersAreNull()
{
    QFETCH(QString, state);
    deleteIn(state);
    const QList<PointerMember> members = membersOf(m_page.page);
    for (const PointerMember& member : members)
        QVERIFY2(!member.object, member.name);
    QVERIFY(!m_page.page->m_nameHeaderItem);
    QVERIFY(!m_page.page->m_typeHeaderItem);
    QVERIFY(!m_page.page->m_parentWidget);
    QCOMPARE(m_page.liveFrames(), 0);
}

void PageHostDeletesTest::showsAgain_data()
{
    stateRows();
}

void PageHostDeletesTest::showsAgain()
{
    QFETCH(QString, state);
    deleteIn(state);
    QWidget other;
    QRect area(0, 0, 450, 400);
    QCOMPARE(m_page.page->ShowSettingDialog(&other, area), 1);
    QCOMPARE(m_page.disorder(), QString());
    QCOMPARE(m_page.enabledButtons(), "New Edit Delete Down");
    m_page.click("m_editBtn");
    m_page.enter("m_appNameEdit", "x");
    m_page.pressOk();
    m_page.addLink(1, "d");
    QCOMPARE(m_page.shownNames(), "x b c d");
    m_page.page->OnDestroy();
}

void PageHostDeletesTest::rowRecordsAreKept_data()
{
    QTest::addColumn<QString>("until");
    QTest::newRow("until the rebuild") << "rebuild";
    QTest::newRow("until the end") << "end";
}

void PageHostDeletesTest::rowRecordsAreKept()
{
    QFETCH(QString, until);
    m_page.begin(links("a b"));
    m_page.addLink(1, "c");
    const RecordProbe first(m_page.recordOf(0));
    const RecordProbe last(m_page.recordOf(2));
    delete m_page.host;
    QVERIFY(!first.isFreed());
    QVERIFY(!last.isFreed());
    QWidget other;
    QRect area(0, 0, 450, 400);
    if (until == "rebuild")
        m_page.page->ShowWindow(&other, area);
    else
        m_page.page->OnDestroy();
    QVERIFY(first.isFreed());
    QVERIFY(last.isFreed());
    m_page.page->OnDestroy();
}

void PageHostDeletesTest::cancelledPageOutlivesTheWidget()
{
    m_page.begin(links("a b"));
    m_page.page->OnClickSettingCancelButton();
    const QPointer<QWidget> widget = m_page.page->m_pageWidget;
    delete m_page.host;
    QVERIFY(widget);
    QVERIFY(!m_page.page->m_parentWidget);
    QCOMPARE(m_page.disorder(), QString());
    m_page.page->onNewBtnClick();
    QVERIFY(!m_page.frame()->parent());
    m_page.chooseType(1);
    m_page.enter("m_appNameEdit", "c");
    m_page.pressOk();
    QCOMPARE(m_page.shownNames(), "a b c");
    m_page.page->OnDestroy();
    QVERIFY(!widget);
}

void PageHostDeletesTest::newAfterTheFrameWent_data()
{
    QTest::addColumn<bool>("isEdit");
    QTest::newRow("New") << false;
    QTest::newRow("Edit") << true;
}

void PageHostDeletesTest::newAfterTheFrameWent()
{
    QFETCH(bool, isEdit);
    m_page.begin(links("a b"));
    const char* const name = isEdit ? "m_editBtn" : "m_newBtn";
    m_page.click(name);
    delete m_page.frame();
    QVERIFY(!(isEdit ? m_page.page->m_editDlg : m_page.page->m_newDlg)->m_frameDialog);
    m_page.click(name);
    QCOMPARE(m_page.liveFrames(), 1);
    m_page.chooseType(1);
    m_page.enter("m_appNameEdit", "c");
    m_page.pressOk();
    QCOMPARE(m_page.shownNames(), isEdit ? "c b" : "a b c");
}

void PageHostDeletesTest::languageAfterTheFrameWent_data()
{
    newAfterTheFrameWent_data();
}

void PageHostDeletesTest::languageAfterTheFrameWent()
{
    QFETCH(bool, isEdit);
    m_page.begin(links("a b"));
    m_page.click(isEdit ? "m_editBtn" : "m_newBtn");
    delete m_page.frame();
    FakeHost::instance().language = "de";
    QCOMPARE(m_page.page->Notify(1024, 0, 0), 0);
    QCOMPARE(m_page.button("m_newBtn")->text(), "de:IDS_LINK_SETTING_NEW");
    if (isEdit)
        m_page.page->m_editDlg->SetLanguage();
    QCOMPARE(m_page.liveFrames(), 0);
}

void PageHostDeletesTest::widgetGoesAfterTheEnd()
{
    m_page.begin(links("a b"));
    m_page.click("m_newBtn");
    m_page.page->OnDestroy();
    QVERIFY(m_page.host->children().isEmpty());
    QCOMPARE(m_page.liveFrames(), 0);
    delete m_page.page;
    m_page.page = nullptr;
    delete m_page.host;
}

void PageHostDeletesTest::partIsForgotten_data()
{
    QTest::addColumn<QString>("member");
    const char* const parts[] = {"m_QLinkTabWidget", "m_QLinkTab", "m_launchOrderLbl", "m_QLinkListTblView", "m_upBtn",
                                 "m_downBtn",        "m_newBtn",   "m_editBtn",        "m_deleteBtn"};
    for (const char* part : parts)
        QTest::newRow(part) << QString::fromLatin1(part);
}

void PageHostDeletesTest::partIsForgotten()
{
    QFETCH(QString, member);
    m_page.begin(links("a b"));
    const QPointer<QObject> page = m_page.page->m_pageWidget;
    delete memberOf(m_page.page, member).object;
    QVERIFY(!memberOf(m_page.page, member).object);
    QVERIFY(page);
    QCOMPARE(m_page.page->Notify(1024, 0, 0), -1);
    m_page.show();
    QVERIFY(!page);
    QCOMPARE(m_page.disorder(), QString());
    delete memberOf(m_page.page, member).object;
    m_page.page->OnDestroy();
    QVERIFY(m_page.host->children().isEmpty());
}

void PageHostDeletesTest::remove(const QString& what)
{
    if (what == "host's widget")
        delete m_page.host;
    else if (what == "page")
        delete m_page.page->m_pageWidget;
    else if (what == "tab widget")
        delete m_page.page->m_QLinkTabWidget;
    else if (what == "table")
        delete m_page.page->m_QLinkListTblView;
    else if (what == "rebuild")
        m_page.page->createWidgetMemory(m_page.host);
    else if (what == "fillTable")
        m_page.page->fillTable();
    else
        m_page.page->OnDestroy();
}

void PageHostDeletesTest::headerItemGoesOnce_data()
{
    QTest::addColumn<QString>("what");
    const char* const all[] = {"host's widget", "page", "tab widget", "table", "rebuild", "fillTable", "OnDestroy"};
    for (const char* what : all)
        QTest::newRow(what) << QString::fromLatin1(what);
}

void PageHostDeletesTest::headerItemGoesOnce()
{
    QFETCH(QString, what);
    m_page.begin(links("a b"));
    int names = 0, types = 0;
    // The table frees the items that it had.
    m_page.table()->setHorizontalHeaderItem(0, m_page.page->m_nameHeaderItem = new CountedItem(&names));
    m_page.table()->setHorizontalHeaderItem(1, m_page.page->m_typeHeaderItem = new CountedItem(&types));
    m_page.page->releaseTable();
    remove(what);
    QCOMPARE(names, 1);
    QCOMPARE(types, 1);
    const bool isMadeAgain = what == "fillTable";
    QCOMPARE(m_page.page->m_nameHeaderItem != nullptr, isMadeAgain);
    QCOMPARE(m_page.page->m_typeHeaderItem != nullptr, isMadeAgain);
    m_page.page->OnDestroy();
    QCOMPARE(names, 1);
    QCOMPARE(types, 1);
}

void PageHostDeletesTest::headerItemWithoutTableIsKept_data()
{
    QTest::addColumn<QString>("until");
    const char* const all[] = {"rebuild", "fillTable", "OnDestroy"};
    for (const char* until : all)
        QTest::newRow(until) << QString::fromLatin1(until);
}

void PageHostDeletesTest::headerItemWithoutTableIsKept()
{
    QFETCH(QString, until);
    m_page.begin(links("a b"));
    {
        // The items are made before it shows that there is nothing to fill the table with.
        const Replaced<QuickLinkRecordList> noList(m_page.page->m_recordList, nullptr);
        m_page.page->fillTable();
    }
    int destructions = 0;
    delete m_page.page->m_nameHeaderItem;
    m_page.page->m_nameHeaderItem = new CountedItem(&destructions);
    delete m_page.host;
    QVERIFY(m_page.page->m_nameHeaderItem && m_page.page->m_typeHeaderItem);
    QCOMPARE(destructions, 0);
    remove(until);
    QCOMPARE(destructions, 1);
    m_page.page->OnDestroy();
    QCOMPARE(destructions, 1);
}

void PageHostDeletesTest::layoutWithoutWidgetIsKept_data()
{
    QTest::addColumn<QString>("until");
    QTest::newRow("rebuild") << "rebuild";
    QTest::newRow("OnDestroy") << "OnDestroy";
}

void PageHostDeletesTest::layoutWithoutWidgetIsKept()
{
    QFETCH(QString, until);
    m_page.beginHidden(links("a b"));
    m_page.page->createWidgetMemory(m_page.host);
    QList<QPointer<QObject>> layouts;
    const char* const names[] = {"m_pageLayout", "m_tabLayout", "m_buttonColumnLayout", "m_orderButtonsLayout"};
    for (const char* name : names)
        layouts.append(memberOf(m_page.page, QLatin1String(name)).object);
    delete m_page.host;
    for (int i = 0; i < layouts.size(); ++i)
        QVERIFY2(layouts.at(i), names[i]);
    remove(until);
    for (int i = 0; i < layouts.size(); ++i)
        QVERIFY2(!layouts.at(i), names[i]);
    m_page.page->OnDestroy();
}

REGISTER_TEST(PageHostDeletesTest)
#include "PageHostDeletesTest.moc"
