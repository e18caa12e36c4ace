// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Which signal of which widget reaches which slot of the dialog, each once, and nothing else does.

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "OpenDialog.h"
#include "FakeHost.h"
#include "Test.h"

class DialogConnectionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void connection_data();
    void connection();
    void listeners_data();
    void listeners();
    void choiceFromCodeIsNotHeard();
    void parametersAreNotHeard();

private:
    static QObject* senderOf(const OpenDialog& dialog, const QString& member);
};

QObject* DialogConnectionsTest::senderOf(const OpenDialog& dialog, const QString& member)
{
    return memberOf(dialog.get(), member).object;
}

void DialogConnectionsTest::connection_data()
{
    QTest::addColumn<QString>("sender");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QByteArray>("slot");
    const char* const text = SIGNAL(textChanged(QString));
    const char* const cursor = SIGNAL(cursorPositionChanged(int, int));
    const char* const clicked = SIGNAL(clicked());
    const char* const ticked = SIGNAL(clicked(bool));
    const char* const entered = SLOT(onEnterNameInApplication());
    const char* const moved = SLOT(onDeleteNameInApplication());
    const char* const onSoftware = SLOT(onSelectLaunchOnsoftware(bool));
    const char* const onConnect = SLOT(onSelectLaunchOnConnect(bool));
    const char* const rows[][3] = {{"m_appTypeChoice", SIGNAL(activated(int)), SLOT(OnSelectComboItem(int))},
                                   {"m_cancelBtn", clicked, SLOT(onButtonClickCancelNew())},
                                   {"m_browseBtn", clicked, SLOT(onClickBrowseButton())},
                                   {"m_appNameEdit", text, entered},
                                   {"m_appNameEdit", cursor, moved},
                                   {"m_appPathEdit", text, entered},
                                   {"m_appPathEdit", cursor, moved},
                                   {"m_EditUrlName", text, entered},
                                   {"m_EditUrlName", cursor, moved},
                                   {"m_launchWhenSWLaunchCB", ticked, onSoftware},
                                   {"m_launchWhenConnectCB", ticked, onConnect},
                                   {"m_launchWhenSWLaunchCBForEmail", ticked, onSoftware},
                                   {"m_launchWhenConnectCBForEmail", ticked, onConnect},
                                   {"m_launchWhenSWLaunchCBForInternet", ticked, onSoftware},
                                   {"m_launchWhenConnectCBForInternet", ticked, onConnect},
                                   {"m_okBtn", clicked, SLOT(onClickOkButton())}};
    for (const auto& row : rows) {
        const QByteArray title = QByteArray(row[0]) + ' ' + (row[1] + 1);
        QTest::newRow(title.constData()) << QString::fromLatin1(row[0]) << QByteArray(row[1]) << QByteArray(row[2]);
    }
}

void DialogConnectionsTest::connection()
{
    QFETCH(QString, sender);
    QFETCH(QByteArray, signal);
    QFETCH(QByteArray, slot);
    const OpenDialog dialog;
    QObject* const object = senderOf(dialog, sender);
    const int before = object->receivers(signal.constData());
    // Only a connection that is there can be taken away, and takes exactly one listener with it.
    QVERIFY(disconnect(object, signal.constData(), dialog.get(), slot.constData()));
    QCOMPARE(object->receivers(signal.constData()), before - 1);
}

void DialogConnectionsTest::listeners_data()
{
    QTest::addColumn<QString>("sender");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<int>("count");
    const struct {
        const char* sender;
        const char* signal;
        int count;
    } rows[] = {{"m_appTypeChoice", SIGNAL(activated(int)), 1},
                {"m_appNameEdit", SIGNAL(textChanged(QString)), 1},
                {"m_appNameEdit", SIGNAL(textEdited(QString)), 0},
                {"m_appNameEdit", SIGNAL(returnPressed()), 0},
                {"m_appPathEdit", SIGNAL(textChanged(QString)), 1},
                {"m_EditUrlName", SIGNAL(textChanged(QString)), 1},
                {"m_appParamEdit", SIGNAL(textChanged(QString)), 0},
                {"m_launchWhenConnectCB", SIGNAL(toggled(bool)), 0},
                {"m_launchWhenConnectCB", SIGNAL(clicked(bool)), 1},
                {"m_launchWhenSWLaunchCB", SIGNAL(clicked(bool)), 1},
                {"m_launchWhenConnectCBForEmail", SIGNAL(clicked(bool)), 1},
                {"m_launchWhenSWLaunchCBForEmail", SIGNAL(clicked(bool)), 1},
                {"m_launchWhenConnectCBForInternet", SIGNAL(clicked(bool)), 1},
                {"m_launchWhenSWLaunchCBForInternet", SIGNAL(clicked(bool)), 1},
                {"m_okBtn", SIGNAL(clicked()), 1},
                {"m_cancelBtn", SIGNAL(clicked()), 1},
                {"m_browseBtn", SIGNAL(clicked()), 1}};
    for (const auto& row : rows) {
        const QByteArray title = QByteArray(row.sender) + ' ' + (row.signal + 1);
        QTest::newRow(title.constData()) << QString::fromLatin1(row.sender) << QByteArray(row.signal) << row.count;
    }
}

void DialogConnectionsTest::listeners()
{
    QFETCH(QString, sender);
    QFETCH(QByteArray, signal);
    const OpenDialog dialog;
    QTEST(senderOf(dialog, sender)->receivers(signal.constData()), "count");
}

void DialogConnectionsTest::choiceFromCodeIsNotHeard()
{
    OpenDialog dialog;
    dialog.fill(0, "Editor", "/usr/bin/editor");
    dialog->onSelectLaunchOnConnect(true);
    dialog->m_appTypeChoice->setCurrentIndex(2);
    QVERIFY(dialog->m_applicationPanel->isVisible());
    QVERIFY(dialog->m_InternetTab->isHidden());
    QCOMPARE(dialog->m_launchOnConnect, "1");
    QVERIFY(dialog.isOkEnabled());
    dialog->m_appTypeChoice->setCurrentIndex(0);
    QCOMPARE(dialog->m_appPathEdit->text(), "/usr/bin/editor");
}

void DialogConnectionsTest::parametersAreNotHeard()
{
    OpenDialog dialog;
    dialog.fill(0, "Editor", "/usr/bin/editor");
    dialog->m_okBtn->setEnabled(false);
    dialog.enter(dialog->m_appParamEdit, "--new");
    QVERIFY(!dialog.isOkEnabled());
    dialog->m_okBtn->setEnabled(true);
    dialog.enter(dialog->m_appParamEdit, "");
    QVERIFY(dialog.isOkEnabled());
}

REGISTER_TEST(DialogConnectionsTest)
#include "DialogConnectionsTest.moc"
