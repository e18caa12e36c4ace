// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The links as buttons.

#include <QAction>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>

#include "LinkButtons.h"
#include "Test.h"

class LinkButtonsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheNameAsItStands();
    void returnPressesAButton();
    void keepsThePressedButtonUntilLater();
};

void LinkButtonsTest::showsTheNameAsItStands()
{
    QAction action;
    action.setData("R&D");
    LinkButtons buttons;
    buttons.setActions({&action});
    const QPushButton* const button = buttons.findChild<QPushButton*>();
    QVERIFY(button);
    // One ampersand alone would underline the letter behind it.
    QCOMPARE(button->text(), "R&&D");
    QCOMPARE(button->accessibleName(), "R&D");
}

void LinkButtonsTest::returnPressesAButton()
{
    QAction action;
    action.setData("a");
    LinkButtons buttons;
    buttons.setActions({&action});
    const QSignalSpy triggered(&action, &QAction::triggered);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        QTest::keyClick(buttons.findChild<QPushButton*>(), key);
    QCOMPARE(triggered.size(), 3);
}

void LinkButtonsTest::keepsThePressedButtonUntilLater()
{
    QAction action;
    action.setData("a");
    LinkButtons buttons;
    buttons.setActions({&action});
    const QPointer<QPushButton> pressed = buttons.findChild<QPushButton*>();
    QVERIFY(pressed);
    bool wasKept = false;
    connect(&action, &QAction::triggered, this, [&] {
        buttons.setActions({});
        wasKept = pressed;
    });
    pressed->click();
    QVERIFY(wasKept);
    QTRY_VERIFY(!pressed);
    QVERIFY(!buttons.findChild<QPushButton*>());
}

REGISTER_TEST(LinkButtonsTest)
#include "LinkButtonsTest.moc"
