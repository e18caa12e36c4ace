// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// One window for whatever fails while it is open. What a notice about one failure is like is in OpenUrlTest.

#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTextEdit>

#include "CommonUtils.h"
#include "EditLinkButton.h"
#include "MessageOnScreen.h"
#include "Notice.h"
#include "Test.h"

class NoticeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void takesUpWhatFailsWhileItIsOpen();
    void beginsAnewOnceItIsClosed();
    void staysOneWindowHoweverMuchFails();
    void tellsMoreToAScreenReader();
    void canBeClosedOverAModalMessageThatCameLater();
    void staysWhereItIsOverItsModalMessage();
    void isCopiedAsItCanBeOpened();
    void detailsAreCopiedAsTheyCanBeOpened();
    void leavesAloneWhatIsCopiedElsewhere();
    void leadsToTheLink();
    void offersNothingToEdit_data();
    void offersNothingToEdit();
    void goesAnotherWayFirst();
};

void NoticeTest::cleanup()
{
    setNoticeOutlet(nullptr);
    EditLinkButton::setEditor(nullptr);
    while (QMessageBox* const box = notice())
        delete box;
}

void NoticeTest::takesUpWhatFailsWhileItIsOpen()
{
    showNotice("Address not opened", "Gone:", "/a");
    const QPointer<QMessageBox> box = notice();
    QVERIFY(box);
    showNotice("Not opened", "Not allowed:", "/b");
    CommonUtils::OpenUrl("x:y");
    QCOMPARE(messageCount(), 1);
    QCOMPARE(notice(), box.data());
    const QStringList lines = box->text().split('\n');
    QCOMPARE(int(lines.size()), 6);
    QCOMPARE(lines.at(0), "Gone:");
    QVERIFY2(lines.at(1).endsWith(" /a"), qPrintable(lines.at(1)));
    QCOMPARE(lines.at(2), "Not allowed:");
    QVERIFY2(lines.at(3).endsWith(" /b"), qPrintable(lines.at(3)));
    QVERIFY2(lines.at(5).endsWith(" x:y"), qPrintable(lines.at(5)));
    QCOMPARE(box->windowTitle(), "Not opened");
    QCOMPARE(box->textFormat(), Qt::PlainText);
}

void NoticeTest::beginsAnewOnceItIsClosed()
{
    showNotice("Title", "Gone:", "/a");
    const QPointer<QMessageBox> first = notice();
    // At once, when the closed window is not yet deleted.
    first->close();
    QVERIFY(first);
    showNotice("Title", "Gone:", "/b");
    QCOMPARE(notice()->text(), "Gone:\n\n/b");
    QTRY_VERIFY(!first);
    showNotice("Title", "Gone:", "/c");
    QCOMPARE(messageCount(), 1);
    QCOMPARE(int(notice()->text().split('\n').size()), 3); // the reason, /b and /c
}

void NoticeTest::staysOneWindowHoweverMuchFails()
{
    int i = 0;
    while (i < 300)
        showNotice("Title", "Gone:", QString("/%1").arg(i++));
    const QPointer<QMessageBox> box = notice();
    QVERIFY(QTest::qWaitForWindowExposed(box));
    const int widgets = QApplication::allWidgets().size();
    const int objects = box->findChildren<QObject*>().size();
    const QString details = box->detailedText();
    while (i < 1000)
        showNotice("Title", "Gone:", QString("/%1").arg(i++));
    QCOMPARE(messageCount(), 1);
    QCOMPARE(notice(), box.data());
    QVERIFY2(box->text().endsWith("\nand 990 more"), qPrintable(box->text()));
    QCOMPARE(int(QApplication::allWidgets().size()), widgets);
    QCOMPARE(int(box->findChildren<QObject*>().size()), objects);
    QCOMPARE(box->detailedText(), details);
    QCOMPARE(int(details.split('\n').size()), 202); // a reason, two hundred lines and an ellipsis
}

void NoticeTest::tellsMoreToAScreenReader()
{
    showNotice("Title", "Gone:", "/a");
    showNotice("Title", "Gone:", "/b");
    QCOMPARE(accessibleText(notice(), QAccessible::Description), notice()->text());
    QVERIFY(notice()->text().contains("/b"));
}

void NoticeTest::canBeClosedOverAModalMessageThatCameLater()
{
    showNotice("Title", "Gone:", "/a");
    const QPointer<QMessageBox> box = notice();
    bool isGone = false;
    QString text;
    whenMessageShows([&](QMessageBox* modal) {
        showNotice("Title", "Gone:", "/b");
        if (box) {
            text = box->text();
            clickButton(box, QMessageBox::Ok);
        }
        isGone = QTest::qWaitFor([&] { return !box; });
        modal->close();
    });
    CommonUtils::ShowMessage(QMessageBox::Information, nullptr, QString(), QString(), "A", QString(), QString(), false,
                             Qt::WindowFlags(), nullptr, QString(), true);
    QVERIFY2(text.contains("/a") && text.contains("/b"), qPrintable(text));
    QVERIFY(isGone);
}

/** Counts how often a window goes from the screen. */
class HideCount : public QObject
{
public:
    explicit HideCount(QObject* window)
        : count(0)
    {
        window->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Hide;
        return false;
    }

    int count;
};

void NoticeTest::staysWhereItIsOverItsModalMessage()
{
    bool isSame = false;
    whenMessageShows([&](QMessageBox* modal) {
        showNotice("Title", "Gone:", "/a");
        QMessageBox* const box = notice();
        QVERIFY(box);
        QVERIFY(QTest::qWaitForWindowExposed(box));
        const HideCount hidden(box);
        showNotice("Title", "Gone:", "/b");
        isSame = notice() == box && hidden.count == 0 && box->parentWidget() == modal;
        modal->close();
    });
    CommonUtils::ShowMessage(QMessageBox::Information, nullptr, QString(), QString(), "A", QString(), QString(), false,
                             Qt::WindowFlags(), nullptr, QString(), true);
    QVERIFY(isSame);
}

/** Selects all of a widget's text and copies it, as the user does. */
static QString copiedFrom(QWidget* widget)
{
    QApplication::clipboard()->clear();
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(widget, Qt::Key_C, Qt::ControlModifier);
    return QApplication::clipboard()->text();
}

void NoticeTest::isCopiedAsItCanBeOpened()
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    showNotice("Title", "Gone:", "/a/b");
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QLabel* const label = notice()->findChild<QLabel*>("qt_msgbox_label");
    QVERIFY(label->text().contains(QChar(0x2066)));
    // Not every style lets it be selected.
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QVERIFY(QTest::qWaitForWindowExposed(notice()));
    QTRY_COMPARE(copiedFrom(label), "Gone:\n\n/a/b");
}

void NoticeTest::detailsAreCopiedAsTheyCanBeOpened()
{
    const QString path = "/" + QString(200, 'x');
    QApplication::setLayoutDirection(Qt::RightToLeft);
    showNotice("Title", "Gone:", path);
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QTextEdit* const details = notice()->findChild<QTextEdit*>();
    QVERIFY(details && details->toPlainText().startsWith(QChar(0x2066)));
    // Shows the details.
    const QList<QPushButton*> buttons = notice()->findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
        if (!notice()->standardButton(button))
            button->click();
    }
    QTRY_VERIFY(details->isVisible());
    QTRY_COMPARE(copiedFrom(details), path);
}

void NoticeTest::leavesAloneWhatIsCopiedElsewhere()
{
    const QString text = QChar(0x2066) + QString("/a") + QChar(0x2069);
    showNotice("Title", "Gone:", "/a");
    QLineEdit field(text);
    field.show();
    QVERIFY(QTest::qWaitForWindowExposed(&field));
    QTRY_COMPARE(copiedFrom(&field), text);
}

void NoticeTest::leadsToTheLink()
{
    QStringList edited;
    EditLinkButton::setEditor([&edited](const QString& link) { edited.append(link); });
    showNotice("Title", "Gone:", "/a", "A");
    const QPointer<QMessageBox> box = notice();
    QVERIFY(box->text().endsWith("A: /a"));
    EditLinkButton* const button = box->findChild<EditLinkButton*>();
    QVERIFY(button);
    QCOMPARE(button->text(), QString::fromUtf8("&Edit Link…"));
    // Enter closes the notice.
    QCOMPARE(box->defaultButton(), qobject_cast<QPushButton*>(box->button(QMessageBox::Ok)));
    showNotice("Title", "Gone:", "/b", "B");
    QCOMPARE(button->text(), QString::fromUtf8("&Edit Links…"));
    QCOMPARE(int(box->findChildren<EditLinkButton*>().size()), 1);
    QVERIFY(QTest::qWaitForWindowExposed(box));
    clickThroughWindow(button);
    QTRY_VERIFY(!box);
    QCOMPARE(edited, QStringList("A"));
}

void NoticeTest::offersNothingToEdit_data()
{
    QTest::addColumn<bool>("hasEditor");
    QTest::addColumn<QString>("link");
    QTest::newRow("no link") << true << QString();
    QTest::newRow("no settings") << false << "A";
}

void NoticeTest::offersNothingToEdit()
{
    QFETCH(bool, hasEditor);
    QFETCH(QString, link);
    if (hasEditor)
        EditLinkButton::setEditor([](const QString&) {});
    showNotice("Title", "Gone:", "/a", link);
    QVERIFY(!notice()->findChild<EditLinkButton*>());
}

void NoticeTest::goesAnotherWayFirst()
{
    QStringList taken;
    bool takes = true;
    setNoticeOutlet([&](const QString& title, const QString& text, const QString& subject, const QString& link) {
        taken << title << text << subject << link;
        return takes;
    });
    showNotice("Title", "Gone:", "/a", "A");
    QCOMPARE(taken, QString("Title Gone: /a A").split(' '));
    QVERIFY(!notice());
    takes = false;
    showNotice("Title", "Gone:", "/b");
    QCOMPARE(notice()->text(), "Gone:\n\n/b");
    taken.clear();
    showNoticeWindow("Title", "Gone:", "/c", QString());
    QVERIFY(taken.isEmpty());
}

REGISTER_TEST(NoticeTest)
#include "NoticeTest.moc"
