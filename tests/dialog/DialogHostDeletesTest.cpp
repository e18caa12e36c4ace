// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The host deletes the widget that the dialog was shown over: the dialog is as before its first showing.

#include <QComboBox>
#include <QLineEdit>
#include <QTabWidget>

#include "FakeHost.h"
#include "OpenDialog.h"
#include "RecordingTrace.h"
#include "Test.h"

class DialogHostDeletesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everythingIsForgotten_data();
    void everythingIsForgotten();
    void partIsForgotten_data();
    void partIsForgotten();
    void stateStays();
    void cancelStillTells();
    void deletedAfterClosing();
    void showingAgainBuildsAnew();
    void hundredTimes();
};

void DialogHostDeletesTest::everythingIsForgotten_data()
{
    QTest::addColumn<bool>("byHost");
    QTest::newRow("host's widget deleted") << true;
    QTest::newRow("frame alone deleted") << false;
}

void DialogHostDeletesTest::everythingIsForgotten()
{
    QFETCH(bool, byHost);
    OpenDialog dialog;
    const QList<PointerMember> members = membersOf(dialog.get());
    QList<QPointer<QObject>> objects;
    for (const PointerMember& member : members) {
        QVERIFY2(member.object, member.name);
        objects << member.object;
    }
    if (byHost)
        dialog.deleteHost();
    else
        delete dialog->m_frameDialog;
    for (int i = 0; i < members.size(); ++i) {
        QVERIFY2(!objects.at(i), members.at(i).name);
        QVERIFY2(members.at(i).isNull(), members.at(i).name);
    }
    QCOMPARE(dialog.host() == nullptr, byHost);
}

void DialogHostDeletesTest::partIsForgotten_data()
{
    QStringList widgets;
    const OpenDialog dialog;
    const QList<PointerMember> members = membersOf(dialog.get());
    for (const PointerMember& member : members) {
        if (member.object->isWidgetType())
            widgets.append(member.name);
    }
    addMemberRows(widgets);
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
    QCOMPARE(dialog.options(), "01");
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
    dialog.fill(1, "Mail");
    dialog.pressOk();
    dialog.deleteHost();
    QVERIFY(!dialog->m_frameDialog);
    QCOMPARE(dialog->m_record, dialog.addedObjects.first());
}

void DialogHostDeletesTest::showingAgainBuildsAnew()
{
    OpenDialog dialog;
    dialog.fill(2, "News", "www.example.org");
    QScopedPointer<QWidget> other(new QWidget);
    dialog.deleteHost();
    dialog->ShowNewEditDlg(other.data());
    const QPointer<ExtendDialog> frame = dialog->m_frameDialog;
    QVERIFY(frame);
    QCOMPARE(FakeHost::instance().frames.size(), 2);
    QCOMPARE(frame->parentWidget(), other.data());
    QVERIFY(dialog.isOpen());
    QVERIFY(!dialog.isOkEnabled());
    QCOMPARE(dialog->m_appNameEdit->text(), "");
    QCOMPARE(dialog->m_appTypeChoice->currentIndex(), 0);
    QCOMPARE(dialog->m_appTabWidget->count(), 1);
    dialog.fill(1, "Mail");
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), 1);

    other.reset();
    QVERIFY(!frame);
    QVERIFY(!dialog->m_frameDialog);
    QVERIFY(!dialog->m_okBtn);
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
