// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The launch options: only clicks on the six check boxes set them, choosing a type clears them.

#include <QCheckBox>
#include <QComboBox>

#include "OpenDialog.h"
#include "FakeHost.h"
#include "Test.h"

class DialogLaunchOptionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void click_data();
    void click();
    void setCheckedIsNotAClick_data() { click_data(); }
    void setCheckedIsNotAClick();
    void boxesAreIndependent_data() { click_data(); }
    void boxesAreIndependent();
    void boxesKeepTheirStateThroughTypes_data() { click_data(); }
    void boxesKeepTheirStateThroughTypes();
    void slotsDoNothingElse();
    void tickLostByARoundOfTypes();
    void tickOfAnotherPanelCounts();
    void lastClickDecides();

private:
    static QCheckBox* box(const OpenDialog& dialog, const QString& member);
    static QStringList allBoxes();
};

QCheckBox* DialogLaunchOptionsTest::box(const OpenDialog& dialog, const QString& member)
{
    return qobject_cast<QCheckBox*>(memberOf(dialog.get(), member).object);
}

QStringList DialogLaunchOptionsTest::allBoxes()
{
    return names("m_launchWhenSWLaunchCB m_launchWhenConnectCB m_launchWhenSWLaunchCBForEmail "
                 "m_launchWhenConnectCBForEmail m_launchWhenSWLaunchCBForInternet m_launchWhenConnectCBForInternet");
}

void DialogLaunchOptionsTest::click_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isOnSoftware");
    const QStringList all = allBoxes();
    for (int i = 0; i < all.size(); ++i)
        QTest::newRow(qPrintable(all.at(i))) << all.at(i) << i / 2 << (i % 2 == 0);
}

void DialogLaunchOptionsTest::click()
{
    QFETCH(QString, member);
    QFETCH(int, type);
    QFETCH(bool, isOnSoftware);
    OpenDialog dialog;
    dialog.chooseType(type);
    QVERIFY(box(dialog, member)->isVisible());
    const QString& option = isOnSoftware ? dialog->m_launchOnSoftware : dialog->m_launchOnConnect;
    const QString& other = isOnSoftware ? dialog->m_launchOnConnect : dialog->m_launchOnSoftware;
    QTest::keyClick(box(dialog, member), Qt::Key_Space);
    QCOMPARE(option, "1");
    QCOMPARE(other, "0");
    QTest::keyClick(box(dialog, member), Qt::Key_Space);
    QCOMPARE(option, "0");
    QCOMPARE(other, "0");
}

void DialogLaunchOptionsTest::setCheckedIsNotAClick()
{
    QFETCH(QString, member);
    OpenDialog dialog;
    box(dialog, member)->setChecked(true);
    QCOMPARE(dialog->m_launchOnSoftware, "0");
    QCOMPARE(dialog->m_launchOnConnect, "0");
}

void DialogLaunchOptionsTest::boxesAreIndependent()
{
    QFETCH(QString, member);
    OpenDialog dialog;
    box(dialog, member)->click();
    const QStringList all = allBoxes();
    for (const QString& one : all)
        QCOMPARE(box(dialog, one)->isChecked(), one == member);
}

void DialogLaunchOptionsTest::boxesKeepTheirStateThroughTypes()
{
    QFETCH(QString, member);
    OpenDialog dialog;
    box(dialog, member)->click();
    for (int type = 2; type >= 0; --type) {
        dialog.chooseType(type);
        QVERIFY(box(dialog, member)->isChecked());
        QCOMPARE(dialog->m_launchOnSoftware, "0");
        QCOMPARE(dialog->m_launchOnConnect, "0");
    }
}

void DialogLaunchOptionsTest::slotsDoNothingElse()
{
    const OpenDialog dialog;
    dialog->onSelectLaunchOnsoftware(true);
    dialog->onSelectLaunchOnConnect(true);
    QCOMPARE(dialog->m_launchOnSoftware, "1");
    QCOMPARE(dialog->m_launchOnConnect, "1");
    const QStringList all = allBoxes();
    for (const QString& one : all)
        QVERIFY(!box(dialog, one)->isChecked());
    QVERIFY(!dialog.isOkEnabled());
    dialog->onSelectLaunchOnsoftware(false);
    QCOMPARE(dialog->m_launchOnSoftware, "0");
    QCOMPARE(dialog->m_launchOnConnect, "1");
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
    dialog.fill(1, "Name", "");
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
    OpenDialog dialog;
    dialog->m_launchWhenConnectCB->click();
    dialog->m_launchWhenConnectCBForEmail->setChecked(true);
    dialog->m_launchWhenConnectCBForEmail->click();
    QVERIFY(dialog->m_launchWhenConnectCB->isChecked());
    QCOMPARE(dialog->m_launchOnConnect, "0");
}

REGISTER_TEST(DialogLaunchOptionsTest)
#include "DialogLaunchOptionsTest.moc"
