// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// When OK may be pressed: typing decides, moving the cursor only takes it away.

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "OpenDialog.h"
#include "FakeHost.h"
#include "RecordingTrace.h"
#include "Test.h"

class DialogOkButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typing_data();
    void typing();
    void typingInTheOtherOrder_data() { typing_data(); }
    void typingInTheOtherOrder();
    void deletingTheLastCharacter_data();
    void deletingTheLastCharacter();
    void deletingFromTheFront_data() { deletingTheLastCharacter_data(); }
    void deletingFromTheFront();
    void parametersDoNotMatter();
    void fieldsOfOtherTypesDoNotMatter_data();
    void fieldsOfOtherTypesDoNotMatter();
    void everyEditAsksAgain_data();
    void everyEditAsksAgain();
    void cursorNeverEnables_data();
    void cursorNeverEnables();
    void cursorDisables_data();
    void cursorDisables();
    void cursorKeepsWhatMayStay_data();
    void cursorKeepsWhatMayStay();
    void disabledButtonDoesNothing();
    void typingWithout_data();
    void typingWithout();
    void movingWithout_data();
    void movingWithout();

private:
    static QLineEdit* edit(const OpenDialog& dialog, const QString& member);
};

namespace
{
/** The rows of deciding by name and target: type, name, target and whether OK may be pressed. */
struct Entry {
    int type;
    const char* name;
    const char* target;
    bool isFilled;
};

const Entry entries[] = {{0, "", "", false},  {0, "N", "", false}, {0, "", "T", false}, {0, "N", "T", true},
                         {0, " ", "T", true}, {0, "N", " ", true}, {0, " ", " ", true}, {0, " ", "", false},
                         {1, "", "", false},  {1, "N", "", true},  {1, " ", "", true},  {2, "", "", false},
                         {2, "N", "", false}, {2, "", "T", false}, {2, "N", "T", true}, {2, " ", "T", true},
                         {2, "N", " ", true}, {2, " ", " ", true}, {2, " ", "", false}};

QLineEdit* targetEdit(const OpenDialog& dialog, int type)
{
    return type == 0 ? dialog->m_appPathEdit : dialog->m_EditUrlName;
}

void setTexts(const OpenDialog& dialog, int type, const QByteArray& name, const QByteArray& target)
{
    dialog->m_appTypeChoice->setCurrentIndex(type);
    dialog->m_appNameEdit->setText(QString::fromLatin1(name));
    targetEdit(dialog, type)->setText(QString::fromLatin1(target));
}
} // namespace

QLineEdit* DialogOkButtonTest::edit(const OpenDialog& dialog, const QString& member)
{
    return qobject_cast<QLineEdit*>(memberOf(dialog.get(), member).object);
}

void DialogOkButtonTest::typing_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<bool>("isFilled");
    for (const Entry& entry : entries) {
        const QByteArray title = QByteArray::number(entry.type) + " \"" + entry.name + "\" \"" + entry.target + '"';
        QTest::newRow(title.constData()) << entry.type << QByteArray(entry.name) << QByteArray(entry.target)
                                         << entry.isFilled;
    }
}

void DialogOkButtonTest::typing()
{
    QFETCH(int, type);
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, target);
    OpenDialog dialog;
    dialog.fill(type, name.constData(), target.constData());
    QTEST(dialog.isOkEnabled(), "isFilled");
}

void DialogOkButtonTest::typingInTheOtherOrder()
{
    QFETCH(int, type);
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, target);
    OpenDialog dialog;
    dialog.chooseType(type);
    if (type != 1)
        dialog.enter(targetEdit(dialog, type), target.constData());
    dialog.enter(dialog->m_appNameEdit, name.constData());
    QTEST(dialog.isOkEnabled(), "isFilled");
}

void DialogOkButtonTest::deletingTheLastCharacter_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("edit");
    const auto name = [](const char* text) {
        return QString::fromLatin1(text);
    };
    QTest::newRow("application, name") << 0 << name("m_appNameEdit");
    QTest::newRow("application, path") << 0 << name("m_appPathEdit");
    QTest::newRow("e-mail, name") << 1 << name("m_appNameEdit");
    QTest::newRow("Internet, name") << 2 << name("m_appNameEdit");
    QTest::newRow("Internet, address") << 2 << name("m_EditUrlName");
}

void DialogOkButtonTest::deletingTheLastCharacter()
{
    QFETCH(int, type);
    QFETCH(QString, edit);
    OpenDialog dialog;
    dialog.fill(type, "NN", "TT");
    QTest::keyClick(DialogOkButtonTest::edit(dialog, edit), Qt::Key_Backspace);
    QVERIFY(dialog.isOkEnabled());
    QTest::keyClick(DialogOkButtonTest::edit(dialog, edit), Qt::Key_Backspace);
    QVERIFY(!dialog.isOkEnabled());
    QTest::keyClicks(DialogOkButtonTest::edit(dialog, edit), "x");
    QVERIFY(dialog.isOkEnabled());
}

void DialogOkButtonTest::deletingFromTheFront()
{
    QFETCH(QString, edit);
    QFETCH(int, type);
    OpenDialog dialog;
    dialog.fill(type, "NN", "TT");
    QLineEdit* const cleared = DialogOkButtonTest::edit(dialog, edit);
    QTest::keyClick(cleared, Qt::Key_Home);
    // The cursor stays where it is, so only the change of the text can take OK away.
    const QSignalSpy moved(cleared, SIGNAL(cursorPositionChanged(int, int)));
    QTest::keyClick(cleared, Qt::Key_Delete);
    QVERIFY(dialog.isOkEnabled());
    QTest::keyClick(cleared, Qt::Key_Delete);
    QVERIFY(moved.isEmpty());
    QVERIFY(!dialog.isOkEnabled());
}

void DialogOkButtonTest::parametersDoNotMatter()
{
    OpenDialog dialog;
    dialog.enter(dialog->m_appParamEdit, "--new");
    QVERIFY(!dialog.isOkEnabled());
    dialog.enter(dialog->m_appNameEdit, "N");
    QVERIFY(!dialog.isOkEnabled());
    dialog.enter(dialog->m_appPathEdit, "T");
    dialog.enter(dialog->m_appParamEdit, "");
    QVERIFY(dialog.isOkEnabled());
}

void DialogOkButtonTest::fieldsOfOtherTypesDoNotMatter_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isEnabled");
    QTest::newRow("application with an address only") << 0 << false;
    QTest::newRow("e-mail") << 1 << true;
    QTest::newRow("Internet with a path only") << 2 << false;
}

void DialogOkButtonTest::fieldsOfOtherTypesDoNotMatter()
{
    QFETCH(int, type);
    OpenDialog dialog;
    dialog.chooseType(type);
    targetEdit(dialog, type == 0 ? 2 : 0)->setText("T");
    QVERIFY(!dialog.isOkEnabled());
    dialog.enter(dialog->m_appNameEdit, "N");
    QTEST(dialog.isOkEnabled(), "isEnabled");
}

void DialogOkButtonTest::everyEditAsksAgain_data()
{
    QTest::addColumn<QString>("edit");
    const QStringList all = names("m_appNameEdit m_appPathEdit m_EditUrlName");
    for (const QString& member : all)
        QTest::newRow(qPrintable(member)) << member;
}

void DialogOkButtonTest::everyEditAsksAgain()
{
    QFETCH(QString, edit);
    for (int type = 0; type < 3; ++type) {
        const OpenDialog dialog;
        dialog->m_appPathEdit->setText("P");
        dialog->m_EditUrlName->setText("A");
        dialog->m_appNameEdit->setText("N");
        dialog->m_appTypeChoice->setCurrentIndex(type);
        dialog->m_okBtn->setEnabled(false);
        DialogOkButtonTest::edit(dialog, edit)->setText("new");
        QVERIFY(dialog.isOkEnabled());
        dialog->m_appNameEdit->clear();
        dialog->m_okBtn->setEnabled(true);
        DialogOkButtonTest::edit(dialog, edit)->setText(QString());
        // Nothing changed where the name was cleared before.
        QCOMPARE(dialog.isOkEnabled(), DialogOkButtonTest::edit(dialog, edit) == dialog->m_appNameEdit);
    }
}

void DialogOkButtonTest::cursorNeverEnables_data()
{
    everyEditAsksAgain_data();
}

void DialogOkButtonTest::cursorNeverEnables()
{
    QFETCH(QString, edit);
    for (int type = 0; type < 3; ++type) {
        const OpenDialog dialog;
        dialog->m_appPathEdit->setText("PP");
        dialog->m_EditUrlName->setText("AA");
        dialog->m_appNameEdit->setText("NN");
        dialog->m_appTypeChoice->setCurrentIndex(type);
        dialog->m_okBtn->setEnabled(false);
        const QSignalSpy moved(DialogOkButtonTest::edit(dialog, edit), SIGNAL(cursorPositionChanged(int, int)));
        QTest::keyClick(DialogOkButtonTest::edit(dialog, edit), Qt::Key_Left);
        QTest::keyClick(DialogOkButtonTest::edit(dialog, edit), Qt::Key_Home);
        QCOMPARE(moved.size(), 2);
        QVERIFY(!dialog.isOkEnabled());
    }
}

void DialogOkButtonTest::cursorDisables_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<bool>("isFilled");
    QTest::addColumn<QString>("edit");
    for (const Entry& entry : entries) {
        const QByteArray title = QByteArray::number(entry.type) + " \"" + entry.name + "\" \"" + entry.target + "\" ";
        const QStringList edits = names("m_appNameEdit m_appPathEdit m_EditUrlName");
        for (const QString& member : edits)
            QTest::newRow((title + member.toLatin1()).constData())
                << entry.type << QByteArray(entry.name) << QByteArray(entry.target) << entry.isFilled << member;
    }
}

void DialogOkButtonTest::cursorDisables()
{
    QFETCH(int, type);
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, target);
    QFETCH(QString, edit);
    const OpenDialog dialog;
    setTexts(dialog, type, name, target);
    dialog->m_okBtn->setEnabled(true);
    // The signal itself: an empty edit has no place to move the cursor to.
    Q_EMIT DialogOkButtonTest::edit(dialog, edit)->cursorPositionChanged(0, 0);
    QTEST(dialog.isOkEnabled(), "isFilled");
}

void DialogOkButtonTest::cursorKeepsWhatMayStay_data()
{
    deletingTheLastCharacter_data();
}

void DialogOkButtonTest::cursorKeepsWhatMayStay()
{
    QFETCH(int, type);
    QFETCH(QString, edit);
    OpenDialog dialog;
    dialog.fill(type, "NN", "TT");
    QTest::keyClick(DialogOkButtonTest::edit(dialog, edit), Qt::Key_Left);
    QVERIFY(dialog.isOkEnabled());
}

void DialogOkButtonTest::disabledButtonDoesNothing()
{
    OpenDialog dialog;
    dialog.enter(dialog->m_appNameEdit, "N");
    QVERIFY(!dialog.isOkEnabled());
    dialog.pressOk();
    QVERIFY(dialog.isOpen());
    QVERIFY(!dialog->m_record);
    QVERIFY(dialog.added.isEmpty());
}

void DialogOkButtonTest::typingWithout_data()
{
    addMemberRows(names("m_appTypeChoice m_okBtn m_appNameEdit m_appPathEdit m_EditUrlName"));
}

void DialogOkButtonTest::typingWithout()
{
    QFETCH(QString, member);
    OpenDialog dialog;
    dialog.fill(0, "N", "T");
    const bool states[] = {true, false};
    for (bool isEnabled : states) {
        dialog->m_okBtn->setEnabled(isEnabled);
        const RecordingTrace trace;
        {
            const NullMember missing(memberOf(dialog.get(), member));
            dialog->onEnterNameInApplication();
        }
        QCOMPARE(trace.countDebug(nullTrace("onEnterNameInApplication")), 1);
        QCOMPARE(dialog.isOkEnabled(), isEnabled);
    }
}

void DialogOkButtonTest::movingWithout_data()
{
    typingWithout_data();
}

void DialogOkButtonTest::movingWithout()
{
    QFETCH(QString, member);
    const OpenDialog dialog;
    dialog->m_okBtn->setEnabled(true);
    const RecordingTrace trace;
    {
        const NullMember missing(memberOf(dialog.get(), member));
        dialog->onDeleteNameInApplication();
    }
    QCOMPARE(trace.countDebug(nullTrace("onDeleteNameInApplication")), 1);
    QVERIFY(dialog.isOkEnabled());
}

REGISTER_TEST(DialogOkButtonTest)
#include "DialogOkButtonTest.moc"
