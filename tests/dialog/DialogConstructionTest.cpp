// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The New/Edit dialog's object before and after its first showing: members, meta-object, frame, state.

#include <cstring>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QTabWidget>

#include "OpenDialog.h"
#include "ExtendDialog.h"
#include "FakeHost.h"
#include "Test.h"

class DialogConstructionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { FakeHost::instance().reset(); }

    void freshMember_data();
    void freshMember();
    void freshStateIsThatOfANewLink();
    void freshObjectMakesNoWidget();
    void membersStandInTheirOrder();
    void metaMethod_data();
    void metaMethod();
    void noFurtherMetaMethod();

    void frameArguments();
    void frameIsFixed();
    void frameIsWindowModal();
    void frameHostsTheMainWidget();
    void frameHasNoTitle();
    void frameIsShownWithoutBlocking();
    void objectItselfIsNeverShown();
    void frameWithoutParent();
    void widgetIsInTheFrame_data();
    void widgetIsInTheFrame();
    void firstState();
    void secondShowingBuildsNothing();
    void showingAgainAfterClosing();
    void destructorLeavesTheFrame();
    void destructorLeavesTheRecord();
};

void DialogConstructionTest::freshMember_data()
{
    QTest::addColumn<QString>("member");
    QuickLinkSettingNewEditDlg dialog;
    const QList<PointerMember> members = membersOf(&dialog);
    for (const PointerMember& member : members)
        QTest::newRow(member.name) << QString::fromLatin1(member.name);
}

void DialogConstructionTest::freshMember()
{
    QFETCH(QString, member);
    // Memory that is not zero by chance.
    void* const memory = operator new(sizeof(QuickLinkSettingNewEditDlg));
    std::memset(memory, 0x5a, sizeof(QuickLinkSettingNewEditDlg));
    QuickLinkSettingNewEditDlg* const dialog = new (memory) QuickLinkSettingNewEditDlg;
    const bool isNull = memberOf(dialog, member).isNull();
    delete dialog;
    QVERIFY(isNull);
}

void DialogConstructionTest::freshStateIsThatOfANewLink()
{
    void* const memory = operator new(sizeof(QuickLinkSettingNewEditDlg));
    std::memset(memory, 0x5a, sizeof(QuickLinkSettingNewEditDlg));
    const QScopedPointer<QuickLinkSettingNewEditDlg> dialog(new (memory) QuickLinkSettingNewEditDlg);
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
    const QuickLinkSettingNewEditDlg dialog;
    QCOMPARE(QApplication::allWidgets().size(), before + 1);
    QVERIFY(dialog.findChildren<QWidget*>().isEmpty());
    QVERIFY(FakeHost::instance().frames.isEmpty());
}

void DialogConstructionTest::membersStandInTheirOrder()
{
    QuickLinkSettingNewEditDlg dialog;
    const QList<PointerMember> members = membersOf(&dialog);
    for (int i = 1; i < members.size(); ++i)
        QVERIFY2(members.at(i - 1).address < members.at(i).address, members.at(i).name);
    const void* const last = members.last().address;
    QVERIFY(last < static_cast<void*>(&dialog.m_launchOnSoftware));
    QVERIFY(static_cast<void*>(&dialog.m_launchOnSoftware) < static_cast<void*>(&dialog.m_launchOnConnect));
    QVERIFY(static_cast<void*>(&dialog.m_launchOnConnect) < static_cast<void*>(&dialog.m_isEdit));
    QVERIFY(static_cast<void*>(&dialog.m_isEdit) < static_cast<void*>(&dialog.m_editedName));
    QVERIFY(static_cast<void*>(&dialog.m_editedName) < static_cast<void*>(&dialog.m_record));
}

void DialogConstructionTest::metaMethod_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("access");
#if QT_VERSION >= 0x050000
    const int signalAccess = QMetaMethod::Public;
#else
    const int signalAccess = QMetaMethod::Protected;
#endif
    const struct {
        const char* signature;
        int type;
        int access;
    } rows[] = {{"addRecord(QuickLinkRecord*)", QMetaMethod::Signal, signalAccess},
                {"cancelNewButton()", QMetaMethod::Signal, signalAccess},
                {"initializeUI()", QMetaMethod::Slot, QMetaMethod::Private},
                {"onButtonClickCancelNew()", QMetaMethod::Slot, QMetaMethod::Private},
                {"onClickBrowseButton()", QMetaMethod::Slot, QMetaMethod::Private},
                {"onEnterNameInApplication()", QMetaMethod::Slot, QMetaMethod::Private},
                {"onDeleteNameInApplication()", QMetaMethod::Slot, QMetaMethod::Private},
                {"onSelectLaunchOnsoftware(bool)", QMetaMethod::Slot, QMetaMethod::Private},
                {"onSelectLaunchOnConnect(bool)", QMetaMethod::Slot, QMetaMethod::Private},
                {"onClickOkButton()", QMetaMethod::Slot, QMetaMethod::Private},
                {"OnSelectComboItem(int)", QMetaMethod::Slot, QMetaMethod::Public}};
    int index = 0;
    for (const auto& row : rows)
        QTest::newRow(row.signature) << index++ << QByteArray(row.signature) << row.type << row.access;
}

void DialogConstructionTest::metaMethod()
{
    QFETCH(int, index);
    QFETCH(QByteArray, signature);
    const QMetaObject& meta = QuickLinkSettingNewEditDlg::staticMetaObject;
    const QMetaMethod method = meta.method(meta.methodOffset() + index);
#if QT_VERSION >= 0x050000
    QCOMPARE(method.methodSignature(), signature);
#else
    QCOMPARE(QByteArray(method.signature()), signature);
#endif
    QTEST(int(method.methodType()), "type");
    QTEST(int(method.access()), "access");
    QCOMPARE(QByteArray(method.typeName()), QByteArray(QT_VERSION >= 0x050000 ? "void" : ""));
}

void DialogConstructionTest::noFurtherMetaMethod()
{
    const QMetaObject& meta = QuickLinkSettingNewEditDlg::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 11);
    QCOMPARE(QByteArray(meta.className()), QByteArray("QuickLinkSettingNewEditDlg"));
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
}

void DialogConstructionTest::frameArguments()
{
    const OpenDialog dialog;
    QCOMPARE(FakeHost::instance().frames.size(), 1);
    const MadeFrame& made = FakeHost::instance().frames.first();
    QCOMPARE(made.frame.data(), dialog->m_frameDialog);
    QCOMPARE(made.parent.data(), dialog.host());
    QCOMPARE(int(made.flags), int(Qt::WindowCloseButtonHint));
    QCOMPARE(made.widgetType, 1);
    QCOMPARE(made.flag, false);
}

void DialogConstructionTest::frameIsFixed()
{
    const OpenDialog dialog;
    QCOMPARE(dialog->m_frameDialog->size(), QSize(345, 360));
    QCOMPARE(dialog->m_frameDialog->minimumSize(), QSize(345, 360));
    QCOMPARE(dialog->m_frameDialog->maximumSize(), QSize(345, 360));
}

void DialogConstructionTest::frameIsWindowModal()
{
    const OpenDialog dialog;
    QCOMPARE(dialog->m_frameDialog->windowModality(), Qt::WindowModal);
}

void DialogConstructionTest::frameHostsTheMainWidget()
{
    const OpenDialog dialog;
    QCOMPARE(FakeHost::instance().frames.first().mainWidget.data(), dialog->m_mainWidget);
    QCOMPARE(dialog->m_mainWidget->parentWidget(), static_cast<QWidget*>(dialog->m_frameDialog));
}

void DialogConstructionTest::frameHasNoTitle()
{
    const OpenDialog dialog;
    QVERIFY(FakeHost::instance().frames.first().titles.isEmpty());
}

void DialogConstructionTest::frameIsShownWithoutBlocking()
{
    // Already seen by coming here; a blocking call would wait for a user.
    const OpenDialog dialog;
    QVERIFY(dialog->m_frameDialog->isVisible());
    QVERIFY(dialog.isOpen());
}

void DialogConstructionTest::objectItselfIsNeverShown()
{
    const OpenDialog dialog;
    QVERIFY(!dialog->isVisible());
    QVERIFY(dialog->findChildren<QWidget*>().isEmpty());
}

void DialogConstructionTest::frameWithoutParent()
{
    QuickLinkSettingNewEditDlg dialog;
    dialog.ShowNewEditDlg(nullptr);
    const QScopedPointer<ExtendDialog> frame(dialog.m_frameDialog);
    QVERIFY(frame);
    QVERIFY(!frame->parent());
    QVERIFY(frame->isVisible());
}

void DialogConstructionTest::widgetIsInTheFrame_data()
{
    QTest::addColumn<QString>("member");
    QuickLinkSettingNewEditDlg dialog;
    const QList<PointerMember> members = membersOf(&dialog);
    for (const PointerMember& member : members) {
        if (qstrcmp(member.name, "m_frameDialog") != 0)
            QTest::newRow(member.name) << QString::fromLatin1(member.name);
    }
}

void DialogConstructionTest::widgetIsInTheFrame()
{
    QFETCH(QString, member);
    const OpenDialog dialog;
    const QObject* ancestor = memberOf(dialog.get(), member).object;
    QVERIFY(ancestor);
    while (ancestor && ancestor != dialog->m_frameDialog)
        ancestor = ancestor->parent();
    QVERIFY2(ancestor, "It would outlive the frame");
}

void DialogConstructionTest::firstState()
{
    const OpenDialog dialog;
    QVERIFY(!dialog.isOkEnabled());
    QVERIFY(dialog->m_cancelBtn->isEnabled());
    QVERIFY(dialog->m_applicationPanel->isVisible());
    QVERIFY(dialog->m_EmailTab->isHidden());
    QVERIFY(dialog->m_InternetTab->isHidden());
    QCOMPARE(dialog->m_appTypeChoice->currentIndex(), 0);
    QCOMPARE(dialog->m_appTabWidget->count(), 1);
    QCOMPARE(dialog->m_appTabWidget->widget(0), dialog->m_appTab);
    QCOMPARE(dialog->m_launchOnSoftware, "0");
    QCOMPARE(dialog->m_launchOnConnect, "0");
    QVERIFY(!dialog->m_record);
}

void DialogConstructionTest::secondShowingBuildsNothing()
{
    OpenDialog dialog;
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
    QuickLinkSettingNewEditDlg* const dialog = new QuickLinkSettingNewEditDlg;
    dialog->onClickOkButton();
    const QScopedPointer<QuickLinkRecord> record(dialog->m_record);
    const QString name = "only the record shares this text";
    record->name = name;
    delete dialog;
    QVERIFY(!name.isDetached());
    QCOMPARE(record->name, name);
}

REGISTER_TEST(DialogConstructionTest)
#include "DialogConstructionTest.moc"
