// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The object names of the dialog's widgets, by which desktop tests and style sheets find them.

#include <QLabel>

#include "OpenDialog.h"
#include "ExtendDialog.h"
#include "FakeHost.h"
#include "RecordingTrace.h"
#include "Test.h"

class DialogNamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namedWidget_data();
    void namedWidget();
    void unnamedWidget_data();
    void unnamedWidget();
    void nobodyKeepsTheFirstName();
    void noOtherNames();
    void labelIsRenamed();
    void namingWithout_data();
    void namingWithout();

private:
    static QStringList expectedNames();
};

QStringList DialogNamesTest::expectedNames()
{
    return names("m_nameLbl m_typeLbl m_appNameEdit m_appPathEdit m_appTypeChoice m_appTabWidget m_appTab "
                 "m_applicationPathLbl m_appParamEdit m_browseBtn m_applicationParamLbl m_launchWhenSWLaunchCB "
                 "m_launchWhenConnectCB m_okBtn m_cancelBtn m_EmailTab m_DefaultLbl m_launchWhenSWLaunchCBForEmail "
                 "m_launchWhenConnectCBForEmail m_InternetTab m_UrlLabel m_launchWhenSWLaunchCBForInternet "
                 "m_launchWhenConnectCBForInternet m_EditUrlName");
}

void DialogNamesTest::namedWidget_data()
{
    QTest::addColumn<QString>("name");
    const QStringList all = expectedNames();
    for (const QString& name : all)
        QTest::newRow(qPrintable(name)) << name;
}

void DialogNamesTest::namedWidget()
{
    QFETCH(QString, name);
    const OpenDialog dialog;
    const QList<QWidget*> found = dialog->m_frameDialog->findChildren<QWidget*>(name);
    QCOMPARE(found.size(), 1);
    QCOMPARE(static_cast<QObject*>(found.first()), memberOf(dialog.get(), name).object);
}

void DialogNamesTest::unnamedWidget_data()
{
    QTest::addColumn<QString>("member");
    const QStringList all = names("m_frameDialog m_mainWidget m_applicationPanel");
    for (const QString& name : all)
        QTest::newRow(qPrintable(name)) << name;
}

void DialogNamesTest::unnamedWidget()
{
    QFETCH(QString, member);
    const OpenDialog dialog;
    QCOMPARE(memberOf(dialog.get(), member).object->objectName(), QString());
}

void DialogNamesTest::nobodyKeepsTheFirstName()
{
    const OpenDialog dialog;
    const QString name = "m_quickLinkSettingNewEditDlg";
    QVERIFY(dialog->m_frameDialog->objectName() != name);
    QVERIFY(dialog->m_frameDialog->findChildren<QObject*>(name).isEmpty());
    QCOMPARE(dialog->objectName(), QString());
}

void DialogNamesTest::noOtherNames()
{
    const OpenDialog dialog;
    QStringList found;
    const QList<QObject*> all = dialog->m_frameDialog->findChildren<QObject*>();
    for (const QObject* object : all) {
        if (object->objectName().startsWith("m_"))
            found.append(object->objectName());
    }
    QStringList expected = expectedNames();
    found.sort();
    expected.sort();
    QCOMPARE(found, expected);
}

void DialogNamesTest::labelIsRenamed()
{
    OpenDialog dialog;
    QSignalSpy spy(dialog->m_nameLbl, SIGNAL(objectNameChanged(QString)));
    dialog->setObjectNameNewDialog();
    QCOMPARE(spy.size(), 2);
    QCOMPARE(spy.at(0).at(0).toString(), "m_quickLinkSettingNewEditDlg");
    QCOMPARE(spy.at(1).at(0).toString(), "m_nameLbl");
}

void DialogNamesTest::namingWithout_data()
{
    addMemberRows(expectedNames());
}

void DialogNamesTest::namingWithout()
{
    QFETCH(QString, member);
    OpenDialog dialog;
    const QList<PointerMember> members = membersOf(dialog.get());
    for (const PointerMember& one : members)
        one.object->setObjectName(QString());
    const RecordingTrace trace;
    {
        const NullMember missing(memberOf(dialog.get(), member));
        dialog->setObjectNameNewDialog();
    }
    QCOMPARE(trace.countDebug(nullTrace("setObjectNameNewDialog")), 1);
    for (const PointerMember& one : members)
        QCOMPARE(one.object->objectName(), QString());
}

REGISTER_TEST(DialogNamesTest)
#include "DialogNamesTest.moc"
