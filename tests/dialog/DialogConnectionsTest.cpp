// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Which signal of which widget reaches which slot of the dialog, each once, and nothing else does.

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "FakeHost.h"
#include "OpenDialog.h"
#include "Test.h"

class DialogConnectionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void connection_data();
    void connection();
    void choiceFromCodeIsNotHeard();
};

void DialogConnectionsTest::connection_data()
{
    QTest::addColumn<QString>("sender");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QByteArray>("slot"); // empty: nobody hears it
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
                                   {"m_okBtn", clicked, SLOT(onClickOkButton())},
                                   {"m_appNameEdit", SIGNAL(textEdited(QString)), ""},
                                   {"m_appNameEdit", SIGNAL(returnPressed()), ""},
                                   {"m_appParamEdit", text, ""},
                                   {"m_launchWhenConnectCB", SIGNAL(toggled(bool)), ""}};
    for (const auto& row : rows) {
        const QByteArray title = QByteArray(row[0]) + ' ' + (row[1] + 1);
        QTest::newRow(title.constData()) << QString(row[0]) << QByteArray(row[1]) << QByteArray(row[2]);
    }
}

void DialogConnectionsTest::connection()
{
    QFETCH(QString, sender);
    QFETCH(QByteArray, signal);
    QFETCH(QByteArray, slot);
    const OpenDialog dialog;
    QObject* const object = dialog.find<QObject>(sender);
    QCOMPARE(object->receivers(signal.constData()), slot.isEmpty() ? 0 : 1);
    // Only a connection that is there can be taken away.
    if (!slot.isEmpty())
        QVERIFY(disconnect(object, signal.constData(), dialog.get(), slot.constData()));
}

void DialogConnectionsTest::choiceFromCodeIsNotHeard()
{
    OpenDialog dialog;
    dialog.fill(0, "Editor", "/usr/bin/editor");
    dialog->onSelectLaunchOnConnect(true);
    dialog->m_appTypeChoice->setCurrentIndex(2);
    QCOMPARE(dialog.shownPanel(), 0);
    QCOMPARE(dialog.options(), "01");
    QVERIFY(dialog.isOkEnabled());
    dialog->m_appTypeChoice->setCurrentIndex(0);
    QCOMPARE(dialog->m_appPathEdit->text(), "/usr/bin/editor");
}

REGISTER_TEST(DialogConnectionsTest)
#include "DialogConnectionsTest.moc"
