// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Choosing a link type: panel, tab title, what is cleared, OK and the launch options.

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

#include "DialogFixture.h"
#include "FakeHost.h"
#include "TraceRecorder.h"

class DialogTypeChoice : public QObject
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

QByteArray DialogTypeChoice::titleKey(int index)
{
    if (index == 0)
        return "IDS_LINK_TYPE_APPLICATION";
    return index == 1 ? "IDS_LINK_TYPE_E-MAIL" : "IDS_LINK_TYPE_INTERNET";
}

void DialogTypeChoice::panelOfType_data()
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

void DialogTypeChoice::panelOfType()
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

void DialogTypeChoice::userChoosesAType_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("application") << 0;
    QTest::newRow("e-mail") << 1;
    QTest::newRow("Internet") << 2;
}

void DialogTypeChoice::userChoosesAType()
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

void DialogTypeChoice::okAfterChoice_data()
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

void DialogTypeChoice::okAfterChoice()
{
    QFETCH(int, index);
    QFETCH(QByteArray, name);
    OpenDialog dialog;
    dialog->m_EditUrlName->setText(QString::fromLatin1("http://example.org"));
    dialog.enter(dialog->m_appPathEdit, "/usr/bin/editor");
    dialog.enter(dialog->m_appNameEdit, name.constData());
    dialog.chooseType(index);
    QTEST(dialog.isOkEnabled(), "isEnabled");
    // Whatever OK was before.
    dialog->m_okBtn->setEnabled(true);
    dialog.chooseType(index);
    QTEST(dialog.isOkEnabled(), "isEnabled");
}

void DialogTypeChoice::choiceClearsOptions_data()
{
    userChoosesAType_data();
}

void DialogTypeChoice::choiceClearsOptions()
{
    QFETCH(int, index);
    OpenDialog dialog;
    dialog->onSelectLaunchOnConnect(true);
    dialog->onSelectLaunchOnsoftware(true);
    dialog.chooseType(index);
    QCOMPARE(dialog->m_launchOnConnect, QString::fromLatin1("0"));
    QCOMPARE(dialog->m_launchOnSoftware, QString::fromLatin1("0"));
}

void DialogTypeChoice::choosingTheShownTypeAgain()
{
    OpenDialog dialog;
    dialog.fill(0, "Editor", "/usr/bin/editor");
    dialog.enter(dialog->m_appParamEdit, "--new");
    QVERIFY(dialog.isOkEnabled());
    dialog.chooseType(0);
    QCOMPARE(dialog->m_appTypeChoice->currentIndex(), 0);
    QCOMPARE(dialog->m_appPathEdit->text(), QString());
    QCOMPARE(dialog->m_appParamEdit->text(), QString());
    QCOMPARE(dialog->m_appNameEdit->text(), QString::fromLatin1("Editor"));
    QVERIFY(!dialog.isOkEnabled());
}

void DialogTypeChoice::fieldsThroughARoundOfTypes()
{
    OpenDialog dialog;
    dialog.fill(2, "Both", "www.example.org");
    dialog.fill(0, "Both", "/usr/bin/editor");
    dialog.enter(dialog->m_appParamEdit, "--new");
    dialog.chooseType(1);
    QCOMPARE(dialog->m_appPathEdit->text(), QString::fromLatin1("/usr/bin/editor"));
    QCOMPARE(dialog->m_appParamEdit->text(), QString::fromLatin1("--new"));
    QCOMPARE(dialog->m_EditUrlName->text(), QString::fromLatin1("www.example.org"));
    dialog.chooseType(2);
    QCOMPARE(dialog->m_appPathEdit->text(), QString::fromLatin1("/usr/bin/editor"));
    QCOMPARE(dialog->m_EditUrlName->text(), QString::fromLatin1("www.example.org"));
    dialog.chooseType(0);
    QCOMPARE(dialog->m_appPathEdit->text(), QString());
    QCOMPARE(dialog->m_appParamEdit->text(), QString());
    QCOMPARE(dialog->m_EditUrlName->text(), QString::fromLatin1("www.example.org"));
    QCOMPARE(dialog->m_appNameEdit->text(), QString::fromLatin1("Both"));
}

void DialogTypeChoice::applicationLeavesOkDisabledWhateverTheChoiceShows()
{
    // The page calls the slot before it sets the choice, so clearing the path meets a choice of another type.
    for (int shownType = 0; shownType < 3; ++shownType) {
        OpenDialog dialog;
        dialog.fill(2, "Name", "www.example.org");
        dialog->m_appPathEdit->setText(QString::fromLatin1("/usr/bin/editor"));
        dialog->m_appTypeChoice->setCurrentIndex(shownType);
        dialog->OnSelectComboItem(0);
        QVERIFY2(!dialog.isOkEnabled(), QByteArray::number(shownType).constData());
    }
}

void DialogTypeChoice::internetNeedsAnotherEdit()
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
    QTest::keyClicks(dialog->m_appNameEdit, QString::fromLatin1("x"));
    QVERIFY(dialog.isOkEnabled());
}

void DialogTypeChoice::emailWithNameCommitsAtOnce()
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

void DialogTypeChoice::choiceWithout_data()
{
    addMemberRows(names("m_appTabWidget m_applicationPanel m_EmailTab m_InternetTab m_appPathEdit m_appParamEdit "
                        "m_appNameEdit m_okBtn"));
}

void DialogTypeChoice::choiceWithout()
{
    QFETCH(QString, member);
    for (int index = 0; index < 3; ++index) {
        const OpenDialog dialog;
        dialog->OnSelectComboItem(index == 1 ? 2 : 1);
        const QString title = dialog->m_appTabWidget->tabText(0);
        dialog->m_appPathEdit->setText(QString::fromLatin1("/usr/bin/editor"));
        dialog->m_appNameEdit->setText(QString::fromLatin1("Name"));
        dialog->onSelectLaunchOnConnect(true);
        dialog->m_okBtn->setEnabled(true);
        const TraceRecorder trace;
        {
            const NullMember missing(memberOf(dialog.get(), member));
            dialog->OnSelectComboItem(index);
        }
        QCOMPARE(trace.countDebug(nullTrace("OnSelectComboItem")), 1);
        QVERIFY(dialog.isOkEnabled());
        QCOMPARE(dialog->m_appTabWidget->tabText(0), title);
        QCOMPARE(dialog->m_appPathEdit->text(), QString::fromLatin1("/usr/bin/editor"));
        QCOMPARE(dialog->m_launchOnConnect, QString::fromLatin1("1"));
        QCOMPARE(dialog->m_EmailTab->isVisible(), index != 1);
        QCOMPARE(dialog->m_InternetTab->isVisible(), index == 1);
    }
}

QTEST_MAIN(DialogTypeChoice)
#include "tst_dialog_type_choice.moc"
