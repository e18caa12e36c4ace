// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Operations of the page that lack something: they leave one trace and everything as it was.

#include <QLayout>
#include <QLineEdit>
#include <QTabWidget>

#include "PageOperations.h"
#include "QuickLinkSettingNewEditDlg.h"
#include "ShownPage.h"
#include "Test.h"

class PageMissingPartsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void nothingChanges_data();
    void nothingChanges();
    void refusedDeleteNeedsNoMore_data() { addMemberRows(names("m_upBtn m_downBtn m_recordList")); }
    void refusedDeleteNeedsNoMore();
    void noStore_data();
    void noStore();
    void noMenuManager_data();
    void noMenuManager();
    void pageNotShown_data();
    void pageNotShown();
    void newLinkHasNowhereToGo();
    void partsOfTheTableAreMadeFirst_data() { addMemberRows(names("m_QLinkListTblView m_recordList")); }
    void partsOfTheTableAreMadeFirst();
    void laterOperationsRunOnAHalfBuiltPage();

private:
    void begin(const QString& state);
    /** Calls an operation while the member, the list or the record to be handed over is missing. */
    void callWithout(const QString& missing, const QString& operation);
    /** All that an operation may change. */
    QString look() const;

    ShownPage m_page;
    QList<PointerMember> m_members;
};

void PageMissingPartsTest::begin(const QString& state)
{
    m_page.beginHidden(links("a b c"));
    if (state == "shown") {
        m_page.show();
        m_page.select(1);
        // Whatever an operation would set is otherwise now.
        FakeHost::instance().language = "de";
        const char* const buttons[] = {"m_editBtn", "m_deleteBtn", "m_upBtn", "m_downBtn"};
        for (const char* button : buttons)
            m_page.button(button)->setEnabled(false);
    } else {
        m_page.page->createWidgetMemory(m_page.host);
        if (state == "initialized")
            m_page.page->initializeUI();
    }
    m_members = membersOf(m_page.page);
}

void PageMissingPartsTest::callWithout(const QString& missing, const QString& operation)
{
    QuickLinkRecord record = makeRecord("other", "application", "/other");
    const bool isMember = missing.startsWith("m_") && missing != "m_recordList";
    const QScopedPointer<NullMember> member(isMember ? new NullMember(memberOf(m_page.page, missing)) : nullptr);
    QuickLinkRecordList* const list = missing == "m_recordList" ? nullptr : m_page.page->m_recordList;
    const Replaced<QuickLinkRecordList> otherList(m_page.page->m_recordList, list);
    operationNamed(operation).call(m_page.page, missing == "record" ? nullptr : &record);
}

QString PageMissingPartsTest::look() const
{
    QString text;
    QTextStream stream(&text);
    for (const PointerMember& each : m_members) {
        stream << each.name << ' ' << each.object->objectName() << ' ' << each.object->property("text").toString();
        if (const QWidget* const widget = qobject_cast<QWidget*>(each.object))
            stream << ' ' << widget->isEnabled() << ' ' << widget->minimumWidth() << 'x' << widget->minimumHeight();
        if (const QLayout* const layout = qobject_cast<QLayout*>(each.object))
            stream << ' ' << layout->count() << ' ' << (layout->parent() != nullptr);
        stream << '\n';
    }
    const QTabWidget* const tabs = m_page.page->m_QLinkTabWidget;
    stream << tabs->count() << ' ' << tabs->tabText(0) << '\n';
    const QTableWidget* const table = m_page.page->m_QLinkListTblView;
    stream << table->columnCount() << ' ' << table->showGrid() << ' ' << table->currentRow();
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column)
            stream << ' ' << table->item(row, column)->text() << ' '
                   << table->item(row, column)->data(Qt::UserRole).toString();
    }
    for (const QuickLinkRecord& record : *m_page.page->m_recordList)
        stream << '\n' << difference(record, QuickLinkRecord());
    stream << '\n' << m_page.page->m_isEditing << m_page.file();
    stream << FakeHost::instance().notifications.size() << FakeHost::instance().lookups.size();
    stream.flush();
    return text;
}

void PageMissingPartsTest::nothingChanges_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("missing");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("traced");
    // A later check, which a step of the operation makes, is traced with that step's name.
    const char* const any = "[A-Za-z]+";
    const int ok = QMessageBox::Ok;
    const int cancel = QMessageBox::Cancel;
    const struct {
        const char *state, *operation, *missing;
        int answer;
        const char* traced;
    } rows[] = {
        {"built", "initializeUI",
         "m_pageWidget m_QLinkTabWidget m_QLinkTab m_QLinkListTblView m_launchOrderLbl m_upBtn m_downBtn m_newBtn "
         "m_editBtn m_deleteBtn m_pageLayout m_tabLayout m_buttonColumnLayout m_orderButtonsLayout",
         ok, nullptr},
        {"built", "setObjectNameDlg",
         "m_QLinkTabWidget m_QLinkTab m_launchOrderLbl m_QLinkListTblView m_upBtn m_downBtn m_newBtn m_editBtn "
         "m_deleteBtn",
         ok, nullptr},
        {"built", "setDisplayLayout",
         "m_pageLayout m_tabLayout m_orderButtonsLayout m_buttonColumnLayout m_QLinkTabWidget m_launchOrderLbl "
         "m_QLinkListTblView m_upBtn m_downBtn m_QLinkTab m_newBtn m_editBtn m_deleteBtn m_pageWidget",
         ok, nullptr},
        {"initialized", "fillTable", "m_QLinkListTblView m_recordList", ok, nullptr},
        {"shown", "setDisplayString",
         "m_launchOrderLbl m_upBtn m_downBtn m_QLinkTabWidget m_newBtn m_editBtn m_deleteBtn", ok, nullptr},
        {"shown", "populateTableRow", "record m_QLinkListTblView", ok, nullptr},
        {"shown", "enableDeleteEditButton", "m_QLinkListTblView m_deleteBtn m_editBtn", ok, nullptr},
        {"shown", "onClickQuickLinkRow", "m_QLinkListTblView m_upBtn m_downBtn", ok, nullptr},
        {"shown", "onTableSelectionChanged", "m_QLinkListTblView", ok, nullptr},
        {"shown", "AddRecord", "record m_QLinkListTblView", ok, nullptr},
        {"shown", "AddRecord", "m_recordList", ok, any},
        {"editing", "AddRecord", "record m_QLinkListTblView", ok, nullptr},
        {"editing", "AddRecord", "m_recordList", ok, "replaceRecordWithEditedRecord"},
        {"shown", "replaceRecordWithEditedRecord", "record m_QLinkListTblView m_recordList", ok, nullptr},
        {"shown", "addRecordOnUpButtonClick", "record m_QLinkListTblView m_recordList", ok, nullptr},
        {"shown", "onUpBtnClick", "m_QLinkListTblView m_recordList", ok, nullptr},
        {"shown", "ondownBtnClick", "m_QLinkListTblView m_recordList m_downBtn", ok, nullptr},
        {"shown", "onDeleteBtnClick", "m_QLinkListTblView m_editBtn m_deleteBtn", cancel, any},
        {"shown", "onDeleteBtnClick", "m_QLinkListTblView m_editBtn m_deleteBtn m_upBtn m_downBtn m_recordList", ok,
         any}};
    for (const auto& row : rows) {
        for (const QString& missing : names(row.missing))
            QTest::newRow(qPrintable(QString("%1, %2, no %3, %4")
                                         .arg(row.operation, row.state, missing, row.answer == ok ? "OK" : "Cancel")))
                << QString(row.state) << QString(row.operation) << missing << row.answer
                << QString(row.traced ? row.traced : row.operation);
    }
}

void PageMissingPartsTest::nothingChanges()
{
    QFETCH(QString, state);
    QFETCH(QString, operation);
    QFETCH(QString, missing);
    QFETCH(int, answer);
    QFETCH(QString, traced);
    begin(state == "editing" ? "shown" : state);
    m_page.page->m_isEditing = state == "editing";
    FakeHost::instance().messageAnswer = answer;
    QList<RecordProbe> probes;
    for (int row = 0; row < m_page.page->m_QLinkListTblView->rowCount(); ++row)
        probes.append(RecordProbe(m_page.recordOf(row)));
    const QString before = look();
    {
        RecordingTrace trace;
        callWithout(missing, operation);
        const bool isFirst = operation == "initializeUI";
        QCOMPARE(trace.countDebug(nullTrace(traced.toLatin1().constData())), isFirst ? 0 : 1);
        QCOMPARE(trace.countDebug("Arg is NULL.*"), isFirst ? 0 : 1);
        QCOMPARE(trace.countDebug(tracePattern("%F: initializeUI: Cell-Log UI Intialization Failed: ")),
                 isFirst ? 1 : 0);
        QCOMPARE(trace.countDebug(tracePattern("%F: populateTableRow: %T : Entered ")),
                 operation == "populateTableRow" ? 1 : 0);
        QVERIFY(operation == "AddRecord" || trace.countDebug("End of .*") == 0);
        QCOMPARE(trace.warningLines, QStringList());
    }
    QCOMPARE(look(), before);
    for (const RecordProbe& probe : probes)
        QVERIFY(!probe.isFreed());
    // Delete asks before it looks.
    QCOMPARE(FakeHost::instance().messages.size(), operation == "onDeleteBtnClick" ? 1 : 0);
    if (state == "built") {
        for (const PointerMember& each : m_members)
            QVERIFY2(!QObject::disconnect(each.object, nullptr, m_page.page, nullptr), each.name);
    }
}

void PageMissingPartsTest::refusedDeleteNeedsNoMore()
{
    QFETCH(QString, member);
    begin("shown");
    FakeHost::instance().messageAnswer = QMessageBox::Cancel;
    RecordingTrace trace;
    callWithout(member, "onDeleteBtnClick");
    QCOMPARE(trace.countDebug("Arg is NULL.*"), 0);
    QCOMPARE(m_page.told(), 1);
}

void PageMissingPartsTest::noStore_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("names");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("told");
    QTest::addColumn<int>("traces");
    QTest::newRow("New") << "New"
                         << "a b c d" << 3 << 1 << 0;
    QTest::newRow("Edit") << "Edit"
                          << "a x c" << 1 << 0 << 1;
    QTest::newRow("Delete") << "Delete"
                            << "a c" << 1 << 1 << 1;
    QTest::newRow("Up") << "Up"
                        << "b a c" << 0 << 0 << 1;
    QTest::newRow("Down") << "Down"
                          << "a c b" << 2 << 0 << 1;
}

void PageMissingPartsTest::noStore()
{
    QFETCH(QString, change);
    QFETCH(QString, names);
    QFETCH(int, row);
    QFETCH(int, told);
    QFETCH(int, traces);
    m_page.begin(links("a b c"));
    m_page.select(1);
    const QByteArray before = m_page.file();
    {
        const Replaced<QuickLinkXmlParse> store(m_page.page->m_store, nullptr);
        RecordingTrace trace;
        m_page.change(change);
        QCOMPARE(trace.countDebug(tracePattern("Arg is NULL: %T: %F: .* %L")), traces);
    }
    QCOMPARE(m_page.linkNames(), names);
    QCOMPARE(m_page.currentRow(), row);
    QCOMPARE(m_page.file(), before);
    QCOMPARE(m_page.told(), told);
    QVERIFY(!m_page.page->m_isEditing);
    if (change == "New")
        QCOMPARE(m_page.page->m_recordList->last().id, QString());
}

void PageMissingPartsTest::noMenuManager_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<bool>("hasContainer");
    QTest::addColumn<QString>("names");
    const char* const rows[][2] = {{"New", "a b d"}, {"Edit", "x b"}, {"Delete", "b"}};
    for (const char* const* row : rows) {
        QTest::newRow(qPrintable(QString(row[0]) + ", no container")) << QString(row[0]) << false << QString(row[1]);
        QTest::newRow(qPrintable(QString(row[0]) + ", no owner")) << QString(row[0]) << true << QString(row[1]);
    }
}

void PageMissingPartsTest::noMenuManager()
{
    QFETCH(QString, change);
    QFETCH(bool, hasContainer);
    QFETCH(QString, names);
    m_page.begin(links("a b"));
    const QByteArray before = m_page.file();
    FakeHost::instance().hasContainer = hasContainer;
    FakeHost::instance().hasNotifyOwner = false;
    {
        RecordingTrace trace;
        m_page.change(change);
        const char* const warning = hasContainer ? "plugin is not loaded " : "Plugin container is null ";
        QCOMPARE(trace.countWarnings(tracePattern("%F: sendNotifyToMenu: ") + warning), 1);
    }
    QCOMPARE(m_page.linkNames(), names);
    QVERIFY(m_page.file() != before);
    if (change != "Edit")
        QCOMPARE(m_page.file(), m_page.expectedFile(change == "New" ? "3" : "2"));
}

void PageMissingPartsTest::pageNotShown_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("questions");
    QTest::newRow("New") << "onNewBtnClick"
                         << "en:IDS_LINK_SETTING_NEW_TITLE" << 0;
    QTest::newRow("Edit") << "onEditBtnClick"
                          << "en:IDS_LINK_SETTING_EDIT_TITLE" << 0;
    QTest::newRow("Delete") << "onDeleteBtnClick"
                            << "" << 1;
    QTest::newRow("Up") << "onUpBtnClick"
                        << "" << 0;
    QTest::newRow("Down") << "ondownBtnClick"
                          << "" << 0;
    QTest::newRow("the end of the table") << "releaseTable"
                                          << "" << 0;
}

void PageMissingPartsTest::pageNotShown()
{
    QFETCH(QString, operation);
    QFETCH(QString, title);
    QFETCH(int, questions);
    const FakeHost& host = FakeHost::instance();
    m_page.beginHidden(links("a b c"));
    const QByteArray before = m_page.file();
    {
        RecordingTrace trace;
        operationNamed(operation).call(m_page.page, nullptr);
        const bool isLacking = operation != "onNewBtnClick" && operation != "releaseTable";
        QCOMPARE(trace.countDebug(nullTrace(operation.toLatin1().constData())), isLacking ? 1 : 0);
    }
    QCOMPARE(m_page.liveFrames(), title.isEmpty() ? 0 : 1);
    if (!title.isEmpty()) {
        QCOMPARE(host.frames.first().titles, QStringList() << title);
        QVERIFY(!m_page.frame()->parent());
    }
    QCOMPARE(host.messages.size(), questions);
    QVERIFY(questions == 0 || !host.messages.first().hasParent);
    QCOMPARE(host.notifications, QStringList());
    QCOMPARE(m_page.listNames(), "a b c");
    QCOMPARE(m_page.file(), before);
    QVERIFY(!m_page.page->m_isEditing);
    QVERIFY(!m_page.page->m_QLinkListTblView);
}

void PageMissingPartsTest::newLinkHasNowhereToGo()
{
    m_page.beginHidden(links("a"));
    const QByteArray before = m_page.file();
    m_page.page->onNewBtnClick();
    m_page.chooseType(1);
    m_page.enter("m_appNameEdit", "b");
    m_page.pressOk();
    QCOMPARE(m_page.listNames(), "a");
    QCOMPARE(m_page.file(), before);
    QVERIFY(!m_page.frame()->isVisible());
}

void PageMissingPartsTest::partsOfTheTableAreMadeFirst()
{
    QFETCH(QString, member);
    begin("initialized");
    callWithout(member, "fillTable");
    QVERIFY(m_page.page->m_nameHeaderItem && m_page.page->m_typeHeaderItem && m_page.page->m_gridDelegate);
}

void PageMissingPartsTest::laterOperationsRunOnAHalfBuiltPage()
{
    begin("built");
    callWithout("m_orderButtonsLayout", "initializeUI");
    m_page.page->fillTable();
    QCOMPARE(m_page.page->m_QLinkListTblView->rowCount(), 3);
    QCOMPARE(m_page.page->m_QLinkListTblView->item(1, 0)->text(), "b");
}

REGISTER_TEST(PageMissingPartsTest)
#include "PageMissingPartsTest.moc"
