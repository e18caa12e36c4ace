// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What builds, fills or reads the dialog needs its widgets: without one of them it leaves a trace and changes nothing.

#include <QComboBox>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include "FakeHost.h"
#include "OpenDialog.h"
#include "RecordingTrace.h"
#include "Test.h"

typedef QuickLinkSettingNewEditDlg Dialog;

namespace
{
#define TEXT_WIDGETS                                                                                                   \
    "m_nameLbl m_typeLbl m_applicationPathLbl m_browseBtn m_applicationParamLbl m_launchWhenSWLaunchCB "               \
    "m_launchWhenSWLaunchCBForEmail m_launchWhenSWLaunchCBForInternet m_launchWhenConnectCB "                          \
    "m_launchWhenConnectCBForEmail m_launchWhenConnectCBForInternet m_appTabWidget m_okBtn m_cancelBtn m_UrlLabel "    \
    "m_DefaultLbl"
#define OK_WIDGETS "m_appTypeChoice m_okBtn m_appNameEdit m_appPathEdit m_EditUrlName"
#define TYPE_WIDGETS                                                                                                   \
    "m_appTabWidget m_applicationPanel m_EmailTab m_InternetTab m_appPathEdit m_appParamEdit m_appNameEdit m_okBtn"

const struct Operation {
    const char* title;
    const char* function; ///< as the trace names it
    void (*call)(Dialog*);
    const char* needed; ///< members
} operations[] = {
    {"application panel", "createTabForApplication", [](Dialog* dialog) { dialog->createTabForApplication(); },
     "m_applicationPanel m_applicationLayout m_pathLayout m_applicationPathLbl m_appPathEdit m_browseBtn "
     "m_applicationParamLbl m_appParamEdit m_launchWhenSWLaunchCB m_launchWhenConnectCB m_tabLayout"},
    {"e-mail panel", "createTabForEmail", [](Dialog* dialog) { dialog->createTabForEmail(); },
     "m_EmailTab m_emailLayout m_DefaultLbl m_launchWhenSWLaunchCBForEmail m_launchWhenConnectCBForEmail m_tabLayout"},
    {"Internet panel", "createTabForInternet", [](Dialog* dialog) { dialog->createTabForInternet(); },
     "m_InternetTab m_internetLayout m_UrlLabel m_EditUrlName m_launchWhenSWLaunchCBForInternet "
     "m_launchWhenConnectCBForInternet m_tabLayout"},
    {"layout", "setDisplayLayout", [](Dialog* dialog) { dialog->setDisplayLayout(); },
     "m_mainWidget m_nameLbl m_appNameEdit m_typeLbl m_appTypeChoice m_appTabWidget m_okBtn m_cancelBtn m_mainLayout "
     "m_nameLayout m_typeLayout m_buttonLayout"},
    {"names", "setObjectNameNewDialog", [](Dialog* dialog) { dialog->setObjectNameNewDialog(); },
     TEXT_WIDGETS " m_appNameEdit m_appPathEdit m_appTypeChoice m_appTab m_appParamEdit m_EmailTab m_InternetTab "
                  "m_EditUrlName"},
    {"texts", "setDisplayString", [](Dialog* dialog) { dialog->setDisplayString(); }, TEXT_WIDGETS},
    {"listeners", "addListener", [](Dialog* dialog) { dialog->addListener(); },
     "m_appTypeChoice m_cancelBtn m_browseBtn m_appNameEdit m_appPathEdit m_EditUrlName m_launchWhenSWLaunchCB "
     "m_launchWhenConnectCB m_launchWhenSWLaunchCBForEmail m_launchWhenConnectCBForEmail "
     "m_launchWhenSWLaunchCBForInternet m_launchWhenConnectCBForInternet m_okBtn"},
    {"language", "SetLanguage", [](Dialog* dialog) { dialog->SetLanguage(); }, TEXT_WIDGETS " m_appTypeChoice"},
    {"application", "OnSelectComboItem", [](Dialog* dialog) { dialog->OnSelectComboItem(0); }, TYPE_WIDGETS},
    {"e-mail", "OnSelectComboItem", [](Dialog* dialog) { dialog->OnSelectComboItem(1); }, TYPE_WIDGETS},
    {"Internet", "OnSelectComboItem", [](Dialog* dialog) { dialog->OnSelectComboItem(2); }, TYPE_WIDGETS},
    {"typing", "onEnterNameInApplication", [](Dialog* dialog) { dialog->onEnterNameInApplication(); }, OK_WIDGETS},
    {"moving", "onDeleteNameInApplication", [](Dialog* dialog) { dialog->onDeleteNameInApplication(); }, OK_WIDGETS},
    {"OK", "onClickOkButton", [](Dialog* dialog) { dialog->onClickOkButton(); },
     "m_appNameEdit m_appTypeChoice m_EditUrlName"}};

void addOperations()
{
    QTest::addColumn<int>("operation");
    int index = 0;
    for (const Operation& operation : operations)
        QTest::newRow(operation.title) << index++;
}

QString failure()
{
    return QLatin1String(TracePattern::file) + ": initializeUI: Cell-Log UI Intialization Failed: ";
}

/** Sets all that an operation could set to something else; with OK off where the texts would turn it on, or on. */
void disarrange(OpenDialog& dialog, bool isFilled)
{
    dialog->OnSelectComboItem(isFilled ? 1 : 2);
    dialog->onSelectLaunchOnConnect(true);
    const QList<PointerMember> members = membersOf(dialog.get());
    for (const PointerMember& member : members)
        member.object->setObjectName(QString());
    dialog->m_appTypeChoice->clear();
    dialog->m_appTypeChoice->addItem("with room for more");
    dialog->m_appParamEdit->setText("--new");
    dialog->m_appNameEdit->setText(isFilled ? "Name" : "");
    dialog->m_appPathEdit->setText(isFilled ? "/" : "");
    dialog->m_EditUrlName->setText(isFilled ? "www.example.org" : "");
    dialog->m_okBtn->setEnabled(!isFilled);
    FakeHost::instance().language = "fr";
}

/** What an operation could change, less the items of layouts. */
QStringList stateOf(const OpenDialog& dialog)
{
    QStringList state;
    const QList<PointerMember> members = membersOf(dialog.get());
    for (const PointerMember& member : members) {
        const QStringList values = QStringList() << member.name << member.object->objectName()
                                                 << member.object->property("text").toString()
                                                 << member.object->property("visible").toString()
                                                 << member.object->property("enabled").toString();
        state << values.join(" ");
    }
    for (int i = 0; i < dialog->m_appTypeChoice->count(); ++i)
        state << dialog->m_appTypeChoice->itemText(i);
    state << dialog->m_appTabWidget->tabText(0) << dialog.options()
          << QString("%1 tabs, %2 and %3 listeners, %4 records")
                 .arg(dialog->m_appTabWidget->count())
                 .arg(dialog->m_appTypeChoice->receivers(SIGNAL(activated(int))))
                 .arg(dialog->m_okBtn->receivers(SIGNAL(clicked())))
                 .arg(dialog.added.size());
    return state + OpenDialog::messageKeys();
}

QList<int> itemCounts(const OpenDialog& dialog)
{
    QList<int> counts;
    const QList<PointerMember> members = membersOf(dialog.get());
    for (const PointerMember& member : members) {
        if (const QLayout* const layout = qobject_cast<QLayout*>(member.object))
            counts << layout->count();
    }
    return counts;
}
} // namespace

class DialogMissingPartsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { FakeHost::instance().reset(); }

    void nothingMissing();
    void operationWithout_data();
    void operationWithout();
    void operationBeforeTheFirstShowing_data() { addOperations(); }
    void operationBeforeTheFirstShowing();
    void operationAfterTheHostDeletedTheFrame_data() { addOperations(); }
    void operationAfterTheHostDeletedTheFrame();
    void initializationWithout_data();
    void initializationWithout();
    void initializationBeforeTheFirstShowing();
};

void DialogMissingPartsTest::nothingMissing()
{
    const RecordingTrace trace;
    const OpenDialog dialog;
    QCOMPARE(trace.countDebug(failure()), 0);
    QCOMPARE(trace.countDebug("Arg is NULL.*"), 0);
    QCOMPARE(trace.warningLines, QStringList());
}

void DialogMissingPartsTest::operationWithout_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<QString>("member");
    int index = 0;
    for (const Operation& operation : operations) {
        const QStringList members = names(operation.needed);
        for (const QString& member : members)
            QTest::newRow(qPrintable(operation.title + (" without " + member))) << index << member;
        ++index;
    }
}

void DialogMissingPartsTest::operationWithout()
{
    QFETCH(int, operation);
    QFETCH(QString, member);
    const bool filledOrNot[] = {true, false};
    for (bool isFilled : filledOrNot) {
        OpenDialog dialog;
        disarrange(dialog, isFilled);
        const QStringList before = stateOf(dialog);
        const QList<int> countsBefore = itemCounts(dialog);
        const RecordingTrace trace;
        {
            const NullMember missing(memberOf(dialog.get(), member));
            operations[operation].call(dialog.get());
        }
        QCOMPARE(trace.countDebug(nullTrace(operations[operation].function)), 1);
        QCOMPARE(trace.warningLines, QStringList());
        QCOMPARE(stateOf(dialog), before);
        QCOMPARE(itemCounts(dialog), countsBefore);
        QVERIFY(dialog.isOpen());
    }
}

void DialogMissingPartsTest::operationBeforeTheFirstShowing()
{
    QFETCH(int, operation);
    Dialog dialog;
    const RecordingTrace trace;
    operations[operation].call(&dialog);
    const QScopedPointer<QuickLinkRecord> leftOver(dialog.m_record);
    QCOMPARE(trace.countDebug(nullTrace(operations[operation].function)), 1);
    QCOMPARE(trace.warningLines, QStringList());
    QVERIFY(FakeHost::instance().frames.isEmpty());
    QVERIFY(FakeHost::instance().messages.isEmpty());
}

void DialogMissingPartsTest::operationAfterTheHostDeletedTheFrame()
{
    QFETCH(int, operation);
    OpenDialog dialog;
    dialog.fill(2, "News", "www.example.org");
    dialog->onSelectLaunchOnConnect(true);
    dialog.deleteHost();
    const RecordingTrace trace;
    operations[operation].call(dialog.get());
    QCOMPARE(trace.countDebug(nullTrace(operations[operation].function)), 1);
    QCOMPARE(trace.warningLines, QStringList());
    QVERIFY(dialog.added.isEmpty());
    QVERIFY(FakeHost::instance().messages.isEmpty());
    QCOMPARE(dialog.options(), "01");
}

void DialogMissingPartsTest::initializationWithout_data()
{
    addMemberRows(dialogMemberNames());
}

void DialogMissingPartsTest::initializationWithout()
{
    QFETCH(QString, member);
    OpenDialog dialog;
    disarrange(dialog, false);
    const QStringList before = stateOf(dialog);
    const RecordingTrace trace;
    {
        const NullMember missing(memberOf(dialog.get(), member));
        dialog->initializeUI();
    }
    QCOMPARE(trace.countDebug(failure()), 1);
    QCOMPARE(stateOf(dialog), before);
}

void DialogMissingPartsTest::initializationBeforeTheFirstShowing()
{
    Dialog dialog;
    const RecordingTrace trace;
    dialog.initializeUI();
    QCOMPARE(trace.countDebug(failure()), 1);
    QVERIFY(dialog.findChildren<QWidget*>().isEmpty());
    QVERIFY(FakeHost::instance().messages.isEmpty());
}

REGISTER_TEST(DialogMissingPartsTest)
#include "DialogMissingPartsTest.moc"
