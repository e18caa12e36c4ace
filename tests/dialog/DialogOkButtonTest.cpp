// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// When OK may be pressed: typing decides, moving the cursor only takes it away.

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "FakeHost.h"
#include "OpenDialog.h"
#include "Test.h"

class DialogOkButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entry_data();
    void entry();
    void deleting_data();
    void deleting();
    void parametersDoNotMatter();
    void fieldsOfOtherTypesDoNotMatter_data();
    void fieldsOfOtherTypesDoNotMatter();
    void everyEditAsksAgain_data();
    void everyEditAsksAgain();
    void cursorNeverEnables_data() { everyEditAsksAgain_data(); }
    void cursorNeverEnables();
    void disabledButtonDoesNothing();
};

namespace
{
QStringList heardEdits()
{
    return names("m_appNameEdit m_appPathEdit m_EditUrlName");
}

QLineEdit* targetEdit(const OpenDialog& dialog, int type)
{
    return type == 0 ? dialog->m_appPathEdit : dialog->m_EditUrlName;
}

/** Every field filled from code, a type chosen from code and OK off. */
void fillAll(const OpenDialog& dialog, int type)
{
    dialog->m_appPathEdit->setText("PP");
    dialog->m_EditUrlName->setText("AA");
    dialog->m_appNameEdit->setText("NN");
    dialog->m_appTypeChoice->setCurrentIndex(type);
    dialog->m_okBtn->setEnabled(false);
}
} // namespace

void DialogOkButtonTest::entry_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("isFilled");
    const struct {
        int type;
        const char *name, *target;
        bool isFilled;
    } rows[] = {{0, "", "", false},  {0, "N", "", false}, {0, "", "T", false}, {0, "N", "T", true}, {0, " ", "T", true},
                {0, "N", " ", true}, {0, " ", " ", true}, {0, " ", "", false}, {1, "", "", false},  {1, "N", "", true},
                {1, " ", "", true},  {2, "", "", false},  {2, "N", "", false}, {2, "", "T", false}, {2, "N", "T", true},
                {2, " ", "T", true}, {2, "N", " ", true}, {2, " ", " ", true}, {2, " ", "", false}};
    for (const auto& row : rows) {
        const QByteArray title = QByteArray::number(row.type) + " \"" + row.name + "\" \"" + row.target + '"';
        QTest::newRow(title.constData()) << row.type << row.name << row.target << row.isFilled;
    }
}

void DialogOkButtonTest::entry()
{
    QFETCH(int, type);
    QFETCH(QString, name);
    QFETCH(QString, target);
    QFETCH(bool, isFilled);
    {
        OpenDialog dialog;
        dialog.fill(type, name, target);
        QCOMPARE(dialog.isOkEnabled(), isFilled);
        const QStringList edits = heardEdits();
        for (const QString& edit : edits) {
            dialog->m_okBtn->setEnabled(true);
            // The signal itself: an empty edit has no place to move the cursor to.
            Q_EMIT dialog.find<QLineEdit>(edit)->cursorPositionChanged(0, 0);
            QCOMPARE(dialog.isOkEnabled(), isFilled);
        }
    }
    OpenDialog dialog;
    dialog.chooseType(type);
    if (type != 1)
        dialog.enter(targetEdit(dialog, type), target);
    dialog.enter(dialog->m_appNameEdit, name);
    QCOMPARE(dialog.isOkEnabled(), isFilled);
}

void DialogOkButtonTest::deleting_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("edit");
    QTest::newRow("application, name") << 0 << "m_appNameEdit";
    QTest::newRow("application, path") << 0 << "m_appPathEdit";
    QTest::newRow("e-mail, name") << 1 << "m_appNameEdit";
    QTest::newRow("Internet, name") << 2 << "m_appNameEdit";
    QTest::newRow("Internet, address") << 2 << "m_EditUrlName";
}

void DialogOkButtonTest::deleting()
{
    QFETCH(int, type);
    QFETCH(QString, edit);
    OpenDialog dialog;
    dialog.fill(type, "NN", "TT");
    QLineEdit* const cleared = dialog.find<QLineEdit>(edit);
    QTest::keyClick(cleared, Qt::Key_Backspace);
    QVERIFY(dialog.isOkEnabled());
    QTest::keyClick(cleared, Qt::Key_Backspace);
    QVERIFY(!dialog.isOkEnabled());
    QTest::keyClicks(cleared, "xx");
    QVERIFY(dialog.isOkEnabled());
    QTest::keyClick(cleared, Qt::Key_Left);
    QVERIFY(dialog.isOkEnabled());
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
    QVERIFY(dialog.isOkEnabled());
    // Nor are they heard.
    dialog->m_okBtn->setEnabled(false);
    dialog.enter(dialog->m_appParamEdit, "--old");
    QVERIFY(!dialog.isOkEnabled());
    dialog->m_okBtn->setEnabled(true);
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
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("edit");
    const QStringList edits = heardEdits();
    for (int type = 0; type < 3; ++type) {
        for (const QString& edit : edits)
            QTest::newRow(qPrintable(QString("%1 in type %2").arg(edit).arg(type))) << type << edit;
    }
}

void DialogOkButtonTest::everyEditAsksAgain()
{
    QFETCH(int, type);
    QFETCH(QString, edit);
    const OpenDialog dialog;
    fillAll(dialog, type);
    QLineEdit* const changed = dialog.find<QLineEdit>(edit);
    changed->setText("new");
    QVERIFY(dialog.isOkEnabled());
    dialog->m_appNameEdit->clear();
    dialog->m_okBtn->setEnabled(true);
    changed->setText(QString());
    // Nothing changed where the name was cleared before.
    QCOMPARE(dialog.isOkEnabled(), changed == dialog->m_appNameEdit);
}

void DialogOkButtonTest::cursorNeverEnables()
{
    QFETCH(int, type);
    QFETCH(QString, edit);
    const OpenDialog dialog;
    fillAll(dialog, type);
    QLineEdit* const walked = dialog.find<QLineEdit>(edit);
    const QSignalSpy moved(walked, SIGNAL(cursorPositionChanged(int, int)));
    QTest::keyClick(walked, Qt::Key_Left);
    QTest::keyClick(walked, Qt::Key_Home);
    QCOMPARE(moved.size(), 2);
    QVERIFY(!dialog.isOkEnabled());
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

REGISTER_TEST(DialogOkButtonTest)
#include "DialogOkButtonTest.moc"
