// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The launch options: only clicks on the six check boxes set them, choosing a type clears them.

#include <QCheckBox>
#include <QComboBox>

#include "FakeHost.h"
#include "OpenDialog.h"
#include "Test.h"

class DialogLaunchOptionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void box_data();
    void box();
    void slotsDoNothingElse();
    void tickLostByARoundOfTypes();
    void tickOfAnotherPanelCounts();
    void lastClickDecides();

private:
    static QStringList tickedBoxes(const OpenDialog& dialog);
};

QStringList DialogLaunchOptionsTest::tickedBoxes(const OpenDialog& dialog)
{
    QStringList ticked;
    const QList<QCheckBox*> boxes = dialog->m_frameDialog->findChildren<QCheckBox*>();
    for (const QCheckBox* box : boxes) {
        if (box->isChecked())
            ticked.append(box->objectName());
    }
    return ticked;
}

void DialogLaunchOptionsTest::box_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("options");
    QTest::newRow("m_launchWhenSWLaunchCB") << 0 << "10";
    QTest::newRow("m_launchWhenConnectCB") << 0 << "01";
    QTest::newRow("m_launchWhenSWLaunchCBForEmail") << 1 << "10";
    QTest::newRow("m_launchWhenConnectCBForEmail") << 1 << "01";
    QTest::newRow("m_launchWhenSWLaunchCBForInternet") << 2 << "10";
    QTest::newRow("m_launchWhenConnectCBForInternet") << 2 << "01";
}

void DialogLaunchOptionsTest::box()
{
    QFETCH(int, type);
    QFETCH(QString, options);
    OpenDialog dialog;
    QCheckBox* const box = dialog.find<QCheckBox>(QTest::currentDataTag());
    box->setChecked(true);
    QCOMPARE(dialog.options(), "00");
    box->setChecked(false);

    dialog.chooseType(type);
    QVERIFY(box->isVisible());
    QTest::keyClick(box, Qt::Key_Space);
    QCOMPARE(dialog.options(), options);
    QCOMPARE(tickedBoxes(dialog), QStringList(box->objectName()));
    QTest::keyClick(box, Qt::Key_Space);
    QCOMPARE(dialog.options(), "00");

    QTest::keyClick(box, Qt::Key_Space);
    for (int next = 2; next >= 0; --next) {
        dialog.chooseType(next);
        QVERIFY(box->isChecked());
        QCOMPARE(dialog.options(), "00");
    }
}

void DialogLaunchOptionsTest::slotsDoNothingElse()
{
    const OpenDialog dialog;
    dialog->onSelectLaunchOnsoftware(true);
    dialog->onSelectLaunchOnConnect(true);
    QCOMPARE(dialog.options(), "11");
    QCOMPARE(tickedBoxes(dialog), QStringList());
    QVERIFY(!dialog.isOkEnabled());
    dialog->onSelectLaunchOnsoftware(false);
    QCOMPARE(dialog.options(), "01");
}

void DialogLaunchOptionsTest::tickLostByARoundOfTypes()
{
    OpenDialog dialog;
    QTest::keyClick(dialog->m_launchWhenConnectCB, Qt::Key_Space);
    dialog.chooseType(2);
    dialog.fill(0, "Folder", "/");
    QVERIFY(dialog->m_launchWhenConnectCB->isChecked());
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), 1);
    QCOMPARE(dialog.added.first().startconnect, "0");
}

void DialogLaunchOptionsTest::tickOfAnotherPanelCounts()
{
    // The choice moved by code: the e-mail panel is still the one on the screen.
    OpenDialog dialog;
    dialog.fill(1, "Name");
    QTest::keyClick(dialog->m_launchWhenSWLaunchCBForEmail, Qt::Key_Space);
    dialog->m_appTypeChoice->setCurrentIndex(2);
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), 1);
    QCOMPARE(dialog.added.first().type, "IDS_LINK_TYPE_INTERNET");
    QCOMPARE(dialog.added.first().startmobile, "1");
    QCOMPARE(dialog.added.first().startconnect, "0");
}

void DialogLaunchOptionsTest::lastClickDecides()
{
    const OpenDialog dialog;
    dialog->m_launchWhenConnectCB->click();
    dialog->m_launchWhenConnectCBForEmail->setChecked(true);
    dialog->m_launchWhenConnectCBForEmail->click();
    QVERIFY(dialog->m_launchWhenConnectCB->isChecked());
    QCOMPARE(dialog.options(), "00");
}

REGISTER_TEST(DialogLaunchOptionsTest)
#include "DialogLaunchOptionsTest.moc"
