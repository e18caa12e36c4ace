// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The two checks behind OK: is the name free, and does the application exist; and how the user is told.

#include <QDir>
#include <QFile>
#include <QLineEdit>

#include "FakeHost.h"
#include "OpenDialog.h"
#include "QuickLinkXmlParse.h"
#include "Test.h"

class DialogNameAndPathTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nameOfANewLink_data();
    void nameOfANewLink();
    void nameOfAnEditedLink_data();
    void nameOfAnEditedLink();
    void hiddenLinkOfEqualName_data();
    void hiddenLinkOfEqualName();
    void path_data();
    void path();
    void pathOfOtherTypes();
    void message_data();
    void message();
    void answerDoesNotMatter();
    void noStoredList();
    void nameEditMissing();
    void pathEditMissing();
};

namespace
{
/** What the user is told of a name that is not free, or of a free one. */
QStringList nameKeys(bool isFree)
{
    return isFree ? QStringList() : QStringList("IDS_LINK_SETTING_NAME_SAME");
}
} // namespace

void DialogNameAndPathTest::nameOfANewLink_data()
{
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isFree");
    const QStringList three = names("One Two Three");
    QTest::newRow("no link yet") << QStringList() << "One" << true;
    QTest::newRow("other") << three << "Four" << true;
    QTest::newRow("first") << three << "One" << false;
    QTest::newRow("middle") << three << "Two" << false;
    QTest::newRow("last") << three << "Three" << false;
    QTest::newRow("other case") << three << "one" << true;
    QTest::newRow("trailing blank") << three << "One " << true;
    QTest::newRow("leading blank") << three << " One" << true;
    QTest::newRow("part") << three << "On" << true;
    QTest::newRow("stored with a blank") << QStringList("One ") << "One " << false;
    QTest::newRow("unnamed link stored") << QStringList(QString()) << "One" << true;
    QTest::newRow("several of that name") << names("One One One") << "One" << false;
}

void DialogNameAndPathTest::nameOfANewLink()
{
    QFETCH(QStringList, stored);
    QFETCH(QString, name);
    QFETCH(bool, isFree);
    OpenDialog dialog(stored);
    dialog.fill(2, name, "www.example.org");
    QCOMPARE(dialog->checkNameDuplication(), isFree);
    FakeHost::instance().messages.clear();
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), isFree ? 1 : 0);
    QCOMPARE(dialog.isOpen(), !isFree);
    QCOMPARE(dialog.messageKeys(), nameKeys(isFree));
    if (isFree)
        QCOMPARE(dialog.added.first().name, name);
}

void DialogNameAndPathTest::nameOfAnEditedLink_data()
{
    QTest::addColumn<bool>("isEdit");
    QTest::addColumn<QString>("editedName");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isFree");
    QTest::newRow("kept") << true << "Two"
                          << "Two" << true;
    QTest::newRow("changed to a free name") << true << "Two"
                                            << "Four" << true;
    QTest::newRow("changed to another link's") << true << "Two"
                                               << "One" << false;
    QTest::newRow("changed in case only") << true << "Two"
                                          << "two" << true;
    QTest::newRow("back to its own in the list") << true << "two"
                                                 << "Two" << false;
    QTest::newRow("new link ignores the name") << false << "Two"
                                               << "Two" << false;
}

void DialogNameAndPathTest::nameOfAnEditedLink()
{
    QFETCH(bool, isEdit);
    QFETCH(QString, editedName);
    QFETCH(QString, name);
    QFETCH(bool, isFree);
    OpenDialog dialog(names("One Two Three"));
    dialog->onNewEditClicked(isEdit, editedName);
    dialog.fill(1, name);
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), isFree ? 1 : 0);
    QCOMPARE(dialog.messageKeys(), nameKeys(isFree));
    QCOMPARE(dialog.isOpen(), !isFree);
}

void DialogNameAndPathTest::hiddenLinkOfEqualName_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("target");
    QTest::newRow("application") << 0 << "/";
    QTest::newRow("missing application") << 0 << "/no/such/file";
    QTest::newRow("e-mail") << 1 << "";
    QTest::newRow("Internet") << 2 << "www.example.org";
}

void DialogNameAndPathTest::hiddenLinkOfEqualName()
{
    QFETCH(int, type);
    QFETCH(QString, target);
    OpenDialog dialog(names("One"));
    dialog.stored()[0].visible = "0";
    dialog.fill(type, "One", target);
    dialog.pressOk();
    QVERIFY(dialog.added.isEmpty());
    // One message: the name is checked before the path.
    QCOMPARE(dialog.messageKeys(), nameKeys(false));
}

void DialogNameAndPathTest::path_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("exists");
    // %1 stands for a folder that holds the file "a program", %2 for the folder's name.
    QTest::newRow("file") << "%1/a program" << true;
    QTest::newRow("folder") << "%1" << true;
    QTest::newRow("folder with a slash") << "%1/" << true;
    QTest::newRow("roundabout") << "%1/../%2/a program" << true;
    QTest::newRow("missing") << "%1/missing" << false;
    QTest::newRow("trailing blank") << "%1/a program " << false;
    QTest::newRow("leading blank") << " %1/a program" << false;
    QTest::newRow("quoted") << "\"%1/a program\"" << false;
    QTest::newRow("other case") << "%1/A PROGRAM" << false;
    QTest::newRow("home sign") << "~" << false;
    QTest::newRow("variable") << "$HOME" << false;
    QTest::newRow("address") << "file://%1/a program" << false;
    QTest::newRow("blank") << " " << false;
    QTest::newRow("empty") << "" << false;
}

void DialogNameAndPathTest::path()
{
    QFETCH(QString, path);
    QFETCH(bool, exists);
    const QTemporaryDir folder;
    QFile file(folder.path() + "/a program");
    QVERIFY(file.open(QIODevice::WriteOnly));
    path.replace("%1", folder.path()).replace("%2", QDir(folder.path()).dirName());
    OpenDialog dialog;
    dialog->m_appNameEdit->setText("Program");
    dialog->m_appPathEdit->setText(path);
    QCOMPARE(dialog->isValidPath(), exists);
    FakeHost::instance().messages.clear();
    // By the slot: with an empty path the button is disabled.
    dialog->onClickOkButton();
    QCOMPARE(dialog.messageKeys(), exists ? QStringList() : QStringList("IDS_LINK_SETTING_FILENOTEXIST"));
    QCOMPARE(dialog.added.size(), exists ? 1 : 0);
    QCOMPARE(dialog.isOpen(), !exists);
    if (exists)
        QCOMPARE(dialog.added.first().url, path);
}

void DialogNameAndPathTest::pathOfOtherTypes()
{
    for (int type = 1; type <= 2; ++type) {
        OpenDialog dialog;
        dialog->m_appPathEdit->setText("/no/such/file");
        dialog.fill(type, "Name", "no address at all");
        dialog.pressOk();
        QCOMPARE(dialog.added.size(), 1);
        QCOMPARE(dialog.messageKeys(), QStringList());
    }
}

void DialogNameAndPathTest::message_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("text");
    QTest::newRow("name") << "One"
                          << "en"
                          << "en:IDS_LINK_SETTING_NAME_SAME";
    QTest::newRow("name, in another language") << "One"
                                               << "fr"
                                               << "fr:IDS_LINK_SETTING_NAME_SAME";
    QTest::newRow("path") << "Two"
                          << "en"
                          << "en:IDS_LINK_SETTING_FILENOTEXIST";
}

void DialogNameAndPathTest::message()
{
    QFETCH(QString, name);
    QFETCH(QString, language);
    QFETCH(QString, text);
    OpenDialog dialog(names("One"));
    FakeHost::instance().language = language;
    dialog.fill(0, name, "/no/such/file");
    dialog.pressOk();
    QCOMPARE(FakeHost::instance().messages.size(), 1);
    const ShownMessage& message = FakeHost::instance().messages.first();
    QCOMPARE(int(message.icon), int(QMessageBox::Information));
    QCOMPARE(message.parent.data(), dialog->m_mainWidget);
    QCOMPARE(message.title, language + ":IDS_LINK_PROMPT");
    QCOMPARE(message.text, text);
    QCOMPARE(message.firstButton, "IDS_OK");
    QCOMPARE(message.secondButton, "");
    QCOMPARE(message.thirdButton, "");
    QCOMPARE(message.beep, true);
    QCOMPARE(int(message.flags), 0x08000000);
    QVERIFY(!message.dialogOut);
    QCOMPARE(message.details, "");
    QCOMPARE(message.closable, true);
}

void DialogNameAndPathTest::answerDoesNotMatter()
{
    OpenDialog dialog(names("One"));
    FakeHost::instance().messageAnswer = QMessageBox::Cancel;
    dialog.fill(1, "One");
    dialog.pressOk();
    QVERIFY(dialog.isOpen());
    QVERIFY(dialog.added.isEmpty());
}

void DialogNameAndPathTest::noStoredList()
{
    OpenDialog dialog;
    dialog.fill(1, "One");
    QuickLinkXmlParse* const store = QuickLinkXmlParse::GetInstance();
    delete store->m_recordList;
    store->m_recordList = nullptr;
    QVERIFY(!dialog->checkNameDuplication());
    dialog.pressOk();
    QVERIFY(dialog.isOpen());
    QVERIFY(dialog.added.isEmpty());
    QCOMPARE(dialog.messageKeys(), QStringList());
    // An edited link that keeps its name needs no list.
    dialog->onNewEditClicked(true, "One");
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), 1);
}

void DialogNameAndPathTest::nameEditMissing()
{
    const OpenDialog dialog;
    const NullMember missing(memberOf(dialog.get(), "m_appNameEdit"));
    QVERIFY(!dialog->checkNameDuplication());
    QCOMPARE(dialog.messageKeys(), QStringList());
}

void DialogNameAndPathTest::pathEditMissing()
{
    OpenDialog dialog;
    dialog.fill(0, "Folder", "/");
    const NullMember missing(memberOf(dialog.get(), "m_appPathEdit"));
    dialog.pressOk();
    QCOMPARE(dialog.messageKeys(), QStringList("IDS_LINK_SETTING_FILENOTEXIST"));
    QVERIFY(dialog.isOpen());
}

REGISTER_TEST(DialogNameAndPathTest)
#include "DialogNameAndPathTest.moc"
