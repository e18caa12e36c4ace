// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The dialog by keyboard: where typing goes at first, and where Tab leads.

#include <QtTest>

#include "DialogFixture.h"
#include "FakeHost.h"
#include "TraceRecorder.h"

class DialogKeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsInTheName();
    void tabOrder();
    void returnInAField_data();
    void returnInAField();
    void returnWhileOkIsDisabled();
};

void DialogKeyboard::startsInTheName()
{
    const TraceRecorder quiet;
    const OpenDialog dialog;
    QCOMPARE(FakeHost::instance().frames.first().frame->focusWidget(),
             memberOf(dialog.get(), QLatin1String("m_appNameEdit")).object);
}

void DialogKeyboard::tabOrder()
{
    const TraceRecorder quiet;
    const OpenDialog dialog;
    const QStringList order = names("m_appNameEdit m_appTypeChoice m_appPathEdit m_browseBtn m_appParamEdit "
                                    "m_launchWhenSWLaunchCB m_launchWhenConnectCB m_launchWhenSWLaunchCBForEmail "
                                    "m_launchWhenConnectCBForEmail m_EditUrlName m_launchWhenSWLaunchCBForInternet "
                                    "m_launchWhenConnectCBForInternet m_okBtn m_cancelBtn");
    QStringList walked;
    const QWidget* const first = qobject_cast<QWidget*>(memberOf(dialog.get(), order.first()).object);
    QVERIFY(first);
    const QWidget* widget = first;
    do {
        if (order.contains(widget->objectName()))
            walked.append(widget->objectName());
        widget = widget->nextInFocusChain();
    } while (widget != first);
    QCOMPARE(walked, order);
}

void DialogKeyboard::returnInAField_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("field");
    QTest::newRow("application name") << 0 << QString::fromLatin1("m_appNameEdit");
    QTest::newRow("application path") << 0 << QString::fromLatin1("m_appPathEdit");
    QTest::newRow("application parameters") << 0 << QString::fromLatin1("m_appParamEdit");
    QTest::newRow("e-mail name") << 1 << QString::fromLatin1("m_appNameEdit");
    QTest::newRow("address") << 2 << QString::fromLatin1("m_EditUrlName");
}

void DialogKeyboard::returnInAField()
{
    QFETCH(int, type);
    QFETCH(QString, field);
    const TraceRecorder quiet;
    OpenDialog dialog;
    dialog.fill(type, "Name", type == 0 ? "/" : "http://example.org/");
    QTest::keyClick(qobject_cast<QWidget*>(memberOf(dialog.get(), field).object), Qt::Key_Return);
    QCOMPARE(dialog.added.size(), 1);
    QVERIFY(!dialog.isOpen());
}

void DialogKeyboard::returnWhileOkIsDisabled()
{
    const TraceRecorder quiet;
    const OpenDialog dialog;
    QVERIFY(!dialog.isOkEnabled());
    QTest::keyClick(qobject_cast<QWidget*>(memberOf(dialog.get(), QLatin1String("m_appNameEdit")).object),
                    Qt::Key_Return);
    QVERIFY(dialog.isOpen());
    QVERIFY(dialog.added.isEmpty());
}

QTEST_MAIN(DialogKeyboard)
#include "tst_dialog_keyboard.moc"
