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
    void leavesLettersToTheWindow();
    void returnPressesAButton();
    void keepsThePressedButtonUntilLater();
    void followsTheIcon();
    void staysAsWideWithAnIcon();
    void nameStandsBesideTheIcon_data();
    void nameStandsBesideTheIcon();
    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }
};

static QIcon redIcon()
{
    QPixmap picture(64, 64);
    picture.fill(Qt::red);
    return QIcon(picture);
}

static QStringList textsOf(const LinkButtons& buttons)
{
    QStringList texts;
    const QList<QPushButton*> all = buttons.findChildren<QPushButton*>();
    for (const QPushButton* button : all)
        texts.append(button->text());
    return texts;
}

/** Where pixels of a picture are of such a colour. */
static QRect partOf(const QImage& picture, bool (*isMeant)(const QColor& color))
{
    QRect part;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (isMeant(picture.pixelColor(x, y)))
                part |= QRect(x, y, 1, 1);
        }
    }
    return part;
}

void LinkButtonsTest::showsTheNameAsItStands()
{
    QAction action;
    action.setData("R&D");
    LinkButtons buttons;
    buttons.setActions({&action});
    const QPushButton* const button = buttons.findChild<QPushButton*>();
    QVERIFY(button);
    // One ampersand alone would underline the letter behind it.
    QCOMPARE(button->text(), "&R&&D");
    QCOMPARE(button->accessibleName(), "R&D");
}

void LinkButtonsTest::leavesLettersToTheWindow()
{
    QAction first, second;
    first.setData("Edit");
    second.setData("Dial");
    LinkButtons buttons;
    buttons.setActions({&first, &second});
    QCOMPARE(textsOf(buttons), QStringList({"&Edit", "&Dial"}));
    buttons.setOtherCaptions({"&Edit"});
    QCOMPARE(textsOf(buttons), QStringList({"E&dit", "D&ial"}));
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

void LinkButtonsTest::followsTheIcon()
{
    QAction former, later;
    former.setIcon(redIcon());
    LinkButtons buttons;
    buttons.setActions({&former, &later});
    const QList<QPushButton*> both = buttons.findChildren<QPushButton*>();
    QCOMPARE(int(both.size()), 2);
    QVERIFY(!both.first()->icon().isNull());
    QVERIFY(both.last()->icon().isNull());
    later.setIcon(redIcon());
    QVERIFY(!both.last()->icon().isNull());
}

void LinkButtonsTest::staysAsWideWithAnIcon()
{
    // As wide as a name that fills its room was without one.
    QAction action;
    action.setData(QString(1000, 'i'));
    action.setIcon(redIcon());
    LinkButtons buttons;
    buttons.setActions({&action});
    const QPushButton* const button = buttons.findChild<QPushButton*>();
    const QFontMetrics metrics(button->font());
    const QString text(50, 'i');
    QPushButton bare(text);
    bare.setFont(button->font());
    bare.setAutoDefault(true);
    const int widest = bare.sizeHint().width() - metrics.horizontalAdvance(text) + 17 * metrics.horizontalAdvance('m');
    QVERIFY2(button->sizeHint().width() <= widest,
             qPrintable(QString("%1 > %2").arg(button->sizeHint().width()).arg(widest)));
}

void LinkButtonsTest::nameStandsBesideTheIcon_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("from left to right") << Qt::LeftToRight;
    QTest::newRow("from right to left") << Qt::RightToLeft;
}

void LinkButtonsTest::nameStandsBesideTheIcon()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QAction action;
    action.setData("Portal");
    action.setIcon(redIcon());
    LinkButtons buttons;
    QGuiApplication::setLayoutDirection(direction);
    buttons.setActions({&action});
    buttons.resize(900, 100);
    buttons.show();
    QPushButton* const button = buttons.findChild<QPushButton*>();
    QPalette palette = button->palette();
    palette.setColor(QPalette::ButtonText, Qt::blue);
    button->setPalette(palette);
    const QImage picture = button->grab().toImage();
    const QRect icon = partOf(picture, [](const QColor& color) { return color == Qt::red; });
    const QRect name = partOf(picture, [](const QColor& color) { return color.blue() > color.green() + 100; });
    QVERIFY(icon.isValid() && name.isValid());
    const int between = direction == Qt::LeftToRight ? name.left() - icon.right() : icon.left() - name.right();
    QVERIFY2(between > 0 && between < 10, qPrintable(QString::number(between)));
    const int middle = icon.united(name).center().x();
    QVERIFY2(qAbs(middle - picture.width() / 2) < 10, qPrintable(QString::number(middle)));
}

REGISTER_TEST(LinkButtonsTest)
#include "LinkButtonsTest.moc"
