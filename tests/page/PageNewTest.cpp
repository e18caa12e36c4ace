// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The New button: the dialog that it opens and the link that comes of it.

#include <QLineEdit>

#include "QuickLinkSettingNewEditDlg.h"
#include "ShownPage.h"
#include "Test.h"

class PageNewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void dialogOpens();
    void dialogTitle_data();
    void dialogTitle();
    void dialogIsInNewMode();
    void dialogSignals_data();
    void dialogSignals();
    void secondNewReplacesTheDialog();
    void newDoesNotTouchTheEditDialog();
    void newEndsEditing();
    void linkOfEachType_data();
    void linkOfEachType();
    void fourthRow();
    void firstLinkGetsId0();
    void secondLinkGetsTheNextId();
    void idComesBackOnlyInTheList();
    void rowKeepsTheDialogsObject();
    void listIsTakenAgain();
    void fileIsWrittenBeforeTheMenuIsTold();
    void menuIsToldOnce();
    void tableGetsTheFocus();
    void newestLinkCanBeMovedAtOnce();
    void linkAfterALinkInTheSameDialog();
    void takenNameIsRefused();
    void cancel();
    void closingTheFrame();
    void emittedWhileEditingReplaces();
    void hiddenLinksGoAtTheReRead();
    void editedLinksShareTheNewId();

private:
    ShownPage m_page;
};

void PageNewTest::dialogOpens()
{
    m_page.begin(links("a b"));
    m_page.click("m_newBtn");
    QCOMPARE(FakeHost::instance().frames.size(), 1);
    QVERIFY(m_page.frame()->isVisible());
    QCOMPARE(m_page.frame()->parentWidget(), m_page.host.data());
    QCOMPARE(m_page.page->m_newDlg->m_frameDialog, m_page.frame());
    QVERIFY(!m_page.page->m_editDlg);
    QCOMPARE(m_page.inDialog<QLineEdit>("m_appNameEdit")->text(), QString());
    QCOMPARE(m_page.shownNames(), "a b");
}

void PageNewTest::dialogTitle_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("en") << "en";
    QTest::newRow("de") << "de";
}

void PageNewTest::dialogTitle()
{
    QFETCH(QString, language);
    m_page.begin(links("a"));
    FakeHost::instance().language = language;
    m_page.click("m_newBtn");
    QCOMPARE(FakeHost::instance().frames.first().titles, QStringList() << language + ":IDS_LINK_SETTING_NEW_TITLE");
}

void PageNewTest::dialogIsInNewMode()
{
    m_page.begin(links("a"));
    m_page.click("m_newBtn");
    QVERIFY(!m_page.page->m_newDlg->m_isEdit);
    QCOMPARE(m_page.page->m_newDlg->m_editedName, QString());
    QVERIFY(!m_page.page->m_isEditing);
}

void PageNewTest::dialogSignals_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QByteArray>("slot");
    QTest::newRow("addRecord") << QByteArray(SIGNAL(addRecord(QuickLinkRecord*)))
                               << QByteArray(SLOT(AddRecord(QuickLinkRecord*)));
    QTest::newRow("cancelNewButton") << QByteArray(SIGNAL(cancelNewButton())) << QByteArray(SLOT(onCancelNewEditor()));
}

void PageNewTest::dialogSignals()
{
    QFETCH(QByteArray, signal);
    QFETCH(QByteArray, slot);
    m_page.begin(links("a"));
    m_page.click("m_newBtn");
    m_page.click("m_editBtn");
    QuickLinkSettingNewEditDlg* const dialogs[] = {m_page.page->m_newDlg, m_page.page->m_editDlg};
    for (QuickLinkSettingNewEditDlg* dialog : dialogs) {
        QCOMPARE(dialog->receivers(signal.constData()), 1);
        QVERIFY(QObject::disconnect(dialog, signal.constData(), m_page.page, slot.constData()));
    }
}

void PageNewTest::secondNewReplacesTheDialog()
{
    m_page.begin(links("a"));
    m_page.click("m_newBtn");
    const QPointer<QObject> first = m_page.page->m_newDlg;
    const QPointer<QWidget> firstFrame = m_page.frame();
    m_page.enter("m_appNameEdit", "half typed");
    m_page.page->onNewBtnClick();
    QVERIFY(!first);
    QVERIFY(!firstFrame);
    QCOMPARE(m_page.liveFrames(), 1);
    QVERIFY(m_page.page->m_newDlg);
    QCOMPARE(m_page.inDialog<QLineEdit>("m_appNameEdit")->text(), QString());
}

void PageNewTest::newDoesNotTouchTheEditDialog()
{
    m_page.begin(links("a"));
    m_page.click("m_editBtn");
    const QPointer<QuickLinkSettingNewEditDlg> edit = m_page.page->m_editDlg;
    m_page.page->onNewBtnClick();
    QVERIFY(edit);
    QCOMPARE(m_page.page->m_editDlg, edit.data());
    QVERIFY(m_page.page->m_newDlg != edit.data());
    QCOMPARE(m_page.liveFrames(), 2);
}

void PageNewTest::newEndsEditing()
{
    m_page.begin(links("a"));
    m_page.click("m_editBtn");
    QVERIFY(m_page.page->m_isEditing);
    m_page.page->onNewBtnClick();
    QVERIFY(!m_page.page->m_isEditing);
}

void PageNewTest::linkOfEachType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("url");
    QTest::newRow("application") << 0 << "IDS_LINK_TYPE_APPLICATION" << existingFile() << existingFile();
    QTest::newRow("e-mail") << 1 << "IDS_LINK_TYPE_E-MAIL" << QString() << "mailto:";
    QTest::newRow("Internet") << 2 << "IDS_LINK_TYPE_INTERNET"
                              << "www.example.org/?a=1&b=\"2\""
                              << "www.example.org/?a=1&b=\"2\"";
}

void PageNewTest::linkOfEachType()
{
    QFETCH(int, type);
    QFETCH(QString, key);
    QFETCH(QString, typed);
    QFETCH(QString, url);
    m_page.begin(links("a"));
    m_page.addLink(type, "R&D <news>", typed);
    QuickLinkRecord expected = makeRecord("R&D <news>", key.toLatin1().constData(), url.toUtf8().constData());
    expected.id = "1";
    QCOMPARE(m_page.page->m_recordList->size(), 2);
    QCOMPARE(difference(m_page.page->m_recordList->at(1), expected), QString());
    QCOMPARE(m_page.table()->item(1, 0)->text(), "R&D <news>");
    QCOMPARE(m_page.table()->item(1, 1)->text(), "en:" + key);
    QCOMPARE(m_page.disorder(), QString());
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("2"));
    QVERIFY(!m_page.frame()->isVisible());
}

void PageNewTest::fourthRow()
{
    m_page.begin(links("a b c"));
    m_page.addLink(1, "d");
    QCOMPARE(m_page.shownNames(), "a b c d");
    QCOMPARE(m_page.listNames(), "a b c d");
    QCOMPARE(m_page.currentRow(), 3);
    QCOMPARE(m_page.table()->selectedItems().size(), 2);
    QCOMPARE(m_page.table()->selectedItems().first()->row(), 3);
    QCOMPARE(m_page.enabledButtons(), "New Edit Delete Up");
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("4"));
    QCOMPARE(m_page.disorder(), QString());
}

void PageNewTest::firstLinkGetsId0()
{
    m_page.beginHidden(QuickLinkRecordList());
    QVERIFY(QFile::remove(FakeHost::instance().configPath()));
    QuickLinkXmlParse::GetInstance()->m_currentId.clear();
    m_page.show();
    m_page.addLink(1, "a");
    QCOMPARE(m_page.page->m_recordList->at(0).id, "0");
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("1"));
    QCOMPARE(m_page.enabledButtons(), "New Edit Delete");
}

void PageNewTest::secondLinkGetsTheNextId()
{
    m_page.begin(links("a b c"));
    m_page.addLink(1, "d");
    m_page.addLink(1, "e");
    QCOMPARE(m_page.page->m_recordList->at(3).id, "3");
    QCOMPARE(m_page.page->m_recordList->at(4).id, "4");
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("5"));
    QCOMPARE(m_page.enabledButtons(), "New Edit Delete Up");
}

void PageNewTest::idComesBackOnlyInTheList()
{
    m_page.begin(links("a"));
    m_page.addLink(1, "b");
    QCOMPARE(m_page.recordOf(1)->id, QString());
    QCOMPARE(m_page.page->m_recordList->at(1).id, "1");
}

void PageNewTest::rowKeepsTheDialogsObject()
{
    m_page.begin(links("a"));
    m_page.addLink(1, "b");
    QCOMPARE(m_page.recordOf(1), m_page.page->m_newDlg->m_record);
    const RecordProbe probe(m_page.recordOf(1));
    m_page.page->onNewBtnClick();
    QVERIFY(!probe.isFreed());
    QCOMPARE(m_page.recordOf(1)->name, "b");
    m_page.page->OnDestroy();
    QVERIFY(probe.isFreed());
}

void PageNewTest::listIsTakenAgain()
{
    m_page.begin(links("a"));
    m_page.addLink(1, "b");
    QCOMPARE(m_page.page->m_recordList, QuickLinkXmlParse::GetInstance()->m_recordList);
    QCOMPARE(m_page.page->GetQuickLinkRecordSize(), 2);
}

void PageNewTest::fileIsWrittenBeforeTheMenuIsTold()
{
    m_page.begin(links("a"));
    QByteArray file;
    QString names;
    int currentRow = -1;
    const ShownPage* const page = &m_page;
    FakeHost::instance().duringNotification = [page, &file, &names, &currentRow] {
        file = FakeHost::instance().readConfig();
        names = page->listNames();
        currentRow = page->currentRow();
    };
    m_page.addLink(1, "b");
    QCOMPARE(file, m_page.expectedFile("2"));
    QCOMPARE(names, "a b");
    QCOMPARE(currentRow, 1);
}

void PageNewTest::menuIsToldOnce()
{
    m_page.begin(links("a"));
    m_page.addLink(1, "b");
    QCOMPARE(FakeHost::instance().notifications, QStringList() << "MenuMgrPlugin 2309 0 0");
}

void PageNewTest::tableGetsTheFocus()
{
    m_page.begin(links("a"));
    m_page.addLink(1, "b");
    QTRY_COMPARE(m_page.host->focusWidget(), static_cast<QWidget*>(m_page.table()));
}

void PageNewTest::newestLinkCanBeMovedAtOnce()
{
    m_page.begin(links("a b"));
    m_page.addLink(1, "c");
    m_page.click("m_upBtn");
    QCOMPARE(m_page.shownNames(), "a c b");
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("3"));
}

void PageNewTest::linkAfterALinkInTheSameDialog()
{
    // A host may show the dialog again: the record that a row has is left alone.
    m_page.begin(links("a"));
    m_page.addLink(1, "b");
    const RecordProbe first(m_page.recordOf(1));
    m_page.frame()->show();
    m_page.enter("m_appNameEdit", "c");
    m_page.pressOk();
    QVERIFY(!first.isFreed());
    QCOMPARE(m_page.shownNames(), "a b c");
    QVERIFY(m_page.recordOf(1) != m_page.recordOf(2));
}

void PageNewTest::takenNameIsRefused()
{
    m_page.begin(links("a b"));
    const QByteArray before = FakeHost::instance().readConfig();
    m_page.addLink(1, "b");
    QCOMPARE(FakeHost::instance().messages.size(), 1);
    QCOMPARE(FakeHost::instance().messages.first().text, shown("IDS_LINK_SETTING_NAME_SAME"));
    QCOMPARE(m_page.shownNames(), "a b");
    QCOMPARE(FakeHost::instance().readConfig(), before);
    QCOMPARE(FakeHost::instance().notifications, QStringList());
    QVERIFY(m_page.frame()->isVisible());
}

void PageNewTest::cancel()
{
    m_page.begin(links("a b"));
    const QByteArray before = FakeHost::instance().readConfig();
    m_page.click("m_newBtn");
    const QPointer<QObject> dialog = m_page.page->m_newDlg;
    m_page.enter("m_appNameEdit", "c");
    m_page.pressCancel();
    QVERIFY(!m_page.page->m_isEditing);
    QVERIFY(dialog);
    QVERIFY(!m_page.frame()->isVisible());
    QCOMPARE(m_page.shownNames(), "a b");
    QCOMPARE(m_page.listNames(), "a b");
    QCOMPARE(FakeHost::instance().readConfig(), before);
    QCOMPARE(FakeHost::instance().notifications, QStringList());
}

void PageNewTest::closingTheFrame()
{
    m_page.begin(links("a b"));
    m_page.click("m_newBtn");
    m_page.frame()->close();
    QVERIFY(m_page.page->m_newDlg);
    QCOMPARE(m_page.shownNames(), "a b");
    m_page.addLink(1, "c");
    QCOMPARE(m_page.shownNames(), "a b c");
}

void PageNewTest::emittedWhileEditingReplaces()
{
    m_page.begin(links("a b"));
    m_page.click("m_newBtn");
    m_page.chooseType(1);
    m_page.enter("m_appNameEdit", "c");
    m_page.page->m_isEditing = true;
    m_page.pressOk();
    QCOMPARE(m_page.shownNames(), "c b");
    QCOMPARE(m_page.listNames(), "c b");
    QVERIFY(!m_page.page->m_isEditing);
}

void PageNewTest::hiddenLinksGoAtTheReRead()
{
    m_page.beginHidden(links("a b"));
    (*m_page.page->m_recordList)[0].visible = "0";
    m_page.show();
    m_page.addLink(1, "c");
    // The table is filled only when the page is shown: it has a row more than the list until then.
    QCOMPARE(m_page.listNames(), "b c");
    QCOMPARE(m_page.shownNames(), "a b c");
    QCOMPARE(m_page.currentRow(), 2);
    const QByteArray file = FakeHost::instance().readConfig();

    // The row without a link moves nowhere, is not edited and not deleted.
    m_page.click("m_upBtn");
    m_page.click("m_deleteBtn");
    m_page.click("m_editBtn");
    m_page.pressOk();
    QCOMPARE(m_page.listNames(), "b c");
    QCOMPARE(m_page.shownNames(), "a b c");
    QCOMPARE(FakeHost::instance().readConfig(), file);

    m_page.show();
    QCOMPARE(m_page.shownNames(), "b c");
}

void PageNewTest::editedLinksShareTheNewId()
{
    m_page.begin(links("a b c"));
    m_page.select(1);
    m_page.click("m_editBtn");
    m_page.enter("m_appNameEdit", "changed");
    m_page.pressOk();
    m_page.addLink(1, "d");
    QStringList ids;
    for (const QuickLinkRecord& record : *m_page.page->m_recordList)
        ids.append(record.id);
    QCOMPARE(ids.join(" "), "0 3 2 3");
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("4"));
}

REGISTER_TEST(PageNewTest)
#include "PageNewTest.moc"
