// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The New button: the dialog that it opens and the link that comes of it.

#include <QLineEdit>
#include <QtTest>

#include "PageFixture.h"
#include "QuickLinkSettingNewEditDlg.h"

class PageNew : public QObject
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

private:
    ShownPage m_page;
};

void PageNew::dialogOpens()
{
    m_page.begin(links("a b"));
    m_page.click("m_newBtn");
    QCOMPARE(FakeHost::instance().frames.size(), 1);
    QVERIFY(m_page.frame()->isVisible());
    QCOMPARE(m_page.frame()->parentWidget(), m_page.host.data());
    QCOMPARE(m_page.page->m_newDlg->m_frameDialog, m_page.frame());
    QVERIFY(!m_page.page->m_editDlg);
    QCOMPARE(m_page.inDialog<QLineEdit>("m_appNameEdit")->text(), QString());
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a b"));
}

void PageNew::dialogTitle_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("en") << QString::fromLatin1("en");
    QTest::newRow("de") << QString::fromLatin1("de");
}

void PageNew::dialogTitle()
{
    QFETCH(QString, language);
    m_page.begin(links("a"));
    FakeHost::instance().language = language;
    m_page.click("m_newBtn");
    QCOMPARE(FakeHost::instance().frames.first().titles,
             QStringList() << language + QLatin1String(":IDS_LINK_SETTING_NEW_TITLE"));
}

void PageNew::dialogIsInNewMode()
{
    m_page.begin(links("a"));
    m_page.click("m_newBtn");
    QVERIFY(!m_page.page->m_newDlg->m_isEdit);
    QCOMPARE(m_page.page->m_newDlg->m_editedName, QString());
    QVERIFY(!m_page.page->m_isEditing);
}

void PageNew::dialogSignals_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QByteArray>("slot");
    QTest::newRow("addRecord") << QByteArray(SIGNAL(addRecord(QuickLinkRecord*)))
                               << QByteArray(SLOT(AddRecord(QuickLinkRecord*)));
    QTest::newRow("cancelNewButton") << QByteArray(SIGNAL(cancelNewButton())) << QByteArray(SLOT(onCancelNewEditor()));
}

void PageNew::dialogSignals()
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

void PageNew::secondNewReplacesTheDialog()
{
    m_page.begin(links("a"));
    m_page.click("m_newBtn");
    const QPointer<QObject> first = m_page.page->m_newDlg;
    const QPointer<QWidget> firstFrame = m_page.frame();
    m_page.enter("m_appNameEdit", QLatin1String("half typed"));
    m_page.page->onNewBtnClick();
    QVERIFY(!first);
    QVERIFY(!firstFrame);
    QCOMPARE(m_page.liveFrames(), 1);
    QVERIFY(m_page.page->m_newDlg);
    QCOMPARE(m_page.inDialog<QLineEdit>("m_appNameEdit")->text(), QString());
}

void PageNew::newDoesNotTouchTheEditDialog()
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

void PageNew::newEndsEditing()
{
    m_page.begin(links("a"));
    m_page.click("m_editBtn");
    QVERIFY(m_page.page->m_isEditing);
    m_page.page->onNewBtnClick();
    QVERIFY(!m_page.page->m_isEditing);
}

void PageNew::linkOfEachType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("url");
    QTest::newRow("application") << 0 << QString::fromLatin1("IDS_LINK_TYPE_APPLICATION") << existingFile()
                                 << existingFile();
    QTest::newRow("e-mail") << 1 << QString::fromLatin1("IDS_LINK_TYPE_E-MAIL") << QString()
                            << QString::fromLatin1("mailto:");
    QTest::newRow("Internet") << 2 << QString::fromLatin1("IDS_LINK_TYPE_INTERNET")
                              << QString::fromLatin1("www.example.org/?a=1&b=\"2\"")
                              << QString::fromLatin1("www.example.org/?a=1&b=\"2\"");
}

void PageNew::linkOfEachType()
{
    QFETCH(int, type);
    QFETCH(QString, key);
    QFETCH(QString, typed);
    QFETCH(QString, url);
    m_page.begin(links("a"));
    m_page.addLink(type, "R&D <news>", typed);
    QuickLinkRecord expected = makeRecord("R&D <news>", key.toLatin1().constData(), url.toUtf8().constData());
    expected.id = QLatin1String("1");
    QCOMPARE(m_page.page->m_recordList->size(), 2);
    QCOMPARE(difference(m_page.page->m_recordList->at(1), expected), QString());
    QCOMPARE(m_page.table()->item(1, 0)->text(), QString::fromLatin1("R&D <news>"));
    QCOMPARE(m_page.table()->item(1, 1)->text(), QLatin1String("en:") + key);
    QCOMPARE(m_page.disorder(), QString());
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("2"));
    QVERIFY(!m_page.frame()->isVisible());
}

void PageNew::fourthRow()
{
    m_page.begin(links("a b c"));
    m_page.addLink(1, "d");
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a b c d"));
    QCOMPARE(m_page.listNames(), QString::fromLatin1("a b c d"));
    QCOMPARE(m_page.currentRow(), 3);
    QCOMPARE(m_page.table()->selectedItems().size(), 2);
    QCOMPARE(m_page.table()->selectedItems().first()->row(), 3);
    QCOMPARE(m_page.enabledButtons(), QString::fromLatin1("New Edit Delete Up"));
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("4"));
    QCOMPARE(m_page.disorder(), QString());
}

void PageNew::firstLinkGetsId0()
{
    m_page.beginHidden(QuickLinkRecordList());
    QVERIFY(QFile::remove(FakeHost::instance().configPath()));
    QuickLinkXmlParse::GetInstance()->m_currentId.clear();
    m_page.show();
    m_page.addLink(1, "a");
    QCOMPARE(m_page.page->m_recordList->at(0).id, QString::fromLatin1("0"));
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("1"));
    QCOMPARE(m_page.enabledButtons(), QString::fromLatin1("New Edit Delete"));
}

void PageNew::secondLinkGetsTheNextId()
{
    m_page.begin(links("a b c"));
    m_page.addLink(1, "d");
    m_page.addLink(1, "e");
    QCOMPARE(m_page.page->m_recordList->at(3).id, QString::fromLatin1("3"));
    QCOMPARE(m_page.page->m_recordList->at(4).id, QString::fromLatin1("4"));
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("5"));
    QCOMPARE(m_page.enabledButtons(), QString::fromLatin1("New Edit Delete Up"));
}

void PageNew::idComesBackOnlyInTheList()
{
    m_page.begin(links("a"));
    m_page.addLink(1, "b");
    QCOMPARE(m_page.recordOf(1)->id, QString());
    QCOMPARE(m_page.page->m_recordList->at(1).id, QString::fromLatin1("1"));
}

void PageNew::rowKeepsTheDialogsObject()
{
    m_page.begin(links("a"));
    m_page.addLink(1, "b");
    QCOMPARE(m_page.recordOf(1), m_page.page->m_newDlg->m_record);
    const RecordProbe probe(m_page.recordOf(1));
    m_page.page->onNewBtnClick();
    QVERIFY(!probe.isFreed());
    QCOMPARE(m_page.recordOf(1)->name, QString::fromLatin1("b"));
    m_page.page->OnDestroy();
    QVERIFY(probe.isFreed());
}

void PageNew::listIsTakenAgain()
{
    m_page.begin(links("a"));
    m_page.addLink(1, "b");
    QCOMPARE(m_page.page->m_recordList, QuickLinkXmlParse::GetInstance()->m_recordList);
    QCOMPARE(m_page.page->GetQuickLinkRecordSize(), 2);
}

void PageNew::fileIsWrittenBeforeTheMenuIsTold()
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
    QCOMPARE(names, QString::fromLatin1("a b"));
    QCOMPARE(currentRow, 1);
}

void PageNew::menuIsToldOnce()
{
    m_page.begin(links("a"));
    m_page.addLink(1, "b");
    QCOMPARE(FakeHost::instance().notifications, QStringList() << QLatin1String("MenuMgrPlugin 2309 0 0"));
}

void PageNew::tableGetsTheFocus()
{
    m_page.begin(links("a"));
    m_page.addLink(1, "b");
    QTRY_COMPARE(m_page.host->focusWidget(), static_cast<QWidget*>(m_page.table()));
}

void PageNew::newestLinkCanBeMovedAtOnce()
{
    m_page.begin(links("a b"));
    m_page.addLink(1, "c");
    m_page.click("m_upBtn");
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a c b"));
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("3"));
}

void PageNew::linkAfterALinkInTheSameDialog()
{
    // A host may show the dialog again: the record that a row has is left alone.
    m_page.begin(links("a"));
    m_page.addLink(1, "b");
    const RecordProbe first(m_page.recordOf(1));
    m_page.frame()->show();
    m_page.enter("m_appNameEdit", QLatin1String("c"));
    m_page.pressOk();
    QVERIFY(!first.isFreed());
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a b c"));
    QVERIFY(m_page.recordOf(1) != m_page.recordOf(2));
}

void PageNew::takenNameIsRefused()
{
    m_page.begin(links("a b"));
    const QByteArray before = FakeHost::instance().readConfig();
    m_page.addLink(1, "b");
    QCOMPARE(FakeHost::instance().messages.size(), 1);
    QCOMPARE(FakeHost::instance().messages.first().text, shown("IDS_LINK_SETTING_NAME_SAME"));
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a b"));
    QCOMPARE(FakeHost::instance().readConfig(), before);
    QCOMPARE(FakeHost::instance().notifications, QStringList());
    QVERIFY(m_page.frame()->isVisible());
}

void PageNew::cancel()
{
    m_page.begin(links("a b"));
    const QByteArray before = FakeHost::instance().readConfig();
    m_page.click("m_newBtn");
    const QPointer<QObject> dialog = m_page.page->m_newDlg;
    m_page.enter("m_appNameEdit", QLatin1String("c"));
    m_page.pressCancel();
    QVERIFY(!m_page.page->m_isEditing);
    QVERIFY(dialog);
    QVERIFY(!m_page.frame()->isVisible());
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a b"));
    QCOMPARE(m_page.listNames(), QString::fromLatin1("a b"));
    QCOMPARE(FakeHost::instance().readConfig(), before);
    QCOMPARE(FakeHost::instance().notifications, QStringList());
}

void PageNew::closingTheFrame()
{
    m_page.begin(links("a b"));
    m_page.click("m_newBtn");
    m_page.frame()->close();
    QVERIFY(m_page.page->m_newDlg);
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a b"));
    m_page.addLink(1, "c");
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a b c"));
}

void PageNew::emittedWhileEditingReplaces()
{
    m_page.begin(links("a b"));
    m_page.click("m_newBtn");
    m_page.chooseType(1);
    m_page.enter("m_appNameEdit", QLatin1String("c"));
    m_page.page->m_isEditing = true;
    m_page.pressOk();
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("c b"));
    QCOMPARE(m_page.listNames(), QString::fromLatin1("c b"));
    QVERIFY(!m_page.page->m_isEditing);
}

QTEST_MAIN(PageNew)
#include "tst_page_new.moc"
