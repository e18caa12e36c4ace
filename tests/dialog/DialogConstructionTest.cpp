// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The New/Edit dialog's object before and after its first showing: members, meta-object, frame, state.

#include <cstring>

#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QTabWidget>

#include "FakeHost.h"
#include "OpenDialog.h"
#include "ShownPage.h"
#include "Test.h"

typedef QuickLinkSettingNewEditDlg Dialog;

class DialogConstructionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { FakeHost::instance().reset(); }

    void freshObject();
    void freshObjectMakesNoWidget();
    void membersStandInTheirOrder();
    void metaMethod_data();
    void metaMethod();
    void noFurtherMetaMethod();
    void frame();
    void frameWithoutParent();
    void objectItselfIsNeverShown();
    void everythingIsInTheFrame();
    void firstState();
    void secondShowingBuildsNothing();
    void frameThatIsThereIsOnlyShown();
    void showingAgainAfterClosing();
    void destructorLeavesTheFrame();
    void destructorLeavesTheRecord();
};

void DialogConstructionTest::freshObject()
{
    // Memory that is not zero by chance.
    void* const memory = operator new(sizeof(Dialog));
    std::memset(memory, 0x5a, sizeof(Dialog));
    const QScopedPointer<Dialog> dialog(new (memory) Dialog);
    const QList<PointerMember> members = membersOf(dialog.data());
    for (const PointerMember& member : members)
        QVERIFY2(member.isNull(), member.name);
    QCOMPARE(dialog->m_launchOnSoftware, "0");
    QCOMPARE(dialog->m_launchOnConnect, "0");
    QCOMPARE(dialog->m_isEdit, false);
    QCOMPARE(dialog->m_editedName, "");
    QVERIFY(!dialog->m_record);
    QVERIFY(!dialog->parent());
    QCOMPARE(dialog->windowFlags() & ~Qt::WindowType_Mask, QWidget().windowFlags() & ~Qt::WindowType_Mask);
}

void DialogConstructionTest::freshObjectMakesNoWidget()
{
    const int before = QApplication::allWidgets().size();
    const Dialog dialog;
    QCOMPARE(QApplication::allWidgets().size(), before + 1);
    QVERIFY(dialog.findChildren<QWidget*>().isEmpty());
    QVERIFY(FakeHost::instance().frames.isEmpty());
}

void DialogConstructionTest::membersStandInTheirOrder()
{
    Dialog dialog;
    QList<const void*> addresses;
    const QList<PointerMember> members = membersOf(&dialog);
    for (const PointerMember& member : members)
        addresses << member.address;
    addresses << &dialog.m_launchOnSoftware << &dialog.m_launchOnConnect << &dialog.m_isEdit << &dialog.m_editedName
              << &dialog.m_record;
    for (int i = 1; i < addresses.size(); ++i)
        QVERIFY2(addresses.at(i - 1) < addresses.at(i), QByteArray::number(i).constData());
}

void DialogConstructionTest::metaMethod_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("access");
    const char* const methods[] = {"addRecord(QuickLinkRecord*)",
                                   "cancelNewButton()",
                                   "initializeUI()",
                                   "onButtonClickCancelNew()",
                                   "onClickBrowseButton()",
                                   "onEnterNameInApplication()",
                                   "onDeleteNameInApplication()",
                                   "onSelectLaunchOnsoftware(bool)",
                                   "onSelectLaunchOnConnect(bool)",
                                   "onClickOkButton()",
                                   "OnSelectComboItem(int)"};
    for (int i = 0; i < 11; ++i) {
        const QMetaMethod::Access slotAccess = i == 10 ? QMetaMethod::Public : QMetaMethod::Private;
        QTest::newRow(methods[i]) << i << int(i < 2 ? QMetaMethod::Signal : QMetaMethod::Slot)
                                  << int(i < 2 ? signalAccess : slotAccess);
    }
}

void DialogConstructionTest::metaMethod()
{
    QFETCH(int, index);
    const QMetaObject& meta = Dialog::staticMetaObject;
    const QMetaMethod method = meta.method(meta.methodOffset() + index);
    QCOMPARE(signatureOf(method), QTest::currentDataTag());
    QTEST(int(method.methodType()), "type");
    QTEST(int(method.access()), "access");
    QCOMPARE(returnTypeOf(method), "void");
}

void DialogConstructionTest::noFurtherMetaMethod()
{
    const QMetaObject& meta = Dialog::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 11);
    QCOMPARE(QByteArray(meta.className()), "QuickLinkSettingNewEditDlg");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
}

void DialogConstructionTest::frame()
{
    // Showing it does not block: that would wait for a user here.
    const OpenDialog dialog;
    QCOMPARE(FakeHost::instance().frames.size(), 1);
    const MadeFrame& made = FakeHost::instance().frames.first();
    QCOMPARE(made.frame.data(), dialog->m_frameDialog);
    QCOMPARE(made.parent.data(), dialog.host());
    QCOMPARE(int(made.flags), int(Qt::WindowCloseButtonHint));
    QCOMPARE(made.widgetType, 1);
    QCOMPARE(made.flag, false);
    QCOMPARE(made.titles, QStringList());
    QCOMPARE(made.mainWidget.data(), dialog->m_mainWidget);
    QCOMPARE(dialog->m_mainWidget->parent(), static_cast<QObject*>(made.frame));
    QCOMPARE(made.frame->size(), QSize(345, 360));
    QCOMPARE(made.frame->minimumSize(), QSize(345, 360));
    QCOMPARE(made.frame->maximumSize(), QSize(345, 360));
    QCOMPARE(made.frame->windowModality(), Qt::WindowModal);
    QVERIFY(made.frame->isVisible());
}

void DialogConstructionTest::frameWithoutParent()
{
    Dialog dialog;
    dialog.ShowNewEditDlg(nullptr);
    const QScopedPointer<ExtendDialog> frame(dialog.m_frameDialog);
    QVERIFY(frame);
    QVERIFY(!frame->parent());
    QVERIFY(frame->isVisible());
}

void DialogConstructionTest::objectItselfIsNeverShown()
{
    const OpenDialog dialog;
    QVERIFY(!dialog->isVisible());
    QVERIFY(dialog->findChildren<QWidget*>().isEmpty());
}

void DialogConstructionTest::everythingIsInTheFrame()
{
    // What is not would outlive it.
    const OpenDialog dialog;
    const QList<PointerMember> members = membersOf(dialog.get());
    for (const PointerMember& member : members) {
        const QObject* ancestor = member.object;
        while (ancestor && ancestor != dialog->m_frameDialog)
            ancestor = ancestor->parent();
        QVERIFY2(ancestor, member.name);
    }
}

void DialogConstructionTest::firstState()
{
    const OpenDialog dialog;
    QVERIFY(!dialog.isOkEnabled());
    QVERIFY(dialog->m_cancelBtn->isEnabled());
    QCOMPARE(dialog.shownPanel(), 0);
    QVERIFY(dialog->m_EmailTab->isHidden());
    QVERIFY(dialog->m_InternetTab->isHidden());
    QCOMPARE(dialog->m_appTypeChoice->currentIndex(), 0);
    QCOMPARE(dialog->m_appTabWidget->count(), 1);
    QCOMPARE(dialog->m_appTabWidget->widget(0), dialog->m_appTab);
    QCOMPARE(dialog.options(), "00");
    QVERIFY(!dialog->m_record);
}

void DialogConstructionTest::secondShowingBuildsNothing()
{
    const OpenDialog dialog;
    const ExtendDialog* const frame = dialog->m_frameDialog;
    const int widgets = QApplication::allWidgets().size();
    QWidget other;
    dialog->ShowNewEditDlg(&other);
    QCOMPARE(dialog->m_frameDialog, frame);
    QCOMPARE(dialog->m_frameDialog->parentWidget(), dialog.host());
    QCOMPARE(QApplication::allWidgets().size(), widgets + 1);
    QCOMPARE(FakeHost::instance().frames.size(), 1);
    QCOMPARE(dialog->m_appTypeChoice->count(), 3);
}

void DialogConstructionTest::frameThatIsThereIsOnlyShown()
{
    const OpenDialog dialog;
    dialog->m_frameDialog->hide();
    const RecordingTrace trace;
    {
        const NullMember missing(memberOf(dialog.get(), "m_appTabWidget"));
        dialog->ShowNewEditDlg(dialog.host());
        QVERIFY(!dialog->m_appTabWidget);
    }
    QVERIFY(dialog.isOpen());
    QCOMPARE(trace.countDebug(".*Cell-Log UI Intialization Failed.*"), 0);
}

void DialogConstructionTest::showingAgainAfterClosing()
{
    OpenDialog dialog;
    dialog.pressCancel();
    QVERIFY(!dialog.isOpen());
    dialog->ShowNewEditDlg(dialog.host());
    QVERIFY(dialog.isOpen());
    QCOMPARE(FakeHost::instance().frames.size(), 1);
}

void DialogConstructionTest::destructorLeavesTheFrame()
{
    OpenDialog dialog;
    const QPointer<ExtendDialog> frame = dialog->m_frameDialog;
    const QPointer<QWidget> mainWidget = dialog->m_mainWidget;
    dialog.deleteDialogObject();
    QVERIFY(frame);
    QVERIFY(frame->isVisible());
    QVERIFY(mainWidget);
}

void DialogConstructionTest::destructorLeavesTheRecord()
{
    QScopedPointer<Dialog> dialog(new Dialog);
    dialog->onClickOkButton();
    const QScopedPointer<QuickLinkRecord> record(dialog->m_record);
    QVERIFY(record);
    const RecordProbe probe(record.data());
    dialog.reset();
    QVERIFY(!probe.isFreed());
}

REGISTER_TEST(DialogConstructionTest)
#include "DialogConstructionTest.moc"
