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

    void linkOfEachType_data();
    void linkOfEachType();
    void linksGoToTheEnd();
    void firstLinkGetsId0();
    void linkAfterALinkInTheSameDialog();
    void takenNameIsRefused();
    void emittedWhileEditingReplaces();
    void hiddenLinksGoAtTheReRead();

private:
    ShownPage m_page;
};

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
    // The row's own record was made before the file gave the link its id.
    QCOMPARE(m_page.recordOf(1)->id, QString());
    QCOMPARE(m_page.table()->item(1, 0)->text(), "R&D <news>");
    QCOMPARE(m_page.table()->item(1, 1)->text(), "en:" + key);
    QCOMPARE(m_page.disorder(), QString());
    QCOMPARE(m_page.file(), m_page.expectedFile("2"));
    QVERIFY(!m_page.frame()->isVisible());
}

void PageNewTest::linksGoToTheEnd()
{
    m_page.begin(links("a b c"));
    m_page.addLink(1, "d");
    QCOMPARE(m_page.linkNames(), "a b c d");
    QCOMPARE(m_page.currentRow(), 3);
    QCOMPARE(m_page.table()->selectedItems().size(), 2);
    QCOMPARE(m_page.table()->selectedItems().first()->row(), 3);
    QCOMPARE(m_page.enabledButtons(), "New Edit Delete Up");
    QCOMPARE(m_page.file(), m_page.expectedFile("4"));
    m_page.addLink(1, "e");
    QCOMPARE(m_page.page->m_recordList->at(3).id, "3");
    QCOMPARE(m_page.page->m_recordList->at(4).id, "4");
    QCOMPARE(m_page.file(), m_page.expectedFile("5"));
    QCOMPARE(m_page.enabledButtons(), "New Edit Delete Up");
    // The newest can be moved at once.
    m_page.click("m_upBtn");
    QCOMPARE(m_page.shownNames(), "a b c e d");
    QCOMPARE(m_page.file(), m_page.expectedFile("5"));
}

void PageNewTest::firstLinkGetsId0()
{
    m_page.beginHidden(QuickLinkRecordList());
    QVERIFY(QFile::remove(FakeHost::instance().configPath()));
    QuickLinkXmlParse::GetInstance()->m_currentId.clear();
    m_page.show();
    m_page.addLink(1, "a");
    QCOMPARE(m_page.page->m_recordList->at(0).id, "0");
    QCOMPARE(m_page.file(), m_page.expectedFile("1"));
    QCOMPARE(m_page.enabledButtons(), "New Edit Delete");
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
    const QByteArray before = m_page.file();
    m_page.addLink(1, "b");
    QCOMPARE(FakeHost::instance().messages.size(), 1);
    QCOMPARE(FakeHost::instance().messages.first().text, shown("IDS_LINK_SETTING_NAME_SAME"));
    QCOMPARE(m_page.shownNames(), "a b");
    QCOMPARE(m_page.file(), before);
    QCOMPARE(m_page.told(), 0);
    QVERIFY(m_page.frame()->isVisible());
}

void PageNewTest::emittedWhileEditingReplaces()
{
    m_page.begin(links("a b"));
    m_page.click("m_newBtn");
    m_page.chooseType(1);
    m_page.enter("m_appNameEdit", "c");
    m_page.page->m_isEditing = true;
    m_page.pressOk();
    QCOMPARE(m_page.linkNames(), "c b");
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
    const QByteArray file = m_page.file();

    // The row without a link moves nowhere, is not edited and not deleted.
    m_page.click("m_upBtn");
    m_page.click("m_deleteBtn");
    m_page.click("m_editBtn");
    m_page.pressOk();
    QCOMPARE(m_page.listNames(), "b c");
    QCOMPARE(m_page.shownNames(), "a b c");
    QCOMPARE(m_page.file(), file);

    m_page.show();
    QCOMPARE(m_page.shownNames(), "b c");
}

REGISTER_TEST(PageNewTest)
#include "PageNewTest.moc"
