// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// How long the dialog's texts can get, and that no character is cut in half at the limit.

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>

#include "FakeHost.h"
#include "OpenDialog.h"
#include "RecordingTrace.h"
#include "Test.h"

class DialogLengthLimitsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void limit_data();
    void limit();
    void emojiAtTheLimit_data();
    void emojiAtTheLimit();
    void cursorStaysWhereTheEmojiStayedOut();
    void emojiInHalves_data();
    void emojiInHalves();
    void savedNameIsWhole();
};

namespace
{
const char* const edits[] = {"m_appNameEdit", "m_appPathEdit", "m_appParamEdit", "m_EditUrlName"};

/** A character of two units. */
QString emoji()
{
    return codePoint(0x1f517);
}

int limitOf(const QString& edit)
{
    return edit == "m_appNameEdit" ? 49 : 261;
}

/** Shows the edit, which the type of link decides. */
QLineEdit* shownEdit(OpenDialog& dialog, const QString& name)
{
    dialog.chooseType(name == "m_EditUrlName" ? 2 : 0);
    return dialog.find<QLineEdit>(name);
}

/** Types what no key gives, as an input method hands it over. */
void compose(QLineEdit* edit, const QString& text)
{
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(edit, &event);
}

void paste(QLineEdit* edit, const QString& text)
{
    QApplication::clipboard()->setText(text);
    QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
}

/** Brings text into the edit "by hand", "by clipboard" or "from code", behind what it holds. */
void enter(QLineEdit* edit, const QString& how, const QString& text)
{
    if (how == "by hand")
        compose(edit, text);
    else if (how == "by clipboard")
        paste(edit, text);
    else
        edit->setText(edit->text() + text);
}
} // namespace

void DialogLengthLimitsTest::limit_data()
{
    QTest::addColumn<int>("units");
    for (const char* edit : edits)
        QTest::newRow(edit) << limitOf(edit);
}

void DialogLengthLimitsTest::limit()
{
    QFETCH(int, units);
    const RecordingTrace quiet;
    OpenDialog dialog;
    QLineEdit* const edit = shownEdit(dialog, QTest::currentDataTag());
    QCOMPARE(edit->maxLength(), units);
    const QString text = QString(units, 'a') + "bc";
    QTest::keyClicks(edit, text);
    QCOMPARE(edit->text(), QString(units, 'a'));
    edit->clear();
    paste(edit, text);
    QCOMPARE(edit->text(), QString(units, 'a'));
}

void DialogLengthLimitsTest::emojiAtTheLimit_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("how");
    QTest::addColumn<int>("room"); // units that are free before
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    for (const char* name : edits) {
        for (const char* how : {"by hand", "by clipboard", "from code"}) {
            const QByteArray row = QByteArray(name) + ' ' + how + ", ";
            const QString two = emoji() + emoji();
            QTest::newRow((row + "no room").constData()) << name << how << 0 << emoji() << "";
            QTest::newRow((row + "room for half").constData()) << name << how << 1 << emoji() << "";
            QTest::newRow((row + "room for one").constData()) << name << how << 2 << emoji() << emoji();
            QTest::newRow((row + "room for one and a half").constData()) << name << how << 3 << two << emoji();
            QTest::newRow((row + "a letter before").constData()) << name << how << 2 << "b" + emoji() << "b";
            QTest::newRow((row + "a letter behind").constData()) << name << how << 1 << emoji() + "b"
                                                                 << "";
        }
    }
}

void DialogLengthLimitsTest::emojiAtTheLimit()
{
    QFETCH(QString, name);
    QFETCH(QString, how);
    QFETCH(int, room);
    QFETCH(QString, text);
    QFETCH(QString, expected);
    const RecordingTrace quiet;
    OpenDialog dialog;
    QLineEdit* const edit = shownEdit(dialog, name);
    const QString before(limitOf(name) - room, 'a');
    edit->setText(before);
    const QSignalSpy changed(edit, SIGNAL(textChanged(QString)));
    enter(edit, how, text);
    QCOMPARE(edit->text(), before + expected);
    QCOMPARE(edit->cursorPosition(), int(edit->text().size()));
    // Nobody was told of the half.
    for (const QList<QVariant>& told : changed)
        QCOMPARE(told.at(0).toString(), before + expected);
}

void DialogLengthLimitsTest::cursorStaysWhereTheEmojiStayedOut()
{
    const RecordingTrace quiet;
    OpenDialog dialog;
    QLineEdit* const edit = dialog->m_appNameEdit;
    const QString before = emoji() + QString(46, 'a');
    edit->setText(before);
    edit->setCursorPosition(2);
    paste(edit, emoji());
    QCOMPARE(edit->text(), before);
    QCOMPARE(edit->cursorPosition(), 2);
    // What is marked makes room.
    edit->setSelection(2, 1);
    paste(edit, emoji());
    QCOMPARE(edit->text(), emoji() + emoji() + QString(45, 'a'));
    QCOMPARE(edit->cursorPosition(), 4);
}

void DialogLengthLimitsTest::emojiInHalves_data()
{
    QTest::addColumn<int>("room");
    QTest::addColumn<QString>("expected");
    QTest::newRow("no room") << 0 << "";
    QTest::newRow("room for half") << 1 << "";
    QTest::newRow("room for one") << 2 << emoji();
    QTest::newRow("room for more") << 20 << emoji();
}

void DialogLengthLimitsTest::emojiInHalves()
{
    QFETCH(int, room);
    QFETCH(QString, expected);
    const RecordingTrace quiet;
    OpenDialog dialog;
    QLineEdit* const edit = dialog->m_appNameEdit;
    const QString before(49 - room, 'a');
    edit->setText(before);
    // As an input method does that knows units only.
    compose(edit, emoji().left(1));
    compose(edit, emoji().mid(1));
    QCOMPARE(edit->text(), before + expected);
}

void DialogLengthLimitsTest::savedNameIsWhole()
{
    const RecordingTrace quiet;
    OpenDialog dialog;
    dialog.fill(2, QString(48, 'a'), "www.example.org");
    compose(dialog->m_appNameEdit, emoji());
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), 1);
    QCOMPARE(dialog.added.first().name, QString(48, 'a'));
}

REGISTER_TEST(DialogLengthLimitsTest)
#include "DialogLengthLimitsTest.moc"
