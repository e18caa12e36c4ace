// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The language notification and the two dialogs: the one opened by Edit follows, the one opened by New does not.

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include "LanguageFixture.h"
#include "QuickLinkSettingNewEditDlg.h"
#include "Test.h"

typedef QuickLinkSettingNewEditDlg Dialog;

/** The text of one widget of the dialog. */
typedef QString (*DialogText)(const Dialog*);
Q_DECLARE_METATYPE(DialogText)

namespace
{
FakeHost& host()
{
    return FakeHost::instance();
}

template <class T, T* QuickLinkSettingNewEditDlg::*member>
QString dialogText(const QuickLinkSettingNewEditDlg* dialog)
{
    return (dialog->*member)->text();
}

QString dialogTabText(const QuickLinkSettingNewEditDlg* dialog)
{
    return dialog->m_appTabWidget->tabText(0);
}

template <int index>
QString comboText(const QuickLinkSettingNewEditDlg* dialog)
{
    return dialog->m_appTypeChoice->itemText(index);
}

const struct {
    const char *row, *key;
    DialogText text;
} dialogTexts[] = {
    {"name", "IDS_LINK_SETTING_NEW_NAME", dialogText<QLabel, &Dialog::m_nameLbl>},
    {"type", "IDS_LINK_SETTING_NEW_TYPE", dialogText<QLabel, &Dialog::m_typeLbl>},
    {"path", "IDS_LINK_SETTING_NEW_TAB_APP_URL", dialogText<QLabel, &Dialog::m_applicationPathLbl>},
    {"browse", "IDS_LINK_SETTING_NEW_TAB_APP_BROWSER", dialogText<QPushButton, &Dialog::m_browseBtn>},
    {"parameters", "IDS_LINK_SETTING_NEW_TAB_APP_PARA", dialogText<QLabel, &Dialog::m_applicationParamLbl>},
    {"application, start", "IDS_LINK_SETTING_NEW_CHECK_STARTUP",
     dialogText<QCheckBox, &Dialog::m_launchWhenSWLaunchCB>},
    {"e-mail, start", "IDS_LINK_SETTING_NEW_CHECK_STARTUP",
     dialogText<QCheckBox, &Dialog::m_launchWhenSWLaunchCBForEmail>},
    {"Internet, start", "IDS_LINK_SETTING_NEW_CHECK_STARTUP",
     dialogText<QCheckBox, &Dialog::m_launchWhenSWLaunchCBForInternet>},
    {"application, connection", "IDS_LINK_SETTING_NEW_CHECK", dialogText<QCheckBox, &Dialog::m_launchWhenConnectCB>},
    {"e-mail, connection", "IDS_LINK_SETTING_NEW_CHECK", dialogText<QCheckBox, &Dialog::m_launchWhenConnectCBForEmail>},
    {"Internet, connection", "IDS_LINK_SETTING_NEW_CHECK",
     dialogText<QCheckBox, &Dialog::m_launchWhenConnectCBForInternet>},
    {"tab, whatever the type", "IDS_LINK_TYPE_APPLICATION", dialogTabText},
    {"OK", "IDS_LINK_SETTING_NEW_OK", dialogText<QPushButton, &Dialog::m_okBtn>},
    {"Cancel", "IDS_LINK_SETTING_NEW_CANCEL", dialogText<QPushButton, &Dialog::m_cancelBtn>},
    {"address", "IDS_LINK_SETTING_NEW_TAB_IE_URL", dialogText<QLabel, &Dialog::m_UrlLabel>},
    {"mail note", "IDS_LINK_SETTING_NEW_TAB_EMAIL_URL", dialogText<QLabel, &Dialog::m_DefaultLbl>},
    {"first type", "IDS_LINK_TYPE_APPLICATION", comboText<0>},
    {"second type", "IDS_LINK_TYPE_E-MAIL", comboText<1>},
    {"third type", "IDS_LINK_TYPE_INTERNET", comboText<2>}};

QStringList textsOf(const Dialog* dialog)
{
    QStringList texts;
    for (const auto& entry : dialogTexts)
        texts << entry.text(dialog);
    return texts;
}
} // namespace

class DialogLanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_shown.make();
        m_page = m_shown.plugin.page;
    }
    void cleanup() { m_shown.unload(); }

    void editDialogFollows_data();
    void editDialogFollows();
    void editDialogKeepsWhatWasEntered();
    void tabTitleIsThatOfApplications();
    void newDialogDoesNotFollow();
    void editDialogWithoutFrame();
    void closedEditDialogFollows();
    void dialogWithAMissingWidgetStays();
    void languageBackAgain();

private:
    LanguagePage m_shown;
    QuickLinkSettingPluginDlg* m_page;
};

void DialogLanguageTest::editDialogFollows_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<DialogText>("text");
    for (const auto& entry : dialogTexts)
        QTest::newRow(entry.row) << QString::fromLatin1(entry.key) << entry.text;
}

void DialogLanguageTest::editDialogFollows()
{
    QFETCH(QString, key);
    QFETCH(DialogText, text);
    m_page->onEditBtnClick();
    QVERIFY(m_page->m_editDlg);
    QCOMPARE(m_shown.changeLanguage(), 0);
    QCOMPARE(text(m_page->m_editDlg), "de:" + key);
}

void DialogLanguageTest::editDialogKeepsWhatWasEntered()
{
    m_page->onEditBtnClick();
    const Dialog* const dialog = m_page->m_editDlg;
    QCOMPARE(dialog->m_appTypeChoice->currentIndex(), 2);
    m_shown.changeLanguage();
    QCOMPARE(dialog->m_appTypeChoice->currentIndex(), 2);
    QCOMPARE(dialog->m_appTypeChoice->count(), 3);
    QCOMPARE(dialog->m_appNameEdit->text(), QString::fromUtf8("News"));
    QCOMPARE(dialog->m_EditUrlName->text(), QString::fromUtf8("http://example.org/"));
    // The page gave the frame its title, and gives it none again.
    QCOMPARE(host().frames.size(), 1);
    QCOMPARE(host().frames.at(0).titles, QStringList() << "en:IDS_LINK_SETTING_EDIT_TITLE");
}

void DialogLanguageTest::tabTitleIsThatOfApplications()
{
    m_page->onEditBtnClick();
    Dialog* const dialog = m_page->m_editDlg;
    QCOMPARE(dialog->m_appTabWidget->tabText(0), shown("IDS_LINK_TYPE_INTERNET"));
    m_shown.changeLanguage();
    QCOMPARE(dialog->m_appTabWidget->tabText(0), shown("IDS_LINK_TYPE_APPLICATION"));
    dialog->OnSelectComboItem(2);
    QCOMPARE(dialog->m_appTabWidget->tabText(0), shown("IDS_LINK_TYPE_INTERNET"));
}

void DialogLanguageTest::newDialogDoesNotFollow()
{
    m_page->onNewBtnClick();
    const QStringList before = textsOf(m_page->m_newDlg);
    m_page->onEditBtnClick();
    QCOMPARE(m_shown.changeLanguage(), 0);
    QCOMPARE(textsOf(m_page->m_newDlg), before);
    QVERIFY(textsOf(m_page->m_editDlg) != before);
}

void DialogLanguageTest::editDialogWithoutFrame()
{
    m_page->onEditBtnClick();
    delete host().frames.at(0).frame;
    QVERIFY(m_page->m_editDlg);
    QCOMPARE(m_shown.changeLanguage(), 0);
    QCOMPARE(m_page->m_newBtn->text(), QString::fromUtf8("de:IDS_LINK_SETTING_NEW"));
}

void DialogLanguageTest::closedEditDialogFollows()
{
    m_page->onEditBtnClick();
    m_page->m_editDlg->m_cancelBtn->click();
    QVERIFY(m_page->m_editDlg);
    QCOMPARE(m_shown.changeLanguage(), 0);
    QCOMPARE(m_page->m_editDlg->m_okBtn->text(), shown("IDS_LINK_SETTING_NEW_OK"));
}

void DialogLanguageTest::dialogWithAMissingWidgetStays()
{
    m_page->onEditBtnClick();
    Dialog* const dialog = m_page->m_editDlg;
    QComboBox* const combo = dialog->m_appTypeChoice;
    dialog->m_appTypeChoice = nullptr;
    int answer = -1;
    int traced = 0;
    {
        RecordingTrace trace;
        answer = m_shown.changeLanguage();
        traced = trace.countDebug(tracePattern("Arg is NULL: %T: %F: SetLanguage %L"));
    }
    dialog->m_appTypeChoice = combo;
    QCOMPARE(answer, 0);
    QCOMPARE(traced, 1);
    QCOMPARE(dialog->m_okBtn->text(), QString::fromUtf8("en:IDS_LINK_SETTING_NEW_OK"));
    QCOMPARE(m_page->m_newBtn->text(), QString::fromUtf8("de:IDS_LINK_SETTING_NEW"));
}

void DialogLanguageTest::languageBackAgain()
{
    m_page->onEditBtnClick();
    const QStringList texts = textsOf(m_page->m_editDlg);
    m_shown.changeLanguage();
    QVERIFY(textsOf(m_page->m_editDlg) != texts);
    QCOMPARE(m_shown.changeLanguage("en"), 0);
    QCOMPARE(m_page->m_newBtn->text(), shown("IDS_LINK_SETTING_NEW"));
    QCOMPARE(m_page->m_editDlg->m_okBtn->text(), shown("IDS_LINK_SETTING_NEW_OK"));
}

REGISTER_TEST(DialogLanguageTest)
#include "DialogLanguageTest.moc"
