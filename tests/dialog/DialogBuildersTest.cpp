// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the dialog's builders do when a widget or layout is missing: they leave a trace and build nothing.

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "OpenDialog.h"
#include "ExtendDialog.h"
#include "FakeHost.h"
#include "RecordingTrace.h"
#include "Test.h"

class DialogBuildersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { FakeHost::instance().reset(); }

    void initializationWithoutAnything();
    void initializationWithout_data();
    void initializationWithout();
    void completeInitializationTracesNoFailure();
    void applicationPanelWithout_data();
    void applicationPanelWithout();
    void emailPanelWithout_data();
    void emailPanelWithout();
    void internetPanelWithout_data();
    void internetPanelWithout();
    void layoutWithout_data();
    void layoutWithout();
    void listenersWithout_data();
    void listenersWithout();
    void everyBuilderSurvivesAFreshObject();
    void existingFrameIsOnlyShown();

private:
    static QString failure();
};

QString DialogBuildersTest::failure()
{
    return QLatin1String(TracePattern::file) + ": initializeUI: Cell-Log UI Intialization Failed: ";
}

void DialogBuildersTest::initializationWithoutAnything()
{
    QuickLinkSettingNewEditDlg dialog;
    const RecordingTrace trace;
    dialog.initializeUI();
    QCOMPARE(trace.countDebug(failure()), 1);
    QVERIFY(dialog.findChildren<QWidget*>().isEmpty());
    QVERIFY(FakeHost::instance().messages.isEmpty());
}

void DialogBuildersTest::initializationWithout_data()
{
    QTest::addColumn<QString>("member");
    QuickLinkSettingNewEditDlg dialog;
    const QList<PointerMember> members = membersOf(&dialog);
    for (const PointerMember& member : members)
        QTest::newRow(member.name) << QString::fromLatin1(member.name);
}

void DialogBuildersTest::initializationWithout()
{
    QFETCH(QString, member);
    OpenDialog dialog;
    dialog->m_okBtn->setEnabled(true);
    dialog->m_EmailTab->show();
    dialog->m_cancelBtn->setText(QString());
    dialog->m_nameLbl->setObjectName(QString());
    dialog->m_typeLbl->setObjectName(QString());
    RecordingTrace trace;
    {
        const NullMember missing(memberOf(dialog.get(), member));
        dialog->initializeUI();
    }
    QCOMPARE(trace.countDebug(failure()), 1);
    // None of the steps behind the check was taken.
    QVERIFY(dialog.isOkEnabled());
    QVERIFY(!dialog->m_EmailTab->isHidden());
    QVERIFY(dialog->m_cancelBtn->text().isEmpty());
    QVERIFY(dialog->m_nameLbl->objectName().isEmpty());
    QVERIFY(dialog->m_typeLbl->objectName().isEmpty());
    QCOMPARE(dialog->m_okBtn->receivers(SIGNAL(clicked())), 1);
}

void DialogBuildersTest::completeInitializationTracesNoFailure()
{
    const RecordingTrace trace;
    const OpenDialog dialog;
    QCOMPARE(trace.countDebug(failure()), 0);
    QCOMPARE(trace.countDebug("Arg is NULL.*"), 0);
    QVERIFY2(trace.warningLines.isEmpty(), qPrintable(trace.warningLines.join(" | ")));
}

void DialogBuildersTest::applicationPanelWithout_data()
{
    addMemberRows(names("m_applicationPanel m_applicationLayout m_pathLayout m_applicationPathLbl m_appPathEdit "
                        "m_browseBtn m_applicationParamLbl m_appParamEdit m_launchWhenSWLaunchCB "
                        "m_launchWhenConnectCB"));
}

void DialogBuildersTest::applicationPanelWithout()
{
    QFETCH(QString, member);
    OpenDialog dialog;
    const RecordingTrace trace;
    {
        const NullMember missing(memberOf(dialog.get(), member));
        dialog->createTabForApplication();
    }
    QCOMPARE(trace.countDebug(nullTrace("createTabForApplication")), 1);
    QCOMPARE(dialog->m_applicationLayout->count(), 8);
    QCOMPARE(dialog->m_pathLayout->count(), 2);
}

void DialogBuildersTest::emailPanelWithout_data()
{
    addMemberRows(names("m_EmailTab m_emailLayout m_DefaultLbl m_launchWhenSWLaunchCBForEmail "
                        "m_launchWhenConnectCBForEmail"));
}

void DialogBuildersTest::emailPanelWithout()
{
    QFETCH(QString, member);
    OpenDialog dialog;
    const RecordingTrace trace;
    {
        const NullMember missing(memberOf(dialog.get(), member));
        dialog->createTabForEmail();
    }
    QCOMPARE(trace.countDebug(nullTrace("createTabForEmail")), 1);
    QCOMPARE(dialog->m_emailLayout->count(), 4);
}

void DialogBuildersTest::internetPanelWithout_data()
{
    addMemberRows(names("m_InternetTab m_internetLayout m_UrlLabel m_EditUrlName m_launchWhenSWLaunchCBForInternet "
                        "m_launchWhenConnectCBForInternet"));
}

void DialogBuildersTest::internetPanelWithout()
{
    QFETCH(QString, member);
    OpenDialog dialog;
    const RecordingTrace trace;
    {
        const NullMember missing(memberOf(dialog.get(), member));
        dialog->createTabForInternet();
    }
    QCOMPARE(trace.countDebug(nullTrace("createTabForInternet")), 1);
    QCOMPARE(dialog->m_internetLayout->count(), 5);
}

void DialogBuildersTest::layoutWithout_data()
{
    addMemberRows(names("m_mainWidget m_nameLbl m_appNameEdit m_typeLbl m_appTypeChoice m_appTabWidget m_okBtn "
                        "m_cancelBtn m_mainLayout m_nameLayout m_typeLayout m_buttonLayout"));
}

void DialogBuildersTest::layoutWithout()
{
    QFETCH(QString, member);
    OpenDialog dialog;
    dialog->m_appTypeChoice->clear();
    const RecordingTrace trace;
    {
        const NullMember missing(memberOf(dialog.get(), member));
        dialog->setDisplayLayout();
    }
    QCOMPARE(trace.countDebug(nullTrace("setDisplayLayout")), 1);
    QCOMPARE(dialog->m_appTypeChoice->count(), 0);
}

void DialogBuildersTest::listenersWithout_data()
{
    addMemberRows(names("m_appTypeChoice m_cancelBtn m_browseBtn m_appNameEdit m_appPathEdit m_EditUrlName "
                        "m_launchWhenSWLaunchCB m_launchWhenConnectCB m_launchWhenSWLaunchCBForEmail "
                        "m_launchWhenConnectCBForEmail m_launchWhenSWLaunchCBForInternet "
                        "m_launchWhenConnectCBForInternet m_okBtn"));
}

void DialogBuildersTest::listenersWithout()
{
    QFETCH(QString, member);
    OpenDialog dialog;
    const RecordingTrace trace;
    {
        const NullMember missing(memberOf(dialog.get(), member));
        dialog->addListener();
    }
    QCOMPARE(trace.countDebug(nullTrace("addListener")), 1);
    QCOMPARE(dialog->m_okBtn->receivers(SIGNAL(clicked())), 1);
    QCOMPARE(trace.warningLines, QStringList());
}

void DialogBuildersTest::everyBuilderSurvivesAFreshObject()
{
    QuickLinkSettingNewEditDlg dialog;
    const RecordingTrace trace;
    dialog.createTabForApplication();
    dialog.createTabForEmail();
    dialog.createTabForInternet();
    dialog.setObjectNameNewDialog();
    dialog.setDisplayLayout();
    dialog.setDisplayString();
    dialog.addListener();
    QCOMPARE(trace.countDebug(nullTrace("[A-Za-z]+")), 7);
    QVERIFY(FakeHost::instance().messages.isEmpty());
}

void DialogBuildersTest::existingFrameIsOnlyShown()
{
    // A frame that is there already is only shown: nothing is built into it a second time.
    OpenDialog dialog;
    const RecordingTrace trace;
    dialog->m_frameDialog->hide();
    {
        const NullMember missing(memberOf(dialog.get(), "m_appTabWidget"));
        dialog->ShowNewEditDlg(dialog.host());
        QVERIFY(!dialog->m_appTabWidget);
    }
    QVERIFY(dialog.isOpen());
    QCOMPARE(trace.countDebug(failure()), 0);
}

REGISTER_TEST(DialogBuildersTest)
#include "DialogBuildersTest.moc"
