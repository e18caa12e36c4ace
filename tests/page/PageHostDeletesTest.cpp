// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The host deletes its widget, and the page in it: every operation is then as if the page had never been built.

#include "PageOperations.h"
#include "QuickLinkSettingNewEditDlg.h"
#include "ShownPage.h"
#include "Test.h"

class PageHostDeletesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void likeNeverBuilt_data();
    void likeNeverBuilt();
    void nothingIsLeft_data() { stateRows(); }
    void nothingIsLeft();
    void showsAgain_data() { stateRows(); }
    void showsAgain();
    void rowRecordsAreKept_data();
    void rowRecordsAreKept();
    void cancelledPageOutlivesTheWidget();
    void frameGoes_data();
    void frameGoes();
    void widgetGoesAfterTheEnd();

private:
    static QStringList states();
    static void stateRows();
    /** Brings the page into a state and deletes what holds it, as a host may. */
    void deleteIn(const QString& state);
    /** What comes of an operation: its answer, its traces and all that the host sees. */
    QString outcome(const PageOperation& operation);

    ShownPage m_page;
};

QStringList PageHostDeletesTest::states()
{
    return QString("shown,hidden,cancelled,New open,Edit open,only page,shown twice over,table first").split(',');
}

void PageHostDeletesTest::stateRows()
{
    QTest::addColumn<QString>("state");
    for (const QString& state : states())
        QTest::newRow(qPrintable(state)) << state;
}

void PageHostDeletesTest::deleteIn(const QString& state)
{
    m_page.begin(links("a b c"));
    if (state == "hidden")
        m_page.page->HideSetting();
    else if (state == "cancelled")
        m_page.page->OnClickSettingCancelButton();
    else if (state == "New open")
        m_page.click("m_newBtn");
    else if (state == "Edit open")
        m_page.click("m_editBtn");
    else if (state == "shown twice over")
        m_page.show();
    if (state == "table first")
        delete m_page.table();
    // A cancelled page is no longer in the host's widget.
    if (state == "cancelled" || state == "only page")
        delete m_page.page->m_pageWidget;
    delete m_page.host;
}

QString PageHostDeletesTest::outcome(const PageOperation& operation)
{
    FakeHost& host = FakeHost::instance();
    const int framesBefore = host.frames.size();
    const QByteArray file = m_page.file();
    QuickLinkRecord record;
    QStringList lines;
    {
        RecordingTrace trace;
        lines.append(QString::number(operation.call(m_page.page, &record)));
        lines += trace.debugLines;
        lines += trace.warningLines.filter("sendNotifyToMenu");
    }
    for (int i = framesBefore; i < host.frames.size(); ++i)
        lines += QString("frame, parent %1, titles ").arg(host.frames.at(i).parent != nullptr) +
                 host.frames.at(i).titles.join(",");
    for (const ShownMessage& message : host.messages)
        lines += QString("message, parent %1, ").arg(message.hasParent) + message.text;
    lines += QString("%1 told, %2 look-ups, file kept: %3, edits: %4, links ")
                 .arg(m_page.told())
                 .arg(host.lookups.size())
                 .arg(m_page.file() == file)
                 .arg(m_page.page->m_isEditing) +
             m_page.listNames();
    return withoutTimes(lines.join("\n"));
}

void PageHostDeletesTest::likeNeverBuilt_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("number");
    const int count = int(sizeof operations / sizeof *operations);
    for (const QString& state : states()) {
        for (int i = 0; i < count; ++i)
            QTest::newRow(qPrintable(state + ": " + operations[i].text)) << state << i;
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

void PageHostDeletesTest::nothingIsLeft()
{
    QFETCH(QString, state);
    deleteIn(state);
    for (const PointerMember& member : membersOf(m_page.page))
        QVERIFY2(!member.object, member.name);
    QVERIFY(!m_page.page->m_nameHeaderItem);
    QVERIFY(!m_page.page->m_typeHeaderItem);
    QVERIFY(!m_page.page->m_parentWidget);
    QCOMPARE(m_page.liveFrames(), 0);
}

void PageHostDeletesTest::showsAgain()
{
    QFETCH(QString, state);
    deleteIn(state);
    QWidget other;
    QCOMPARE(m_page.page->ShowSettingDialog(&other, anyArea), 1);
    QCOMPARE(m_page.linkNames(), "a b c");
    QCOMPARE(m_page.enabledButtons(), "New Edit Delete Down");
    m_page.change("Edit");
    m_page.change("New");
    QCOMPARE(m_page.shownNames(), "x b c d");
    m_page.page->OnDestroy();
}

void PageHostDeletesTest::rowRecordsAreKept_data()
{
    QTest::addColumn<bool>("untilRebuild");
    QTest::newRow("until the rebuild") << true;
    QTest::newRow("until the end") << false;
}

void PageHostDeletesTest::rowRecordsAreKept()
{
    QFETCH(bool, untilRebuild);
    m_page.begin(links("a b"));
    m_page.addLink(1, "c");
    const RecordProbe first(m_page.recordOf(0));
    const RecordProbe last(m_page.recordOf(2));
    delete m_page.host;
    QVERIFY(!first.isFreed());
    QVERIFY(!last.isFreed());
    QWidget other;
    if (untilRebuild)
        m_page.page->ShowWindow(&other, anyArea);
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
    QCOMPARE(m_page.linkNames(), "a b");
    m_page.page->onNewBtnClick();
    QVERIFY(!m_page.frame()->parent());
    m_page.chooseType(1);
    m_page.enter("m_appNameEdit", "c");
    m_page.pressOk();
    QCOMPARE(m_page.shownNames(), "a b c");
    m_page.page->OnDestroy();
    QVERIFY(!widget);
}

void PageHostDeletesTest::frameGoes_data()
{
    QTest::addColumn<bool>("isEdit");
    QTest::newRow("New") << false;
    QTest::newRow("Edit") << true;
}

void PageHostDeletesTest::frameGoes()
{
    QFETCH(bool, isEdit);
    m_page.begin(links("a b"));
    const char* const name = isEdit ? "m_editBtn" : "m_newBtn";
    m_page.click(name);
    delete m_page.frame();
    const QuickLinkSettingNewEditDlg* const dialog = isEdit ? m_page.page->m_editDlg : m_page.page->m_newDlg;
    QVERIFY(!dialog->m_frameDialog);

    QCOMPARE(m_page.changeLanguage(), 0);
    QCOMPARE(m_page.button("m_newBtn")->text(), "de:IDS_LINK_SETTING_NEW");
    if (isEdit)
        m_page.page->m_editDlg->SetLanguage();
    QCOMPARE(m_page.liveFrames(), 0);

    m_page.click(name);
    QCOMPARE(m_page.liveFrames(), 1);
    m_page.chooseType(1);
    m_page.enter("m_appNameEdit", "c");
    m_page.pressOk();
    QCOMPARE(m_page.shownNames(), isEdit ? "c b" : "a b c");
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

REGISTER_TEST(PageHostDeletesTest)
#include "PageHostDeletesTest.moc"
