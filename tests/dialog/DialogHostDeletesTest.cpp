// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The host deletes the widget that the dialog was shown over: the dialog is as before its first showing.

#include <QComboBox>
#include <QLineEdit>
#include <QTabWidget>

#include "OpenDialog.h"
#include "ExtendDialog.h"
#include "FakeHost.h"
#include "RecordingTrace.h"
#include "Test.h"

class DialogHostDeletesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void memberIsForgotten_data();
    void memberIsForgotten();
    void frameAloneIsDeleted();
    void partIsForgotten_data();
    void partIsForgotten();
    void stateStays();
    void operationDoesNothing_data();
    void operationDoesNothing();
    void cancelStillTells();
    void deletedAfterClosing();
    void showingAgainBuildsAnew();
    void oldFrameDoesNotTakeTheNewOne();
    void deletedBeforeTheFirstShowing();
    void hundredTimes();
};

void DialogHostDeletesTest::memberIsForgotten_data()
{
    QTest::addColumn<QString>("member");
    QuickLinkSettingNewEditDlg dialog;
    const QList<PointerMember> members = membersOf(&dialog);
    for (const PointerMember& member : members)
        QTest::newRow(member.name) << QString::fromLatin1(member.name);
}

void DialogHostDeletesTest::memberIsForgotten()
{
    QFETCH(QString, member);
    OpenDialog dialog;
    const QPointer<QObject> object = memberOf(dialog.get(), member).object;
    QVERIFY(object);
    dialog.deleteHost();
    QVERIFY(!object);
    QVERIFY(memberOf(dialog.get(), member).isNull());
}

void DialogHostDeletesTest::frameAloneIsDeleted()
{
    OpenDialog dialog;
    delete dialog->m_frameDialog;
    const QList<PointerMember> members = membersOf(dialog.get());
    for (const PointerMember& member : members)
        QVERIFY2(member.isNull(), member.name);
    QVERIFY(dialog.host());
}

void DialogHostDeletesTest::partIsForgotten_data()
{
    QTest::addColumn<QString>("member");
    const OpenDialog dialog;
    const QList<PointerMember> members = membersOf(dialog.get());
    for (const PointerMember& member : members) {
        if (member.object->isWidgetType())
            QTest::newRow(member.name) << QString::fromLatin1(member.name);
    }
}

void DialogHostDeletesTest::partIsForgotten()
{
    QFETCH(QString, member);
    OpenDialog dialog;
    delete memberOf(dialog.get(), member).object;
    QVERIFY(memberOf(dialog.get(), member).isNull());
    dialog->SetLanguage();
    dialog->OnSelectComboItem(0);
    dialog->onEnterNameInApplication();
    dialog->onDeleteNameInApplication();
}

void DialogHostDeletesTest::stateStays()
{
    OpenDialog dialog;
    dialog->onNewEditClicked(true, "News");
    dialog.fill(0, "News", "/no/such/file");
    dialog->onSelectLaunchOnConnect(true);
    dialog.pressOk();
    const QuickLinkRecord* const record = dialog->m_record;
    QVERIFY(record);
    dialog.deleteHost();
    QCOMPARE(dialog->m_record, record);
    QCOMPARE(dialog->m_isEdit, true);
    QCOMPARE(dialog->m_editedName, "News");
    QCOMPARE(dialog->m_launchOnConnect, "1");
}

void DialogHostDeletesTest::operationDoesNothing_data()
{
    QTest::addColumn<QByteArray>("operation");
    QTest::addColumn<QByteArray>("argument");
    const char* const plain[] = {"onClickOkButton", "onEnterNameInApplication", "onDeleteNameInApplication",
                                 "SetLanguage"};
    for (const char* operation : plain)
        QTest::newRow(operation) << QByteArray(operation) << QByteArray();
    const char* const types[] = {"0", "1", "2"};
    for (const char* type : types) {
        const QByteArray title = QByteArray("OnSelectComboItem ") + type;
        QTest::newRow(title.constData()) << QByteArray("OnSelectComboItem") << QByteArray(type);
    }
}

void DialogHostDeletesTest::operationDoesNothing()
{
    QFETCH(QByteArray, operation);
    QFETCH(QByteArray, argument);
    OpenDialog dialog;
    dialog.fill(2, "News", "www.example.org");
    dialog->onSelectLaunchOnConnect(true);
    dialog.deleteHost();
    const RecordingTrace trace;
    if (operation == "SetLanguage")
        dialog->SetLanguage();
    else if (argument.isEmpty())
        QVERIFY(QMetaObject::invokeMethod(dialog.get(), operation.constData()));
    else
        QVERIFY(QMetaObject::invokeMethod(dialog.get(), operation.constData(), Q_ARG(int, argument.toInt())));
    QCOMPARE(trace.countDebug(nullTrace(operation.constData())), 1);
    QCOMPARE(trace.warningLines, QStringList());
    QVERIFY(dialog.added.isEmpty());
    QVERIFY(FakeHost::instance().messages.isEmpty());
    QCOMPARE(dialog->m_launchOnConnect, "1");
}

void DialogHostDeletesTest::cancelStillTells()
{
    OpenDialog dialog;
    dialog.deleteHost();
    dialog->onButtonClickCancelNew();
    QCOMPARE(dialog.wasOpenWhenCancelled.size(), 1);
}

void DialogHostDeletesTest::deletedAfterClosing()
{
    OpenDialog dialog;
    dialog.fill(1, "Mail", "");
    dialog.pressOk();
    dialog.deleteHost();
    QVERIFY(!dialog->m_frameDialog);
    QCOMPARE(dialog->m_record, dialog.addedObjects.first());
}

void DialogHostDeletesTest::showingAgainBuildsAnew()
{
    OpenDialog dialog;
    dialog.fill(2, "News", "www.example.org");
    dialog.deleteHost();
    QWidget other;
    dialog->ShowNewEditDlg(&other);
    QCOMPARE(FakeHost::instance().frames.size(), 2);
    QVERIFY(dialog->m_frameDialog);
    QCOMPARE(dialog->m_frameDialog->parentWidget(), &other);
    QVERIFY(dialog.isOpen());
    QVERIFY(!dialog.isOkEnabled());
    QCOMPARE(dialog->m_appNameEdit->text(), QString());
    QCOMPARE(dialog->m_appTypeChoice->currentIndex(), 0);
    QCOMPARE(dialog->m_appTabWidget->count(), 1);
    dialog.fill(1, "Mail", "");
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), 1);
}

void DialogHostDeletesTest::oldFrameDoesNotTakeTheNewOne()
{
    OpenDialog dialog;
    QWidget* const other = new QWidget;
    dialog.deleteHost();
    dialog->ShowNewEditDlg(other);
    const QPointer<ExtendDialog> frame = dialog->m_frameDialog;
    QVERIFY(frame);
    delete other;
    QVERIFY(!frame);
    QVERIFY(!dialog->m_frameDialog);
    QVERIFY(!dialog->m_okBtn);
}

void DialogHostDeletesTest::deletedBeforeTheFirstShowing()
{
    FakeHost::instance().reset();
    QuickLinkSettingNewEditDlg dialog;
    const RecordingTrace trace;
    dialog.SetLanguage();
    dialog.OnSelectComboItem(1);
    dialog.onEnterNameInApplication();
    dialog.onDeleteNameInApplication();
    QCOMPARE(trace.countDebug(nullTrace("[A-Za-z]+")), 4);
    QVERIFY(FakeHost::instance().frames.isEmpty());
}

void DialogHostDeletesTest::hundredTimes()
{
    const RecordingTrace quiet;
    OpenDialog dialog;
    dialog.deleteHost();
    for (int i = 0; i < 100; ++i) {
        QWidget host;
        dialog->ShowNewEditDlg(&host);
        QVERIFY(dialog.isOpen());
    }
    QVERIFY(!dialog->m_frameDialog);
    QCOMPARE(FakeHost::instance().frames.size(), 101);
}

REGISTER_TEST(DialogHostDeletesTest)
#include "DialogHostDeletesTest.moc"
