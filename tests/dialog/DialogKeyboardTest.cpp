// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The dialog by keyboard: where typing goes at first, where Tab leads, and what Return does.

#include <QLineEdit>

#include "FakeHost.h"
#include "OpenDialog.h"
#include "Test.h"

class DialogKeyboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsInTheName();
    void tabOrder();
    void returnInAField_data();
    void returnInAField();
    void returnWhileOkIsDisabled();
};

void DialogKeyboardTest::startsInTheName()
{
    const OpenDialog dialog;
    QCOMPARE(dialog->m_frameDialog->focusWidget(), static_cast<QWidget*>(dialog->m_appNameEdit));
}

void DialogKeyboardTest::tabOrder()
{
    const OpenDialog dialog;
    const QStringList order = names("m_appNameEdit m_appTypeChoice m_appPathEdit m_browseBtn m_appParamEdit "
                                    "m_launchWhenSWLaunchCB m_launchWhenConnectCB m_launchWhenSWLaunchCBForEmail "
                                    "m_launchWhenConnectCBForEmail m_EditUrlName m_launchWhenSWLaunchCBForInternet "
                                    "m_launchWhenConnectCBForInternet m_okBtn m_cancelBtn");
    QStringList walked;
    const QWidget* widget = dialog->m_appNameEdit;
    do {
        if (order.contains(widget->objectName()))
            walked.append(widget->objectName());
        widget = widget->nextInFocusChain();
    } while (widget != dialog->m_appNameEdit);
    QCOMPARE(walked, order);
}

void DialogKeyboardTest::returnInAField_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("field");
    QTest::newRow("application name") << 0 << "m_appNameEdit";
    QTest::newRow("application path") << 0 << "m_appPathEdit";
    QTest::newRow("application parameters") << 0 << "m_appParamEdit";
    QTest::newRow("e-mail name") << 1 << "m_appNameEdit";
    QTest::newRow("address") << 2 << "m_EditUrlName";
}

void DialogKeyboardTest::returnInAField()
{
    QFETCH(int, type);
    QFETCH(QString, field);
    OpenDialog dialog;
    dialog.fill(type, "Name", type == 0 ? "/" : "http://example.org/");
    QTest::keyClick(dialog.find<QLineEdit>(field), Qt::Key_Return);
    QCOMPARE(dialog.added.size(), 1);
    QVERIFY(!dialog.isOpen());
}

void DialogKeyboardTest::returnWhileOkIsDisabled()
{
    const OpenDialog dialog;
    QVERIFY(!dialog.isOkEnabled());
    QTest::keyClick(dialog->m_appNameEdit, Qt::Key_Return);
    QVERIFY(dialog.isOpen());
    QVERIFY(dialog.added.isEmpty());
}

REGISTER_TEST(DialogKeyboardTest)
#include "DialogKeyboardTest.moc"
