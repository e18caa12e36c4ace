// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Choosing a link type: panel, tab title, what is cleared, OK and the launch options.

#include <QLineEdit>
#include <QPushButton>

#include "DialogTexts.h"
#include "FakeHost.h"
#include "OpenDialog.h"
#include "Test.h"

class DialogTypeChoiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void direct_data();
    void direct();
    void byTheUser_data();
    void byTheUser();
    void okAfterChoice_data();
    void okAfterChoice();
    void choosingTheShownTypeAgain();
    void fieldsThroughARoundOfTypes();
    void applicationLeavesOkDisabledWhateverTheChoiceShows();
    void internetNeedsAnotherEdit();
    void emailWithNameCommitsAtOnce();
};

void DialogTypeChoiceTest::direct_data()
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

void DialogTypeChoiceTest::direct()
{
    QFETCH(int, before);
    QFETCH(int, index);
    QFETCH(int, panel);
    const OpenDialog dialog;
    dialog->OnSelectComboItem(before);
    dialog->OnSelectComboItem(index);
    QCOMPARE(dialog.shownPanel(), panel);
    QCOMPARE(dialog->m_appTabWidget->tabText(0), shown(typeKeys[panel]));
    QCOMPARE(dialog->m_appTabWidget->count(), 1);
    // A direct call tells the dialog, not the choice.
    QCOMPARE(dialog->m_appTypeChoice->currentIndex(), 0);
}

void DialogTypeChoiceTest::byTheUser_data()
{
    QTest::addColumn<int>("type");
    for (int type = 0; type < 3; ++type)
        QTest::newRow(typeKeys[type]) << type;
}

void DialogTypeChoiceTest::byTheUser()
{
    QFETCH(int, type);
    OpenDialog dialog;
    dialog->onSelectLaunchOnConnect(true);
    dialog->onSelectLaunchOnsoftware(true);
    dialog.chooseType(type);
    QCOMPARE(dialog->m_appTypeChoice->currentIndex(), type);
    QCOMPARE(dialog.shownPanel(), type);
    QCOMPARE(dialog->m_appTabWidget->tabText(0), shown(typeKeys[type]));
    QCOMPARE(dialog.options(), "00");
}

void DialogTypeChoiceTest::okAfterChoice_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isEnabled");
    const char* const entries[] = {"", "Name", " "};
    for (int type = 0; type < 3; ++type) {
        for (const char* name : entries) {
            const QByteArray title = typeKeys[type] + QByteArray(" with \"") + name + '"';
            QTest::newRow(title.constData()) << type << name << (type == 1 && *name != '\0');
        }
    }
}

void DialogTypeChoiceTest::okAfterChoice()
{
    QFETCH(int, type);
    QFETCH(QString, name);
    OpenDialog dialog;
    dialog->m_EditUrlName->setText("http://example.org");
    dialog.enter(dialog->m_appPathEdit, "/usr/bin/editor");
    dialog.enter(dialog->m_appNameEdit, name);
    dialog.chooseType(type);
    QTEST(dialog.isOkEnabled(), "isEnabled");
    // Whatever OK was before.
    dialog->m_okBtn->setEnabled(true);
    dialog.chooseType(type);
    QTEST(dialog.isOkEnabled(), "isEnabled");
}

void DialogTypeChoiceTest::choosingTheShownTypeAgain()
{
    OpenDialog dialog;
    dialog.fill(0, "Editor", "/usr/bin/editor");
    dialog.enter(dialog->m_appParamEdit, "--new");
    QVERIFY(dialog.isOkEnabled());
    dialog.chooseType(0);
    QCOMPARE(dialog->m_appTypeChoice->currentIndex(), 0);
    QCOMPARE(dialog->m_appPathEdit->text(), "");
    QCOMPARE(dialog->m_appParamEdit->text(), "");
    QCOMPARE(dialog->m_appNameEdit->text(), "Editor");
    QVERIFY(!dialog.isOkEnabled());
}

void DialogTypeChoiceTest::fieldsThroughARoundOfTypes()
{
    OpenDialog dialog;
    dialog.fill(2, "Both", "www.example.org");
    dialog.fill(0, "Both", "/usr/bin/editor");
    dialog.enter(dialog->m_appParamEdit, "--new");
    for (int type = 1; type <= 2; ++type) {
        dialog.chooseType(type);
        QCOMPARE(dialog->m_appPathEdit->text(), "/usr/bin/editor");
        QCOMPARE(dialog->m_appParamEdit->text(), "--new");
        QCOMPARE(dialog->m_EditUrlName->text(), "www.example.org");
    }
    dialog.chooseType(0);
    QCOMPARE(dialog->m_appPathEdit->text(), "");
    QCOMPARE(dialog->m_appParamEdit->text(), "");
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
        QVERIFY2(!dialog.isOkEnabled(), typeKeys[shownType]);
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

REGISTER_TEST(DialogTypeChoiceTest)
#include "DialogTypeChoiceTest.moc"
