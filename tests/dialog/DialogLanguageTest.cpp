// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The language notification and the page's two dialogs: the one opened by Edit follows, the one opened by New does not.

#include <QLineEdit>

#include "DialogTexts.h"
#include "QuickLinkSettingNewEditDlg.h"
#include "ShownPage.h"
#include "Test.h"

class DialogLanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_shown.end(); }

    void editDialogFollowsThereAndBack();
    void editDialogKeepsWhatWasEntered();
    void tabTitleIsThatOfApplications();
    void newDialogDoesNotFollow();
    void editDialogWithoutFrame();
    void closedEditDialogFollows();
    void dialogWithAMissingWidgetStays();

private:
    void changeLanguage(const char* language);
    QuickLinkSettingNewEditDlg* editDialog() const { return m_shown.page->m_editDlg; }

    ShownPage m_shown;
};

void DialogLanguageTest::init()
{
    m_shown.begin(links("News"));
    m_shown.select(0);
}

void DialogLanguageTest::changeLanguage(const char* language)
{
    FakeHost::instance().language = language;
    QCOMPARE(m_shown.page->Notify(1024, 0, 0), 0);
    // Whatever becomes of the dialog, the page follows.
    QCOMPARE(m_shown.button("m_newBtn")->text(), shown("IDS_LINK_SETTING_NEW"));
}

void DialogLanguageTest::editDialogFollowsThereAndBack()
{
    m_shown.click("m_editBtn");
    changeLanguage("de");
    QCOMPARE(textsIn(m_shown.frame()), textsInLanguage("de"));
    changeLanguage("en");
    QCOMPARE(textsIn(m_shown.frame()), textsInLanguage("en"));
}

void DialogLanguageTest::editDialogKeepsWhatWasEntered()
{
    m_shown.click("m_editBtn");
    const QComboBox* const choice = m_shown.inDialog<QComboBox>("m_appTypeChoice");
    QCOMPARE(choice->currentIndex(), 2);
    changeLanguage("de");
    QCOMPARE(choice->currentIndex(), 2);
    QCOMPARE(choice->count(), 3);
    QCOMPARE(m_shown.inDialog<QLineEdit>("m_appNameEdit")->text(), "News");
    QCOMPARE(m_shown.inDialog<QLineEdit>("m_EditUrlName")->text(), "http://example.org/News");
    // The page gave the frame its title, and gives it none again.
    QCOMPARE(FakeHost::instance().frames.size(), 1);
    QCOMPARE(FakeHost::instance().frames.at(0).titles, QStringList("en:IDS_LINK_SETTING_EDIT_TITLE"));
}

void DialogLanguageTest::tabTitleIsThatOfApplications()
{
    m_shown.click("m_editBtn");
    const QTabWidget* const tabs = m_shown.inDialog<QTabWidget>("m_appTabWidget");
    QCOMPARE(tabs->tabText(0), "en:IDS_LINK_TYPE_INTERNET");
    changeLanguage("de");
    QCOMPARE(tabs->tabText(0), "de:IDS_LINK_TYPE_APPLICATION");
    m_shown.chooseType(2);
    QCOMPARE(tabs->tabText(0), "de:IDS_LINK_TYPE_INTERNET");
}

void DialogLanguageTest::newDialogDoesNotFollow()
{
    m_shown.page->onNewBtnClick();
    const QWidget* const newFrame = m_shown.frame();
    m_shown.page->onEditBtnClick();
    changeLanguage("de");
    QCOMPARE(textsIn(newFrame), textsInLanguage("en"));
    QCOMPARE(textsIn(m_shown.frame()), textsInLanguage("de"));
}

void DialogLanguageTest::editDialogWithoutFrame()
{
    m_shown.click("m_editBtn");
    delete m_shown.frame();
    QVERIFY(editDialog());
    changeLanguage("de");
}

void DialogLanguageTest::closedEditDialogFollows()
{
    m_shown.click("m_editBtn");
    m_shown.pressCancel();
    QVERIFY(editDialog());
    changeLanguage("de");
    QCOMPARE(textsIn(m_shown.frame()), textsInLanguage("de"));
}

void DialogLanguageTest::dialogWithAMissingWidgetStays()
{
    m_shown.click("m_editBtn");
    const QStringList before = textsIn(m_shown.frame());
    const Replaced<QComboBox> missing(editDialog()->m_appTypeChoice, nullptr);
    const RecordingTrace trace;
    changeLanguage("de");
    QCOMPARE(trace.countDebug(nullTrace("SetLanguage")), 1);
    QCOMPARE(textsIn(m_shown.frame()), before);
}

REGISTER_TEST(DialogLanguageTest)
#include "DialogLanguageTest.moc"
