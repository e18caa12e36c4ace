// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The dialog's texts: what is shown when it is built, and what SetLanguage() changes.

#include <QLineEdit>

#include "DialogTexts.h"
#include "FakeHost.h"
#include "OpenDialog.h"
#include "Test.h"

class DialogTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts();
    void textsComeFromTheirContext();
    void typeAndTitle_data();
    void typeAndTitle();
    void frameKeepsItsTitle();
    void entriesSurvive();
};

void DialogTextsTest::texts()
{
    const OpenDialog dialog;
    QCOMPARE(textsIn(dialog->m_frameDialog), textsInLanguage("en"));
    FakeHost::instance().language = "fr";
    dialog->SetLanguage();
    QCOMPARE(textsIn(dialog->m_frameDialog), textsInLanguage("fr"));
}

void DialogTextsTest::textsComeFromTheirContext()
{
    const OpenDialog dialog;
    QCOMPARE(FakeHost::instance().translationContexts, QStringList("QuickLinkUIPlugin"));
}

void DialogTextsTest::typeAndTitle_data()
{
    QTest::addColumn<int>("type");
    for (int type = 0; type < 3; ++type)
        QTest::newRow(typeKeys[type]) << type;
}

void DialogTextsTest::typeAndTitle()
{
    QFETCH(int, type);
    OpenDialog dialog;
    dialog.chooseType(type);
    QCOMPARE(dialog->m_appTabWidget->tabText(0), shown(typeKeys[type]));
    FakeHost::instance().language = "fr";
    dialog->SetLanguage();
    QCOMPARE(dialog->m_appTypeChoice->currentIndex(), type);
    QCOMPARE(dialog->m_appTypeChoice->currentText(), shown(typeKeys[type]));
    QCOMPARE(dialog.shownPanel(), type);
    // The application's title whatever the type, until the user chooses one again.
    QCOMPARE(dialog->m_appTabWidget->tabText(0), "fr:IDS_LINK_TYPE_APPLICATION");
    dialog.chooseType(type);
    QCOMPARE(dialog->m_appTabWidget->tabText(0), shown(typeKeys[type]));
}

void DialogTextsTest::frameKeepsItsTitle()
{
    const OpenDialog dialog;
    dialog->m_frameDialog->setWindowTitle("A title");
    dialog->SetLanguage();
    QCOMPARE(dialog->m_frameDialog->windowTitle(), "A title");
}

void DialogTextsTest::entriesSurvive()
{
    OpenDialog dialog;
    dialog.fill(2, "News", "www.example.org");
    dialog->onSelectLaunchOnConnect(true);
    dialog->SetLanguage();
    QCOMPARE(dialog->m_appNameEdit->text(), "News");
    QCOMPARE(dialog->m_EditUrlName->text(), "www.example.org");
    QCOMPARE(dialog.options(), "01");
    QVERIFY(dialog.isOkEnabled());
}

REGISTER_TEST(DialogTextsTest)
#include "DialogTextsTest.moc"
