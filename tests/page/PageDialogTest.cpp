// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The dialogs that New and Edit open: alike but for title and mode, and independent of each other.

#include <QLineEdit>

#include "QuickLinkSettingNewEditDlg.h"
#include "ShownPage.h"
#include "Test.h"

class PageDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void opens_data();
    void opens();
    void secondClickReplacesIt_data() { kinds(); }
    void secondClickReplacesIt();
    void otherDialogStays_data() { kinds(); }
    void otherDialogStays();
    void cancelChangesNothing_data();
    void cancelChangesNothing();
    void keptByTheRow_data() { kinds(); }
    void keptByTheRow();

private:
    static void kinds();
    /** Presses the button of the present test row with the second link selected. */
    void press(bool isEdit);
    QuickLinkSettingNewEditDlg* dialog(bool isEdit) const;

    ShownPage m_page;
};

void PageDialogTest::kinds()
{
    QTest::addColumn<bool>("isEdit");
    QTest::newRow("New") << false;
    QTest::newRow("Edit") << true;
}

void PageDialogTest::press(bool isEdit)
{
    if (isEdit)
        m_page.page->onEditBtnClick();
    else
        m_page.page->onNewBtnClick();
}

QuickLinkSettingNewEditDlg* PageDialogTest::dialog(bool isEdit) const
{
    return isEdit ? m_page.page->m_editDlg : m_page.page->m_newDlg;
}

void PageDialogTest::opens_data()
{
    QTest::addColumn<bool>("isEdit");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("title");
    QTest::newRow("New, en") << false << "en"
                             << "en:IDS_LINK_SETTING_NEW_TITLE";
    QTest::newRow("New, de") << false << "de"
                             << "de:IDS_LINK_SETTING_NEW_TITLE";
    QTest::newRow("Edit, en") << true << "en"
                              << "en:IDS_LINK_SETTING_EDIT_TITLE";
    QTest::newRow("Edit, de") << true << "de"
                              << "de:IDS_LINK_SETTING_EDIT_TITLE";
}

void PageDialogTest::opens()
{
    QFETCH(bool, isEdit);
    QFETCH(QString, language);
    QFETCH(QString, title);
    m_page.begin(links("a b"));
    m_page.select(1);
    FakeHost::instance().language = language;
    m_page.click(isEdit ? "m_editBtn" : "m_newBtn");
    QCOMPARE(FakeHost::instance().frames.size(), 1);
    QVERIFY(m_page.frame()->isVisible());
    QCOMPARE(m_page.frame()->parentWidget(), m_page.host.data());
    QCOMPARE(FakeHost::instance().frames.first().titles, QStringList() << title);
    QCOMPARE(dialog(isEdit)->m_frameDialog, m_page.frame());
    QVERIFY(!dialog(!isEdit));
    QCOMPARE(m_page.shownNames(), "a b");

    const QString name = isEdit ? "b" : "";
    QCOMPARE(m_page.inDialog<QLineEdit>("m_appNameEdit")->text(), name);
    QCOMPARE(dialog(isEdit)->m_isEdit, isEdit);
    QCOMPARE(dialog(isEdit)->m_editedName, name);
    QCOMPARE(m_page.page->m_isEditing, isEdit);

    const char* const signalsAndSlots[][2] = {{SIGNAL(addRecord(QuickLinkRecord*)), SLOT(AddRecord(QuickLinkRecord*))},
                                              {SIGNAL(cancelNewButton()), SLOT(onCancelNewEditor())}};
    for (const char* const* pair : signalsAndSlots) {
        QCOMPARE(dialog(isEdit)->receivers(pair[0]), 1);
        QVERIFY(QObject::disconnect(dialog(isEdit), pair[0], m_page.page, pair[1]));
    }
}

void PageDialogTest::secondClickReplacesIt()
{
    QFETCH(bool, isEdit);
    m_page.begin(links("a b"));
    m_page.select(1);
    press(isEdit);
    const QPointer<QObject> first = dialog(isEdit);
    const QPointer<QWidget> firstFrame = m_page.frame();
    m_page.enter("m_appNameEdit", "half typed");
    press(isEdit);
    QVERIFY(!first);
    QVERIFY(!firstFrame);
    QVERIFY(dialog(isEdit));
    QCOMPARE(m_page.liveFrames(), 1);
    QCOMPARE(m_page.inDialog<QLineEdit>("m_appNameEdit")->text(), isEdit ? "b" : "");
}

void PageDialogTest::otherDialogStays()
{
    QFETCH(bool, isEdit);
    m_page.begin(links("a"));
    press(!isEdit);
    const QPointer<QuickLinkSettingNewEditDlg> other = dialog(!isEdit);
    press(isEdit);
    QVERIFY(other);
    QCOMPARE(dialog(!isEdit), other.data());
    QVERIFY(dialog(isEdit) != other.data());
    QCOMPARE(m_page.liveFrames(), 2);
    QCOMPARE(m_page.page->m_isEditing, isEdit);
}

void PageDialogTest::cancelChangesNothing_data()
{
    QTest::addColumn<bool>("isEdit");
    QTest::addColumn<bool>("isClosed");
    QTest::newRow("New, Cancel") << false << false;
    QTest::newRow("Edit, Cancel") << true << false;
    QTest::newRow("New, closed") << false << true;
}

void PageDialogTest::cancelChangesNothing()
{
    QFETCH(bool, isEdit);
    QFETCH(bool, isClosed);
    m_page.begin(links("a b"));
    m_page.select(1);
    const QByteArray before = m_page.file();
    const RecordProbe probe(m_page.recordOf(1));
    press(isEdit);
    const QPointer<QObject> pressed = dialog(isEdit);
    m_page.enter("m_appNameEdit", "c");
    if (isClosed)
        m_page.frame()->close();
    else
        m_page.pressCancel();
    QVERIFY(!m_page.page->m_isEditing);
    QVERIFY(pressed);
    QVERIFY(!m_page.frame()->isVisible());
    QVERIFY(!probe.isFreed());
    QCOMPARE(m_page.shownNames(), "a b");
    QCOMPARE(m_page.listNames(), "a b");
    QCOMPARE(m_page.file(), before);
    QCOMPARE(m_page.told(), 0);
    m_page.change("New");
    QCOMPARE(m_page.shownNames(), "a b d");
}

void PageDialogTest::keptByTheRow()
{
    // The row keeps the very object that the dialog handed over, which goes with the row alone.
    QFETCH(bool, isEdit);
    m_page.begin(links("a b"));
    m_page.change(isEdit ? "Edit" : "New");
    const int row = isEdit ? 0 : 2;
    QCOMPARE(m_page.recordOf(row), dialog(isEdit)->m_record);
    const RecordProbe probe(m_page.recordOf(row));
    press(isEdit);
    QVERIFY(!probe.isFreed());
    QCOMPARE(m_page.recordOf(row)->name, isEdit ? "x" : "d");
    if (isEdit)
        m_page.pressOk();
    else
        m_page.page->OnDestroy();
    QVERIFY(probe.isFreed());
}

REGISTER_TEST(PageDialogTest)
#include "PageDialogTest.moc"
