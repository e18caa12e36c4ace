// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// OK and Cancel: the record of each type, what is emitted when, and what stays.

#include <QComboBox>
#include <QFile>
#include <QLineEdit>

#include "FakeHost.h"
#include "OpenDialog.h"
#include "Records.h"
#include "Test.h"

class DialogCommitTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void record_data();
    void record();
    void otherPanelsDoNotCount();
    void anyOtherIndexIsInternet();
    void options_data();
    void options();
    void textIsTakenAsTyped_data();
    void textIsTakenAsTyped();
    void emittedOnceAfterFailures();
    void failedOk_data();
    void failedOk();
    void okWithoutAFrame();
    void cancel();
    void cancelKeepsTheRecord();
    void cancelWithoutAFrame();
    void newEditClicked_data();
    void newEditClicked();
    void newEditClickedChangesNothingElse();
};

void DialogCommitTest::record_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("typeText");
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("para");
    QTest::newRow("application") << 0 << "IDS_LINK_TYPE_APPLICATION"
                                 << "/"
                                 << "--new \"a b\"";
    QTest::newRow("application without parameters") << 0 << "IDS_LINK_TYPE_APPLICATION"
                                                    << "/"
                                                    << "";
    QTest::newRow("e-mail") << 1 << "IDS_LINK_TYPE_E-MAIL"
                            << "mailto:"
                            << "";
    QTest::newRow("Internet") << 2 << "IDS_LINK_TYPE_INTERNET"
                              << "www.example.org"
                              << "";
}

void DialogCommitTest::record()
{
    QFETCH(int, type);
    QFETCH(QString, typeText);
    QFETCH(QString, url);
    QFETCH(QString, para);
    OpenDialog dialog(names("Other"));
    dialog.fill(type, "My link", url);
    if (!para.isEmpty())
        dialog.enter(dialog->m_appParamEdit, para);
    dialog.pressOk();

    QuickLinkRecord expected;
    expected.id = "";
    expected.name = "My link";
    expected.type = typeText;
    expected.url = url;
    expected.para = para;
    expected.startconnect = expected.startmobile = "0";
    expected.delete_ = expected.edit = expected.visible = "1";
    QCOMPARE(dialog.added.size(), 1);
    QCOMPARE(difference(dialog.added.first(), expected), "");
    QCOMPARE(dialog->m_record, dialog.addedObjects.first());
    // Emitted, then closed, but not gone.
    QCOMPARE(dialog.wasOpenWhenAdded, QList<bool>() << true);
    QVERIFY(!dialog.isOpen());
    QVERIFY(dialog->m_frameDialog);
    QVERIFY(dialog.wasOpenWhenCancelled.isEmpty());
    QCOMPARE(dialog.messageKeys(), QStringList());
    // Storing is the page's work.
    QVERIFY(!QFile::exists(FakeHost::instance().configPath()));
    QCOMPARE(dialog.stored().size(), 1);
    QVERIFY(FakeHost::instance().notifications.isEmpty());
}

void DialogCommitTest::otherPanelsDoNotCount()
{
    OpenDialog dialog;
    dialog.fill(2, "Mail", "www.example.org");
    dialog.fill(0, "Mail", "/no/such/file");
    dialog.enter(dialog->m_appParamEdit, "--new");
    dialog.chooseType(1);
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), 1);
    QCOMPARE(difference(dialog.added.first(), makeRecord("Mail", "email", "mailto:")), "");
    QCOMPARE(dialog.messageKeys(), QStringList());
}

void DialogCommitTest::anyOtherIndexIsInternet()
{
    OpenDialog dialog;
    dialog.fill(2, "News", "www.example.org");
    dialog->m_appParamEdit->setText("--new");
    dialog->m_appTypeChoice->setCurrentIndex(-1);
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), 1);
    QCOMPARE(difference(dialog.added.first(), makeRecord("News", "internet", "www.example.org")), "");
}

void DialogCommitTest::options_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("onSoftware");
    QTest::addColumn<bool>("onConnect");
    for (int type = 0; type < 3; ++type) {
        for (int both = 0; both < 4; ++both) {
            const bool onSoftware = both & 1;
            const bool onConnect = both & 2;
            QTest::newRow(qPrintable(QString("type %1: %2 %3").arg(type).arg(onSoftware).arg(onConnect)))
                << type << onSoftware << onConnect;
        }
    }
}

void DialogCommitTest::options()
{
    QFETCH(int, type);
    QFETCH(bool, onSoftware);
    QFETCH(bool, onConnect);
    OpenDialog dialog;
    dialog.fill(type, "Name", "/");
    dialog->onSelectLaunchOnsoftware(onSoftware);
    dialog->onSelectLaunchOnConnect(onConnect);
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), 1);
    QCOMPARE(dialog.added.first().startmobile, onSoftware ? "1" : "0");
    QCOMPARE(dialog.added.first().startconnect, onConnect ? "1" : "0");
}

void DialogCommitTest::textIsTakenAsTyped_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("url");
    QTest::newRow("no scheme") << "News"
                               << "example.org";
    QTest::newRow("case") << "nEWS"
                          << "HTTP://Example.ORG/Path";
    QTest::newRow("blanks") << "  News "
                            << " www.example.org  ";
    QTest::newRow("only blanks") << " "
                                 << " ";
    QTest::newRow("markup") << "R&D <\"'>"
                            << "http://example.org/?a=1&b=<2>";
    QTest::newRow("backslashes") << "a\\b"
                                 << "C:\\Tools\\app.exe";
    QTest::newRow("beyond Latin") << QString::fromUtf8("N\xC3\xBC\xC3\x9F\xE4\xB8\xAD")
                                  << QString::fromUtf8("http://\xC3\xBC.example");
}

void DialogCommitTest::textIsTakenAsTyped()
{
    QFETCH(QString, name);
    QFETCH(QString, url);
    OpenDialog dialog;
    dialog.chooseType(2);
    dialog->m_appNameEdit->setText(name);
    dialog->m_EditUrlName->setText(url);
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), 1);
    QCOMPARE(dialog.added.first().name, name);
    QCOMPARE(dialog.added.first().url, url);
}

void DialogCommitTest::emittedOnceAfterFailures()
{
    OpenDialog dialog(names("Taken"));
    dialog.fill(0, "Taken", "/");
    dialog.pressOk();
    dialog.enter(dialog->m_appNameEdit, "Free");
    dialog.enter(dialog->m_appPathEdit, "/no/such/file");
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), 0);
    QCOMPARE(dialog.messageKeys().size(), 2);
    QVERIFY(dialog.isOpen());
    dialog.enter(dialog->m_appPathEdit, "/");
    dialog.pressOk();
    QCOMPARE(dialog.messageKeys().size(), 2);
    QCOMPARE(dialog.added.size(), 1);
    QCOMPARE(difference(dialog.added.first(), makeRecord("Free", "application", "/")), "");
    QVERIFY(!dialog.isOpen());
}

void DialogCommitTest::failedOk_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("missing"); // member; empty when none is
    QTest::newRow("name") << "Taken"
                          << "/"
                          << "";
    QTest::newRow("path") << "Free"
                          << "/no/such/file"
                          << "";
    QTest::newRow("no name edit") << "Free"
                                  << "/"
                                  << "m_appNameEdit";
    QTest::newRow("no type choice") << "Free"
                                    << "/"
                                    << "m_appTypeChoice";
    QTest::newRow("no address edit") << "Free"
                                     << "/"
                                     << "m_EditUrlName";
}

void DialogCommitTest::failedOk()
{
    QFETCH(QString, name);
    QFETCH(QString, path);
    QFETCH(QString, missing);
    OpenDialog dialog(names("Taken"));
    dialog.fill(0, name, path);
    dialog.enter(dialog->m_appParamEdit, "--new");
    dialog->onSelectLaunchOnConnect(true);
    {
        QScopedPointer<NullMember> nullMember;
        if (!missing.isEmpty())
            nullMember.reset(new NullMember(memberOf(dialog.get(), missing)));
        dialog.pressOk();
    }
    QCOMPARE(dialog.messageKeys().size(), missing.isEmpty() ? 1 : 0);
    QVERIFY(dialog.added.isEmpty());
    QVERIFY(dialog.wasOpenWhenCancelled.isEmpty());
    // Everything is as the user left it.
    QVERIFY(dialog.isOpen());
    QVERIFY(dialog.isOkEnabled());
    QCOMPARE(dialog->m_appNameEdit->text(), name);
    QCOMPARE(dialog->m_appPathEdit->text(), path);
    QCOMPARE(dialog->m_appParamEdit->text(), "--new");
    QCOMPARE(dialog->m_appTypeChoice->currentIndex(), 0);
    QCOMPARE(dialog.options(), "01");
    // The record was built before anything was checked, and filled after it.
    QVERIFY(dialog->m_record);
    QCOMPARE(difference(*dialog->m_record, QuickLinkRecord()), "");
}

void DialogCommitTest::okWithoutAFrame()
{
    OpenDialog dialog;
    dialog.fill(1, "Mail");
    const NullMember missing(memberOf(dialog.get(), "m_frameDialog"));
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), 1);
}

void DialogCommitTest::cancel()
{
    OpenDialog dialog;
    dialog.fill(2, "News", "www.example.org");
    dialog.pressCancel();
    // Closed first, then told.
    QCOMPARE(dialog.wasOpenWhenCancelled, QList<bool>() << false);
    QVERIFY(dialog.added.isEmpty());
    QVERIFY(!dialog.isOpen());
    QVERIFY(!dialog->m_record);
    QVERIFY(dialog->m_frameDialog);
    QCOMPARE(dialog.messageKeys(), QStringList());
}

void DialogCommitTest::cancelKeepsTheRecord()
{
    OpenDialog dialog;
    dialog.fill(0, "Free", "/no/such/file");
    dialog.pressOk();
    const QuickLinkRecord* const record = dialog->m_record;
    dialog.pressCancel();
    QCOMPARE(dialog->m_record, record);
    QCOMPARE(difference(*record, QuickLinkRecord()), "");
}

void DialogCommitTest::cancelWithoutAFrame()
{
    OpenDialog dialog;
    {
        const NullMember missing(memberOf(dialog.get(), "m_frameDialog"));
        dialog.pressCancel();
    }
    QCOMPARE(dialog.wasOpenWhenCancelled.size(), 1);
    QVERIFY(dialog.isOpen());
}

void DialogCommitTest::newEditClicked_data()
{
    QTest::addColumn<bool>("isEdit");
    QTest::addColumn<QString>("name");
    QTest::newRow("new") << false << "";
    QTest::newRow("edit") << true << "News";
    QTest::newRow("edit of a link without a name") << true << "";
    QTest::newRow("new with a name") << false << "News";
}

void DialogCommitTest::newEditClicked()
{
    QFETCH(bool, isEdit);
    QFETCH(QString, name);
    QuickLinkSettingNewEditDlg dialog;
    dialog.onNewEditClicked(!isEdit, "before");
    dialog.onNewEditClicked(isEdit, name);
    QCOMPARE(dialog.m_isEdit, isEdit);
    QCOMPARE(dialog.m_editedName, name);
}

void DialogCommitTest::newEditClickedChangesNothingElse()
{
    OpenDialog dialog;
    dialog.fill(2, "News", "www.example.org");
    dialog->onSelectLaunchOnConnect(true);
    dialog->onNewEditClicked(true, "Old");
    QCOMPARE(dialog->m_appNameEdit->text(), "News");
    QCOMPARE(dialog.options(), "01");
    QVERIFY(dialog.isOkEnabled());
    QVERIFY(!dialog->m_record);
    QVERIFY(FakeHost::instance().frames.first().titles.isEmpty());
}

REGISTER_TEST(DialogCommitTest)
#include "DialogCommitTest.moc"
