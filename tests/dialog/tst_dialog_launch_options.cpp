// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The launch options: only clicks on the six check boxes set them, choosing a type clears them.

#include <QCheckBox>
#include <QComboBox>
#include <QtTest>

#include "DialogFixture.h"
#include "FakeHost.h"

class DialogLaunchOptions : public QObject
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

QCheckBox* DialogLaunchOptions::box(const OpenDialog& dialog, const QString& member)
{
    return qobject_cast<QCheckBox*>(memberOf(dialog.get(), member).object);
}

QStringList DialogLaunchOptions::allBoxes()
{
    return names("m_launchWhenSWLaunchCB m_launchWhenConnectCB m_launchWhenSWLaunchCBForEmail "
                 "m_launchWhenConnectCBForEmail m_launchWhenSWLaunchCBForInternet m_launchWhenConnectCBForInternet");
}

void DialogLaunchOptions::click_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isOnSoftware");
    const QStringList all = allBoxes();
    for (int i = 0; i < all.size(); ++i)
        QTest::newRow(qPrintable(all.at(i))) << all.at(i) << i / 2 << (i % 2 == 0);
}

void DialogLaunchOptions::click()
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
    QCOMPARE(option, QString::fromLatin1("1"));
    QCOMPARE(other, QString::fromLatin1("0"));
    QTest::keyClick(box(dialog, member), Qt::Key_Space);
    QCOMPARE(option, QString::fromLatin1("0"));
    QCOMPARE(other, QString::fromLatin1("0"));
}

void DialogLaunchOptions::setCheckedIsNotAClick()
{
    QFETCH(QString, member);
    OpenDialog dialog;
    box(dialog, member)->setChecked(true);
    QCOMPARE(dialog->m_launchOnSoftware, QString::fromLatin1("0"));
    QCOMPARE(dialog->m_launchOnConnect, QString::fromLatin1("0"));
}

void DialogLaunchOptions::boxesAreIndependent()
{
    QFETCH(QString, member);
    OpenDialog dialog;
    box(dialog, member)->click();
    const QStringList all = allBoxes();
    for (const QString& one : all)
        QCOMPARE(box(dialog, one)->isChecked(), one == member);
}

void DialogLaunchOptions::boxesKeepTheirStateThroughTypes()
{
    QFETCH(QString, member);
    OpenDialog dialog;
    box(dialog, member)->click();
    for (int type = 2; type >= 0; --type) {
        dialog.chooseType(type);
        QVERIFY(box(dialog, member)->isChecked());
        QCOMPARE(dialog->m_launchOnSoftware, QString::fromLatin1("0"));
        QCOMPARE(dialog->m_launchOnConnect, QString::fromLatin1("0"));
    }
}

void DialogLaunchOptions::slotsDoNothingElse()
{
    const OpenDialog dialog;
    dialog->onSelectLaunchOnsoftware(true);
    dialog->onSelectLaunchOnConnect(true);
    QCOMPARE(dialog->m_launchOnSoftware, QString::fromLatin1("1"));
    QCOMPARE(dialog->m_launchOnConnect, QString::fromLatin1("1"));
    const QStringList all = allBoxes();
    for (const QString& one : all)
        QVERIFY(!box(dialog, one)->isChecked());
    QVERIFY(!dialog.isOkEnabled());
    dialog->onSelectLaunchOnsoftware(false);
    QCOMPARE(dialog->m_launchOnSoftware, QString::fromLatin1("0"));
    QCOMPARE(dialog->m_launchOnConnect, QString::fromLatin1("1"));
}

void DialogLaunchOptions::tickLostByARoundOfTypes()
{
    OpenDialog dialog;
    QTest::keyClick(dialog->m_launchWhenConnectCB, Qt::Key_Space);
    dialog.chooseType(2);
    dialog.fill(0, "Folder", "/");
    QVERIFY(dialog->m_launchWhenConnectCB->isChecked());
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), 1);
    QCOMPARE(dialog.added.first().startconnect, QString::fromLatin1("0"));
}

void DialogLaunchOptions::tickOfAnotherPanelCounts()
{
    // The choice moved by code: the e-mail panel is still the one on the screen.
    OpenDialog dialog;
    dialog.fill(1, "Name", "");
    QTest::keyClick(dialog->m_launchWhenSWLaunchCBForEmail, Qt::Key_Space);
    dialog->m_appTypeChoice->setCurrentIndex(2);
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), 1);
    QCOMPARE(dialog.added.first().type, QString::fromLatin1("IDS_LINK_TYPE_INTERNET"));
    QCOMPARE(dialog.added.first().startmobile, QString::fromLatin1("1"));
    QCOMPARE(dialog.added.first().startconnect, QString::fromLatin1("0"));
}

void DialogLaunchOptions::lastClickDecides()
{
    OpenDialog dialog;
    dialog->m_launchWhenConnectCB->click();
    dialog->m_launchWhenConnectCBForEmail->setChecked(true);
    dialog->m_launchWhenConnectCBForEmail->click();
    QVERIFY(dialog->m_launchWhenConnectCB->isChecked());
    QCOMPARE(dialog->m_launchOnConnect, QString::fromLatin1("0"));
}

QTEST_MAIN(DialogLaunchOptions)
#include "tst_dialog_launch_options.moc"
