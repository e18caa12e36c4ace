// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The two checks behind OK: is the name free, and does the application exist; and how the user is told.

#include <QDir>
#include <QFile>
#include <QLineEdit>

#include "OpenDialog.h"
#include "FakeHost.h"
#include "QuickLinkXmlParse.h"
#include "Records.h"
#include "RecordingTrace.h"
#include "Test.h"

class DialogChecksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nameOfANewLink_data();
    void nameOfANewLink();
    void nameOfAnEditedLink_data();
    void nameOfAnEditedLink();
    void nameCheckIsForEveryType_data();
    void nameCheckIsForEveryType();
    void onlyOneMessageForTwoEqualNames();
    void hiddenRecordsCount();
    void path_data();
    void path();
    void pathCheckIsForApplicationsOnly_data();
    void pathCheckIsForApplicationsOnly();
    void nameIsCheckedBeforeThePath();
    void message_data();
    void message();
    void messageInAnotherLanguage();
    void answerDoesNotMatter();
    void noStoredList();
    void nameEditMissing();
    void pathEditMissing();
};

namespace
{
QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

QStringList messageTexts()
{
    QStringList texts;
    for (const ShownMessage& message : FakeHost::instance().messages)
        texts.append(message.text);
    return texts;
}
} // namespace

void DialogChecksTest::nameOfANewLink_data()
{
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isFree");
    const QStringList three = QStringList() << text("One") << text("Two") << text("Three");
    QTest::newRow("no link yet") << QStringList() << text("One") << true;
    QTest::newRow("other") << three << text("Four") << true;
    QTest::newRow("first") << three << text("One") << false;
    QTest::newRow("middle") << three << text("Two") << false;
    QTest::newRow("last") << three << text("Three") << false;
    QTest::newRow("other case") << three << text("one") << true;
    QTest::newRow("trailing blank") << three << text("One ") << true;
    QTest::newRow("leading blank") << three << text(" One") << true;
    QTest::newRow("part") << three << text("On") << true;
    QTest::newRow("stored with a blank") << QStringList(text("One ")) << text("One ") << false;
    QTest::newRow("unnamed link stored") << QStringList(QString()) << text("One") << true;
}

void DialogChecksTest::nameOfANewLink()
{
    QFETCH(QStringList, stored);
    QFETCH(QString, name);
    QFETCH(bool, isFree);
    OpenDialog dialog(stored);
    dialog.fill(2, qPrintable(name), "www.example.org");
    QCOMPARE(dialog->checkNameDuplication(), isFree);
    FakeHost::instance().messages.clear();
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), isFree ? 1 : 0);
    QCOMPARE(dialog.isOpen(), !isFree);
    QCOMPARE(messageTexts(), isFree ? QStringList() : QStringList(shown("IDS_LINK_SETTING_NAME_SAME")));
    if (isFree)
        QCOMPARE(dialog.added.first().name, name);
}

void DialogChecksTest::nameOfAnEditedLink_data()
{
    QTest::addColumn<bool>("isEdit");
    QTest::addColumn<QString>("editedName");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isFree");
    QTest::newRow("kept") << true << text("Two") << text("Two") << true;
    QTest::newRow("changed to a free name") << true << text("Two") << text("Four") << true;
    QTest::newRow("changed to another link's") << true << text("Two") << text("One") << false;
    QTest::newRow("changed in case only") << true << text("Two") << text("two") << true;
    QTest::newRow("back to its own in the list") << true << text("two") << text("Two") << false;
    QTest::newRow("new link ignores the name") << false << text("Two") << text("Two") << false;
}

void DialogChecksTest::nameOfAnEditedLink()
{
    QFETCH(bool, isEdit);
    QFETCH(QString, editedName);
    QFETCH(QString, name);
    QFETCH(bool, isFree);
    OpenDialog dialog(names("One Two Three"));
    dialog->onNewEditClicked(isEdit, editedName);
    dialog.fill(1, qPrintable(name), "");
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), isFree ? 1 : 0);
    QCOMPARE(messageTexts(), isFree ? QStringList() : QStringList(shown("IDS_LINK_SETTING_NAME_SAME")));
    QCOMPARE(dialog.isOpen(), !isFree);
}

void DialogChecksTest::nameCheckIsForEveryType_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("application") << 0;
    QTest::newRow("e-mail") << 1;
    QTest::newRow("Internet") << 2;
}

void DialogChecksTest::nameCheckIsForEveryType()
{
    QFETCH(int, type);
    OpenDialog dialog(names("One"));
    dialog.fill(type, "One", "/");
    dialog.pressOk();
    QVERIFY(dialog.added.isEmpty());
    QCOMPARE(messageTexts(), QStringList(shown("IDS_LINK_SETTING_NAME_SAME")));
}

void DialogChecksTest::onlyOneMessageForTwoEqualNames()
{
    OpenDialog dialog(names("One One One"));
    dialog.fill(1, "One", "");
    dialog.pressOk();
    QCOMPARE(FakeHost::instance().messages.size(), 1);
}

void DialogChecksTest::hiddenRecordsCount()
{
    OpenDialog dialog(names("Hidden"));
    dialog.stored()[0].visible = text("0");
    dialog.fill(1, "Hidden", "");
    dialog.pressOk();
    QVERIFY(dialog.added.isEmpty());
    QCOMPARE(messageTexts(), QStringList(shown("IDS_LINK_SETTING_NAME_SAME")));
}

void DialogChecksTest::path_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("exists");
    // %1 stands for a folder that holds the file "a program".
    QTest::newRow("file") << text("%1/a program") << true;
    QTest::newRow("folder") << text("%1") << true;
    QTest::newRow("folder with a slash") << text("%1/") << true;
    QTest::newRow("roundabout") << text("%1/../%2/a program") << true;
    QTest::newRow("missing") << text("%1/missing") << false;
    QTest::newRow("trailing blank") << text("%1/a program ") << false;
    QTest::newRow("leading blank") << text(" %1/a program") << false;
    QTest::newRow("quoted") << text("\"%1/a program\"") << false;
    QTest::newRow("other case") << text("%1/A PROGRAM") << false;
    QTest::newRow("home sign") << text("~") << false;
    QTest::newRow("variable") << text("$HOME") << false;
    QTest::newRow("address") << text("file://%1/a program") << false;
    QTest::newRow("blank") << text(" ") << false;
    QTest::newRow("empty") << QString() << false;
}

void DialogChecksTest::path()
{
    QFETCH(QString, path);
    QFETCH(bool, exists);
    const QTemporaryDir folder;
    QFile file(folder.path() + text("/a program"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    path.replace(text("%1"), folder.path()).replace(text("%2"), QDir(folder.path()).dirName());
    OpenDialog dialog;
    dialog->m_appNameEdit->setText(text("Program"));
    dialog->m_appPathEdit->setText(path);
    QCOMPARE(dialog->isValidPath(), exists);
    FakeHost::instance().messages.clear();
    // By the slot: with an empty path the button is disabled.
    dialog->onClickOkButton();
    QCOMPARE(messageTexts(), exists ? QStringList() : QStringList(shown("IDS_LINK_SETTING_FILENOTEXIST")));
    QCOMPARE(dialog.added.size(), exists ? 1 : 0);
    QCOMPARE(dialog.isOpen(), !exists);
    if (exists)
        QCOMPARE(dialog.added.first().url, path);
}

void DialogChecksTest::pathCheckIsForApplicationsOnly_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("e-mail") << 1;
    QTest::newRow("Internet") << 2;
}

void DialogChecksTest::pathCheckIsForApplicationsOnly()
{
    QFETCH(int, type);
    OpenDialog dialog;
    dialog->m_appPathEdit->setText(text("/no/such/file"));
    dialog.fill(type, "Name", "no address at all");
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), 1);
    QVERIFY(FakeHost::instance().messages.isEmpty());
}

void DialogChecksTest::nameIsCheckedBeforeThePath()
{
    OpenDialog dialog(names("One"));
    dialog.fill(0, "One", "/no/such/file");
    dialog.pressOk();
    QCOMPARE(messageTexts(), QStringList(shown("IDS_LINK_SETTING_NAME_SAME")));
}

void DialogChecksTest::message_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("key");
    QTest::newRow("name") << QByteArray("One") << QByteArray("IDS_LINK_SETTING_NAME_SAME");
    QTest::newRow("path") << QByteArray("Two") << QByteArray("IDS_LINK_SETTING_FILENOTEXIST");
}

void DialogChecksTest::message()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, key);
    OpenDialog dialog(names("One"));
    dialog.fill(0, name.constData(), "/no/such/file");
    dialog.pressOk();
    QCOMPARE(FakeHost::instance().messages.size(), 1);
    const ShownMessage& shownMessage = FakeHost::instance().messages.first();
    QCOMPARE(int(shownMessage.icon), int(QMessageBox::Information));
    QCOMPARE(shownMessage.parent.data(), dialog->m_mainWidget);
    QCOMPARE(shownMessage.title, shown("IDS_LINK_PROMPT"));
    QCOMPARE(shownMessage.text, shown(key.constData()));
    QCOMPARE(shownMessage.firstButton, text("IDS_OK"));
    QCOMPARE(shownMessage.secondButton, QString());
    QCOMPARE(shownMessage.thirdButton, QString());
    QCOMPARE(shownMessage.beep, true);
    QCOMPARE(int(shownMessage.flags), 0x08000000);
    QVERIFY(!shownMessage.dialogOut);
    QCOMPARE(shownMessage.details, QString());
    QCOMPARE(shownMessage.closable, true);
}

void DialogChecksTest::messageInAnotherLanguage()
{
    OpenDialog dialog(names("One"));
    FakeHost::instance().language = text("fr");
    dialog.fill(1, "One", "");
    dialog.pressOk();
    QCOMPARE(FakeHost::instance().messages.size(), 1);
    QCOMPARE(FakeHost::instance().messages.first().title, text("fr:IDS_LINK_PROMPT"));
    QCOMPARE(FakeHost::instance().messages.first().text, text("fr:IDS_LINK_SETTING_NAME_SAME"));
    QCOMPARE(FakeHost::instance().messages.first().firstButton, text("IDS_OK"));
}

void DialogChecksTest::answerDoesNotMatter()
{
    OpenDialog dialog(names("One"));
    FakeHost::instance().messageAnswer = QMessageBox::Cancel;
    dialog.fill(1, "One", "");
    dialog.pressOk();
    QVERIFY(dialog.isOpen());
    QVERIFY(dialog.added.isEmpty());
}

void DialogChecksTest::noStoredList()
{
    OpenDialog dialog;
    dialog.fill(1, "One", "");
    QuickLinkXmlParse* const store = QuickLinkXmlParse::GetInstance();
    delete store->m_recordList;
    store->m_recordList = nullptr;
    QVERIFY(!dialog->checkNameDuplication());
    dialog.pressOk();
    QVERIFY(dialog.isOpen());
    QVERIFY(dialog.added.isEmpty());
    QVERIFY(FakeHost::instance().messages.isEmpty());
    // An edited link that keeps its name needs no list.
    dialog->onNewEditClicked(true, text("One"));
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), 1);
}

void DialogChecksTest::nameEditMissing()
{
    OpenDialog dialog;
    const NullMember missing(memberOf(dialog.get(), text("m_appNameEdit")));
    QVERIFY(!dialog->checkNameDuplication());
    QVERIFY(FakeHost::instance().messages.isEmpty());
}

void DialogChecksTest::pathEditMissing()
{
    OpenDialog dialog;
    dialog.fill(0, "Folder", "/");
    {
        const NullMember missing(memberOf(dialog.get(), text("m_appPathEdit")));
        dialog.pressOk();
    }
    QCOMPARE(messageTexts(), QStringList(shown("IDS_LINK_SETTING_FILENOTEXIST")));
    QVERIFY(dialog.isOpen());
}

REGISTER_TEST(DialogChecksTest)
#include "DialogChecksTest.moc"
