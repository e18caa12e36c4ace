// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The object names of the dialog's widgets, by which desktop tests and style sheets find them.

#include <QLabel>

#include "FakeHost.h"
#include "OpenDialog.h"
#include "Test.h"

class DialogObjectNamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyWidgetHasItsName();
    void nobodyElseHasAName();
    void labelIsRenamed();
};

namespace
{
QStringList widgetNames()
{
    return names("m_nameLbl m_typeLbl m_appNameEdit m_appPathEdit m_appTypeChoice m_appTabWidget m_appTab "
                 "m_applicationPathLbl m_appParamEdit m_browseBtn m_applicationParamLbl m_launchWhenSWLaunchCB "
                 "m_launchWhenConnectCB m_okBtn m_cancelBtn m_EmailTab m_DefaultLbl m_launchWhenSWLaunchCBForEmail "
                 "m_launchWhenConnectCBForEmail m_InternetTab m_UrlLabel m_launchWhenSWLaunchCBForInternet "
                 "m_launchWhenConnectCBForInternet m_EditUrlName");
}
} // namespace

void DialogObjectNamesTest::everyWidgetHasItsName()
{
    const OpenDialog dialog;
    const QStringList all = widgetNames();
    for (const QString& name : all)
        QCOMPARE(memberOf(dialog.get(), name).object->objectName(), name);
}

void DialogObjectNamesTest::nobodyElseHasAName()
{
    const OpenDialog dialog;
    QStringList found;
    const QList<QObject*> objects = dialog->m_frameDialog->findChildren<QObject*>();
    for (const QObject* object : objects) {
        if (object->objectName().startsWith("m_"))
            found.append(object->objectName());
    }
    QStringList expected = widgetNames();
    found.sort();
    expected.sort();
    QCOMPARE(found, expected);
    QCOMPARE(dialog->objectName(), "");
    const QStringList unnamed = names("m_frameDialog m_mainWidget m_applicationPanel");
    for (const QString& member : unnamed)
        QCOMPARE(memberOf(dialog.get(), member).object->objectName(), "");
}

void DialogObjectNamesTest::labelIsRenamed()
{
    if (!isNameTold)
        QSKIP("The first of the two names cannot be seen");
    const OpenDialog dialog;
    QSignalSpy spy(dialog->m_nameLbl, SIGNAL(objectNameChanged(QString)));
    dialog->setObjectNameNewDialog();
    QCOMPARE(spy.size(), 2);
    QCOMPARE(spy.at(0).at(0).toString(), "m_quickLinkSettingNewEditDlg");
    QCOMPARE(spy.at(1).at(0).toString(), "m_nameLbl");
}

REGISTER_TEST(DialogObjectNamesTest)
#include "DialogObjectNamesTest.moc"
