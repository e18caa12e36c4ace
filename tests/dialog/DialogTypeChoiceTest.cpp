// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Choosing a link type: panel, tab title, what is cleared, OK and the launch options.

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include "OpenDialog.h"
#include "FakeHost.h"
#include "RecordingTrace.h"
#include "Test.h"

class DialogTypeChoiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void panelOfType_data();
    void panelOfType();
    void userChoosesAType_data();
    void userChoosesAType();
    void okAfterChoice_data();
    void okAfterChoice();
    void choiceClearsOptions_data();
    void choiceClearsOptions();
    void choosingTheShownTypeAgain();
    void fieldsThroughARoundOfTypes();
    void applicationLeavesOkDisabledWhateverTheChoiceShows();
    void internetNeedsAnotherEdit();
    void emailWithNameCommitsAtOnce();
    void choiceWithout_data();
    void choiceWithout();

private:
    static QByteArray titleKey(int index);
};

QByteArray DialogTypeChoiceTest::titleKey(int index)
{
    if (index == 0)
        return "IDS_LINK_TYPE_APPLICATION";
    return index == 1 ? "IDS_LINK_TYPE_E-MAIL" : "IDS_LINK_TYPE_INTERNET";
}

void DialogTypeChoiceTest::panelOfType_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("panel");
    for (int before = 0; before < 3; ++before) {
        const int indices[] = {0, 1, 2, 3, 17, -1};
        for (int index : indices) {
            const QByteArray title = QByteArray::number(before) + " then " + QByteArray::number(index);
            QTest::newRow(title.constData()) << before << index << (index == 0 || index == 1 ? index : 2);
        }
    }
}

void DialogTypeChoiceTest::panelOfType()
{
    QFETCH(int, before);
    QFETCH(int, index);
    QFETCH(int, panel);
    const OpenDialog dialog;
    dialog->OnSelectComboItem(before);
    dialog->OnSelectComboItem(index);
    QCOMPARE(dialog->m_applicationPanel->isVisible(), panel == 0);
    QCOMPARE(dialog->m_EmailTab->isVisible(), panel == 1);
    QCOMPARE(dialog->m_InternetTab->isVisible(), panel == 2);
    QCOMPARE(dialog->m_appTabWidget->tabText(0), shown(titleKey(index).constData()));
    QCOMPARE(dialog->m_appTabWidget->count(), 1);
    // A direct call tells the dialog, not the choice.
    QCOMPARE(dialog->m_appTypeChoice->currentIndex(), 0);
}

void DialogTypeChoiceTest::userChoosesAType_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("application") << 0;
    QTest::newRow("e-mail") << 1;
    QTest::newRow("Internet") << 2;
}

void DialogTypeChoiceTest::userChoosesAType()
{
    QFETCH(int, index);
    OpenDialog dialog;
    dialog.chooseType(index);
    QCOMPARE(dialog->m_appTypeChoice->currentIndex(), index);
    QCOMPARE(dialog->m_applicationPanel->isVisible(), index == 0);
    QCOMPARE(dialog->m_EmailTab->isVisible(), index == 1);
    QCOMPARE(dialog->m_InternetTab->isVisible(), index == 2);
    QCOMPARE(dialog->m_appTabWidget->tabText(0), shown(titleKey(index).constData()));
}

void DialogTypeChoiceTest::okAfterChoice_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("isEnabled");
    for (int index = 0; index < 3; ++index) {
        const char* const entries[] = {"", "Name", " "};
        for (const char* name : entries) {
            const QByteArray title = titleKey(index) + " with \"" + name + '"';
            QTest::newRow(title.constData()) << index << QByteArray(name) << (index == 1 && *name != '\0');
        }
    }
}

void DialogTypeChoiceTest::okAfterChoice()
{
    QFETCH(int, index);
    QFETCH(QByteArray, name);
    OpenDialog dialog;
    dialog->m_EditUrlName->setText("http://example.org");
    dialog.enter(dialog->m_appPathEdit, "/usr/bin/editor");
    dialog.enter(dialog->m_appNameEdit, name.constData());
    dialog.chooseType(index);
    QTEST(dialog.isOkEnabled(), "isEnabled");
    // Whatever OK was before.
    dialog->m_okBtn->setEnabled(true);
    dialog.chooseType(index);
    QTEST(dialog.isOkEnabled(), "isEnabled");
}

void DialogTypeChoiceTest::choiceClearsOptions_data()
{
    userChoosesAType_data();
}

void DialogTypeChoiceTest::choiceClearsOptions()
{
    QFETCH(int, index);
    OpenDialog dialog;
    dialog->onSelectLaunchOnConnect(true);
    dialog->onSelectLaunchOnsoftware(true);
    dialog.chooseType(index);
    QCOMPARE(dialog->m_launchOnConnect, "0");
    QCOMPARE(dialog->m_launchOnSoftware, "0");
}

void DialogTypeChoiceTest::choosingTheShownTypeAgain()
{
    OpenDialog dialog;
    dialog.fill(0, "Editor", "/usr/bin/editor");
    dialog.enter(dialog->m_appParamEdit, "--new");
    QVERIFY(dialog.isOkEnabled());
    dialog.chooseType(0);
    QCOMPARE(dialog->m_appTypeChoice->currentIndex(), 0);
    QCOMPARE(dialog->m_appPathEdit->text(), QString());
    QCOMPARE(dialog->m_appParamEdit->text(), QString());
    QCOMPARE(dialog->m_appNameEdit->text(), "Editor");
    QVERIFY(!dialog.isOkEnabled());
}

void DialogTypeChoiceTest::fieldsThroughARoundOfTypes()
{
    OpenDialog dialog;
    dialog.fill(2, "Both", "www.example.org");
    dialog.fill(0, "Both", "/usr/bin/editor");
    dialog.enter(dialog->m_appParamEdit, "--new");
    dialog.chooseType(1);
    QCOMPARE(dialog->m_appPathEdit->text(), "/usr/bin/editor");
    QCOMPARE(dialog->m_appParamEdit->text(), "--new");
    QCOMPARE(dialog->m_EditUrlName->text(), "www.example.org");
    dialog.chooseType(2);
    QCOMPARE(dialog->m_appPathEdit->text(), "/usr/bin/editor");
    QCOMPARE(dialog->m_EditUrlName->text(), "www.example.org");
    dialog.chooseType(0);
    QCOMPARE(dialog->m_appPathEdit->text(), QString());
    QCOMPARE(dialog->m_appParamEdit->text(), QString());
    QCOMPARE(dialog->m_EditUrlName->text(), "www.example.org");
    QCOMPARE(dialog->m_appNameEdit->text(), "Both");
}

void DialogTypeChoiceTest::applicationLeavesOkDisabledWhateverTheChoiceShows()
{
    // The page calls the slot before it sets the choice, so clearing the path meets a choice of another type.
    for (int shownType = 0; shownType < 3; ++shownType) {
        OpenDialog dialog;
        dialog.fill(2, "Name", "www.example.org");
        dialog->m_appPathEdit->setText("/usr/bin/editor");
        dialog->m_appTypeChoice->setCurrentIndex(shownType);
        dialog->OnSelectComboItem(0);
        QVERIFY2(!dialog.isOkEnabled(), QByteArray::number(shownType).constData());
    }
}

void DialogTypeChoiceTest::internetNeedsAnotherEdit()
{
    OpenDialog dialog;
    dialog.fill(2, "News", "www.example.org");
    QVERIFY(dialog.isOkEnabled());
    dialog.chooseType(1);
    QVERIFY(dialog.isOkEnabled());
    dialog.chooseType(2);
    QVERIFY(!dialog.isOkEnabled());
    QTest::keyClick(dialog->m_EditUrlName, Qt::Key_Home);
    QTest::keyClick(dialog->m_appNameEdit, Qt::Key_Home);
    QVERIFY2(!dialog.isOkEnabled(), "Moving the cursor never enables OK");
    QTest::keyClicks(dialog->m_appNameEdit, "x");
    QVERIFY(dialog.isOkEnabled());
}

void DialogTypeChoiceTest::emailWithNameCommitsAtOnce()
{
    OpenDialog dialog;
    dialog.enter(dialog->m_appNameEdit, "Mail");
    QVERIFY(!dialog.isOkEnabled());
    dialog.chooseType(1);
    QVERIFY(dialog.isOkEnabled());
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), 1);
    QVERIFY(!dialog.isOpen());
}

void DialogTypeChoiceTest::choiceWithout_data()
{
    addMemberRows(names("m_appTabWidget m_applicationPanel m_EmailTab m_InternetTab m_appPathEdit m_appParamEdit "
                        "m_appNameEdit m_okBtn"));
}

void DialogTypeChoiceTest::choiceWithout()
{
    QFETCH(QString, member);
    for (int index = 0; index < 3; ++index) {
        const OpenDialog dialog;
        dialog->OnSelectComboItem(index == 1 ? 2 : 1);
        const QString title = dialog->m_appTabWidget->tabText(0);
        dialog->m_appPathEdit->setText("/usr/bin/editor");
        dialog->m_appNameEdit->setText("Name");
        dialog->onSelectLaunchOnConnect(true);
        dialog->m_okBtn->setEnabled(true);
        const RecordingTrace trace;
        {
            const NullMember missing(memberOf(dialog.get(), member));
            dialog->OnSelectComboItem(index);
        }
        QCOMPARE(trace.countDebug(nullTrace("OnSelectComboItem")), 1);
        QVERIFY(dialog.isOkEnabled());
        QCOMPARE(dialog->m_appTabWidget->tabText(0), title);
        QCOMPARE(dialog->m_appPathEdit->text(), "/usr/bin/editor");
        QCOMPARE(dialog->m_launchOnConnect, "1");
        QCOMPARE(dialog->m_EmailTab->isVisible(), index != 1);
        QCOMPARE(dialog->m_InternetTab->isVisible(), index == 1);
    }
}

REGISTER_TEST(DialogTypeChoiceTest)
#include "DialogTypeChoiceTest.moc"
