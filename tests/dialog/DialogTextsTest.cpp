// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The dialog's texts: what is shown when it is built, and after the host changed the language.

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include "OpenDialog.h"
#include "ExtendDialog.h"
#include "FakeHost.h"
#include "RecordingTrace.h"
#include "Test.h"

class DialogTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_data();
    void text();
    void textInAnotherLanguage_data() { text_data(); }
    void textInAnotherLanguage();
    void textsComeFromTheirContext();
    void titleOfTheTab_data();
    void titleOfTheTab();
    void frameKeepsItsTitle();
    void selectionSurvives_data();
    void selectionSurvives();
    void entriesSurvive();
    void typeItemsAreTranslatedAgain();
    void stringsWithout_data();
    void stringsWithout();
    void languageWithout_data();
    void languageWithout();

private:
    static QStringList textMembers();
    static QString textOf(const OpenDialog& dialog, const QString& member);
    static QStringList allTexts(const OpenDialog& dialog);
    static void setsNothing(const QString& missingMember, void (QuickLinkSettingNewEditDlg::*operation)(),
                            const char* name);
};

QStringList DialogTextsTest::textMembers()
{
    return names("m_nameLbl m_typeLbl m_applicationPathLbl m_browseBtn m_applicationParamLbl m_launchWhenSWLaunchCB "
                 "m_launchWhenSWLaunchCBForEmail m_launchWhenSWLaunchCBForInternet m_launchWhenConnectCB "
                 "m_launchWhenConnectCBForEmail m_launchWhenConnectCBForInternet m_appTabWidget m_okBtn m_cancelBtn "
                 "m_UrlLabel m_DefaultLbl");
}

QString DialogTextsTest::textOf(const OpenDialog& dialog, const QString& member)
{
    const QObject* const object = memberOf(dialog.get(), member).object;
    if (object == dialog->m_appTabWidget)
        return dialog->m_appTabWidget->tabText(0);
    return object->property("text").toString();
}

QStringList DialogTextsTest::allTexts(const OpenDialog& dialog)
{
    QStringList all;
    const QStringList members = textMembers();
    for (const QString& member : members)
        all.append(textOf(dialog, member));
    for (int i = 0; i < dialog->m_appTypeChoice->count(); ++i)
        all.append(dialog->m_appTypeChoice->itemText(i));
    return all;
}

void DialogTextsTest::text_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<QByteArray>("key");
    const char* const rows[][2] = {{"m_nameLbl", "IDS_LINK_SETTING_NEW_NAME"},
                                   {"m_typeLbl", "IDS_LINK_SETTING_NEW_TYPE"},
                                   {"m_applicationPathLbl", "IDS_LINK_SETTING_NEW_TAB_APP_URL"},
                                   {"m_browseBtn", "IDS_LINK_SETTING_NEW_TAB_APP_BROWSER"},
                                   {"m_applicationParamLbl", "IDS_LINK_SETTING_NEW_TAB_APP_PARA"},
                                   {"m_launchWhenSWLaunchCB", "IDS_LINK_SETTING_NEW_CHECK_STARTUP"},
                                   {"m_launchWhenSWLaunchCBForEmail", "IDS_LINK_SETTING_NEW_CHECK_STARTUP"},
                                   {"m_launchWhenSWLaunchCBForInternet", "IDS_LINK_SETTING_NEW_CHECK_STARTUP"},
                                   {"m_launchWhenConnectCB", "IDS_LINK_SETTING_NEW_CHECK"},
                                   {"m_launchWhenConnectCBForEmail", "IDS_LINK_SETTING_NEW_CHECK"},
                                   {"m_launchWhenConnectCBForInternet", "IDS_LINK_SETTING_NEW_CHECK"},
                                   {"m_appTabWidget", "IDS_LINK_TYPE_APPLICATION"},
                                   {"m_okBtn", "IDS_LINK_SETTING_NEW_OK"},
                                   {"m_cancelBtn", "IDS_LINK_SETTING_NEW_CANCEL"},
                                   {"m_UrlLabel", "IDS_LINK_SETTING_NEW_TAB_IE_URL"},
                                   {"m_DefaultLbl", "IDS_LINK_SETTING_NEW_TAB_EMAIL_URL"}};
    for (const auto& row : rows)
        QTest::newRow(row[0]) << QString::fromLatin1(row[0]) << QByteArray(row[1]);
}

void DialogTextsTest::text()
{
    QFETCH(QString, member);
    QFETCH(QByteArray, key);
    const OpenDialog dialog;
    QCOMPARE(textOf(dialog, member), shown(key.constData()));
}

void DialogTextsTest::textInAnotherLanguage()
{
    QFETCH(QString, member);
    QFETCH(QByteArray, key);
    const OpenDialog dialog;
    FakeHost::instance().language = "fr";
    dialog->SetLanguage();
    QCOMPARE(textOf(dialog, member), "fr:" + QString::fromLatin1(key));
}

void DialogTextsTest::textsComeFromTheirContext()
{
    const OpenDialog dialog;
    QCOMPARE(FakeHost::instance().translationContexts, QStringList("QuickLinkUIPlugin"));
}

void DialogTextsTest::titleOfTheTab_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("key");
    QTest::newRow("application") << 0 << QByteArray("IDS_LINK_TYPE_APPLICATION");
    QTest::newRow("e-mail") << 1 << QByteArray("IDS_LINK_TYPE_E-MAIL");
    QTest::newRow("Internet") << 2 << QByteArray("IDS_LINK_TYPE_INTERNET");
}

void DialogTextsTest::titleOfTheTab()
{
    QFETCH(int, type);
    QFETCH(QByteArray, key);
    OpenDialog dialog;
    dialog.chooseType(type);
    QCOMPARE(dialog->m_appTabWidget->tabText(0), shown(key.constData()));
    FakeHost::instance().language = "fr";
    dialog->SetLanguage();
    // The application's title whatever the type, until the user chooses one again.
    QCOMPARE(dialog->m_appTabWidget->tabText(0), "fr:IDS_LINK_TYPE_APPLICATION");
    dialog.chooseType(type);
    QCOMPARE(dialog->m_appTabWidget->tabText(0), shown(key.constData()));
}

void DialogTextsTest::frameKeepsItsTitle()
{
    const OpenDialog dialog;
    dialog->m_frameDialog->setWindowTitle("A title");
    dialog->SetLanguage();
    QCOMPARE(dialog->m_frameDialog->windowTitle(), "A title");
}

void DialogTextsTest::selectionSurvives_data()
{
    titleOfTheTab_data();
}

void DialogTextsTest::selectionSurvives()
{
    QFETCH(int, type);
    QFETCH(QByteArray, key);
    OpenDialog dialog;
    dialog.chooseType(type);
    FakeHost::instance().language = "fr";
    dialog->SetLanguage();
    QCOMPARE(dialog->m_appTypeChoice->currentIndex(), type);
    QCOMPARE(dialog->m_appTypeChoice->currentText(), shown(key.constData()));
    QCOMPARE(dialog->m_applicationPanel->isVisible(), type == 0);
    QCOMPARE(dialog->m_EmailTab->isVisible(), type == 1);
    QCOMPARE(dialog->m_InternetTab->isVisible(), type == 2);
}

void DialogTextsTest::entriesSurvive()
{
    OpenDialog dialog;
    dialog.fill(2, "News", "www.example.org");
    dialog->onSelectLaunchOnConnect(true);
    dialog->SetLanguage();
    QCOMPARE(dialog->m_appNameEdit->text(), "News");
    QCOMPARE(dialog->m_EditUrlName->text(), "www.example.org");
    QCOMPARE(dialog->m_launchOnConnect, "1");
    QVERIFY(dialog.isOkEnabled());
}

void DialogTextsTest::typeItemsAreTranslatedAgain()
{
    const OpenDialog dialog;
    FakeHost::instance().language = "de";
    dialog->SetLanguage();
    QCOMPARE(dialog->m_appTypeChoice->count(), 3);
    QCOMPARE(dialog->m_appTypeChoice->itemText(0), "de:IDS_LINK_TYPE_APPLICATION");
    QCOMPARE(dialog->m_appTypeChoice->itemText(1), "de:IDS_LINK_TYPE_E-MAIL");
    QCOMPARE(dialog->m_appTypeChoice->itemText(2), "de:IDS_LINK_TYPE_INTERNET");
}

void DialogTextsTest::stringsWithout_data()
{
    addMemberRows(textMembers());
}

void DialogTextsTest::stringsWithout()
{
    QFETCH(QString, member);
    setsNothing(member, &QuickLinkSettingNewEditDlg::setDisplayString, "setDisplayString");
}

void DialogTextsTest::languageWithout_data()
{
    addMemberRows(textMembers() << "m_appTypeChoice");
}

void DialogTextsTest::languageWithout()
{
    QFETCH(QString, member);
    setsNothing(member, &QuickLinkSettingNewEditDlg::SetLanguage, "SetLanguage");
}

void DialogTextsTest::setsNothing(const QString& missingMember, void (QuickLinkSettingNewEditDlg::*operation)(),
                              const char* name)
{
    const OpenDialog dialog;
    const QStringList before = allTexts(dialog);
    FakeHost::instance().language = "fr";
    const RecordingTrace trace;
    {
        const NullMember missing(memberOf(dialog.get(), missingMember));
        (dialog.get()->*operation)();
    }
    QCOMPARE(trace.countDebug(nullTrace(name)), 1);
    QCOMPARE(allTexts(dialog), before);
}

REGISTER_TEST(DialogTextsTest)
#include "DialogTextsTest.moc"
