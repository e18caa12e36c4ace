// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// OK and Cancel: the record of each type, what is emitted when, and what stays.

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "OpenDialog.h"
#include "ExtendDialog.h"
#include "FakeHost.h"
#include "QuickLinkXmlParse.h"
#include "Records.h"
#include "RecordingTrace.h"
#include "Test.h"

class DialogCommitTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void record_data();
    void record();
    void recordIsTheLastOneBuilt();
    void otherPanelsDoNotCount();
    void anyOtherIndexIsInternet();
    void options_data();
    void options();
    void textIsTakenAsTyped_data();
    void textIsTakenAsTyped();
    void emittedBeforeTheFrameCloses();
    void emittedOnceAfterFailures();
    void nothingIsWritten();
    void failedOkKeepsWhatTheUserTyped_data();
    void failedOkKeepsWhatTheUserTyped();
    void failedOkLeavesAStartRecord_data();
    void failedOkLeavesAStartRecord();
    void cancel();
    void cancelKeepsTheRecord();
    void cancelWithoutAFrame();
    void okWithoutAFrame();
    void okWithoutParameters();
    void newEditClicked_data();
    void newEditClicked();
    void newEditClickedChangesNothingElse();
    void okWithout_data();
    void okWithout();
};

namespace
{
QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}
} // namespace

void DialogCommitTest::record_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("typeText");
    QTest::addColumn<QByteArray>("url");
    QTest::addColumn<QByteArray>("para");
    QTest::newRow("application") << 0 << QByteArray("IDS_LINK_TYPE_APPLICATION") << QByteArray("/")
                                 << QByteArray("--new \"a b\"");
    QTest::newRow("e-mail") << 1 << QByteArray("IDS_LINK_TYPE_E-MAIL") << QByteArray("mailto:") << QByteArray();
    QTest::newRow("Internet") << 2 << QByteArray("IDS_LINK_TYPE_INTERNET") << QByteArray("www.example.org")
                              << QByteArray();
}

void DialogCommitTest::record()
{
    QFETCH(int, type);
    QFETCH(QByteArray, typeText);
    QFETCH(QByteArray, url);
    QFETCH(QByteArray, para);
    OpenDialog dialog(names("Other"));
    dialog.fill(type, "My link", url.constData());
    if (type == 0)
        dialog.enter(dialog->m_appParamEdit, para.constData());
    dialog.pressOk();

    QuickLinkRecord expected;
    expected.name = text("My link");
    expected.type = QString::fromLatin1(typeText);
    expected.url = QString::fromLatin1(url);
    expected.para = QString::fromLatin1(para);
    expected.id = QString();
    expected.startconnect = expected.startmobile = text("0");
    expected.delete_ = expected.edit = expected.visible = text("1");
    QCOMPARE(dialog.added.size(), 1);
    QCOMPARE(difference(dialog.added.first(), expected), QString());
    QVERIFY(!dialog.isOpen());
    QVERIFY(dialog.wasOpenWhenCancelled.isEmpty());
    QVERIFY(FakeHost::instance().messages.isEmpty());
}

void DialogCommitTest::recordIsTheLastOneBuilt()
{
    OpenDialog dialog;
    dialog.fill(1, "Mail", "");
    dialog.pressOk();
    QCOMPARE(dialog.addedObjects.size(), 1);
    QCOMPARE(dialog->m_record, dialog.addedObjects.first());
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
    QCOMPARE(dialog.added.first().url, text("mailto:"));
    QCOMPARE(dialog.added.first().para, QString());
    QVERIFY(FakeHost::instance().messages.isEmpty());
}

void DialogCommitTest::anyOtherIndexIsInternet()
{
    OpenDialog dialog;
    dialog.fill(2, "News", "www.example.org");
    dialog->m_appTypeChoice->setCurrentIndex(-1);
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), 1);
    QCOMPARE(dialog.added.first().type, text("IDS_LINK_TYPE_INTERNET"));
    QCOMPARE(dialog.added.first().url, text("www.example.org"));
}

void DialogCommitTest::options_data()
{
    QTest::addColumn<QByteArray>("onSoftware");
    QTest::addColumn<QByteArray>("onConnect");
    QTest::newRow("neither") << QByteArray("0") << QByteArray("0");
    QTest::newRow("software") << QByteArray("1") << QByteArray("0");
    QTest::newRow("connection") << QByteArray("0") << QByteArray("1");
    QTest::newRow("both") << QByteArray("1") << QByteArray("1");
}

void DialogCommitTest::options()
{
    QFETCH(QByteArray, onSoftware);
    QFETCH(QByteArray, onConnect);
    for (int type = 0; type < 3; ++type) {
        OpenDialog dialog;
        dialog.fill(type, "Name", "/");
        dialog->onSelectLaunchOnsoftware(onSoftware == "1");
        dialog->onSelectLaunchOnConnect(onConnect == "1");
        dialog.pressOk();
        QCOMPARE(dialog.added.size(), 1);
        QCOMPARE(dialog.added.first().startmobile, QString::fromLatin1(onSoftware));
        QCOMPARE(dialog.added.first().startconnect, QString::fromLatin1(onConnect));
    }
}

void DialogCommitTest::textIsTakenAsTyped_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("url");
    QTest::newRow("no scheme") << QByteArray("News") << QByteArray("example.org");
    QTest::newRow("case") << QByteArray("nEWS") << QByteArray("HTTP://Example.ORG/Path");
    QTest::newRow("blanks") << QByteArray("  News ") << QByteArray(" www.example.org  ");
    QTest::newRow("only blanks") << QByteArray(" ") << QByteArray(" ");
    QTest::newRow("markup") << QByteArray("R&D <\"'>") << QByteArray("http://example.org/?a=1&b=<2>");
    QTest::newRow("backslashes") << QByteArray("a\\b") << QByteArray("C:\\Tools\\app.exe");
    QTest::newRow("beyond Latin") << QByteArray("N\xC3\xBC\xC3\x9F\xE4\xB8\xAD")
                                  << QByteArray("http://\xC3\xBC.example");
}

void DialogCommitTest::textIsTakenAsTyped()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, url);
    OpenDialog dialog;
    dialog.chooseType(2);
    dialog->m_appNameEdit->setText(QString::fromUtf8(name));
    dialog->m_EditUrlName->setText(QString::fromUtf8(url));
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), 1);
    QCOMPARE(dialog.added.first().name, QString::fromUtf8(name));
    QCOMPARE(dialog.added.first().url, QString::fromUtf8(url));
}

void DialogCommitTest::emittedBeforeTheFrameCloses()
{
    OpenDialog dialog;
    dialog.fill(1, "Mail", "");
    dialog.pressOk();
    QCOMPARE(dialog.wasOpenWhenAdded, QList<bool>() << true);
    QVERIFY(!dialog.isOpen());
    // Closed, not gone.
    QVERIFY(dialog->m_frameDialog);
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
    QCOMPARE(FakeHost::instance().messages.size(), 2);
    QVERIFY(dialog.isOpen());
    dialog.enter(dialog->m_appPathEdit, "/");
    dialog.pressOk();
    QCOMPARE(FakeHost::instance().messages.size(), 2);
    QuickLinkRecord expected = makeRecord("Free", "application", "/");
    QCOMPARE(dialog.added.size(), 1);
    QCOMPARE(difference(dialog.added.first(), expected), QString());
    QVERIFY(!dialog.isOpen());
}

void DialogCommitTest::nothingIsWritten()
{
    OpenDialog dialog(names("Other"));
    dialog.fill(1, "Mail", "");
    dialog.pressOk();
    QVERIFY(!QFile::exists(FakeHost::instance().configPath()));
    QCOMPARE(dialog.stored().size(), 1);
    QVERIFY(FakeHost::instance().notifications.isEmpty());
}

void DialogCommitTest::failedOkKeepsWhatTheUserTyped_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("path");
    QTest::newRow("name") << QByteArray("Taken") << QByteArray("/");
    QTest::newRow("path") << QByteArray("Free") << QByteArray("/no/such/file");
}

void DialogCommitTest::failedOkKeepsWhatTheUserTyped()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, path);
    OpenDialog dialog(names("Taken"));
    dialog.fill(0, name.constData(), path.constData());
    dialog.enter(dialog->m_appParamEdit, "--new");
    dialog->onSelectLaunchOnConnect(true);
    dialog.pressOk();
    QVERIFY(dialog.isOpen());
    QVERIFY(dialog.isOkEnabled());
    QVERIFY(dialog.added.isEmpty());
    QVERIFY(dialog.wasOpenWhenCancelled.isEmpty());
    QCOMPARE(dialog->m_appNameEdit->text(), QString::fromLatin1(name));
    QCOMPARE(dialog->m_appPathEdit->text(), QString::fromLatin1(path));
    QCOMPARE(dialog->m_appParamEdit->text(), text("--new"));
    QCOMPARE(dialog->m_appTypeChoice->currentIndex(), 0);
    QCOMPARE(dialog->m_launchOnConnect, text("1"));
}

void DialogCommitTest::failedOkLeavesAStartRecord_data()
{
    failedOkKeepsWhatTheUserTyped_data();
}

void DialogCommitTest::failedOkLeavesAStartRecord()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, path);
    OpenDialog dialog(names("Taken"));
    dialog.fill(0, name.constData(), path.constData());
    dialog->onSelectLaunchOnConnect(true);
    dialog.pressOk();
    QVERIFY(dialog->m_record);
    QCOMPARE(difference(*dialog->m_record, QuickLinkRecord()), QString());
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
    QVERIFY(FakeHost::instance().messages.isEmpty());
}

void DialogCommitTest::cancelKeepsTheRecord()
{
    OpenDialog dialog;
    dialog.fill(0, "Free", "/no/such/file");
    dialog.pressOk();
    const QuickLinkRecord* const record = dialog->m_record;
    dialog.pressCancel();
    QCOMPARE(dialog->m_record, record);
    QCOMPARE(difference(*record, QuickLinkRecord()), QString());
}

void DialogCommitTest::cancelWithoutAFrame()
{
    OpenDialog dialog;
    {
        const NullMember missing(memberOf(dialog.get(), text("m_frameDialog")));
        dialog.pressCancel();
    }
    QCOMPARE(dialog.wasOpenWhenCancelled.size(), 1);
    QVERIFY(dialog.isOpen());
}

void DialogCommitTest::okWithoutAFrame()
{
    OpenDialog dialog;
    dialog.fill(1, "Mail", "");
    {
        const NullMember missing(memberOf(dialog.get(), text("m_frameDialog")));
        dialog.pressOk();
    }
    QCOMPARE(dialog.added.size(), 1);
}

void DialogCommitTest::okWithoutParameters()
{
    OpenDialog dialog;
    dialog.fill(0, "Folder", "/");
    dialog.pressOk();
    QCOMPARE(dialog.added.size(), 1);
    QCOMPARE(dialog.added.first().para, QString());
}

void DialogCommitTest::newEditClicked_data()
{
    QTest::addColumn<bool>("isEdit");
    QTest::addColumn<QString>("name");
    QTest::newRow("new") << false << QString();
    QTest::newRow("edit") << true << text("News");
    QTest::newRow("edit of a link without a name") << true << QString();
    QTest::newRow("new with a name") << false << text("News");
}

void DialogCommitTest::newEditClicked()
{
    QFETCH(bool, isEdit);
    QFETCH(QString, name);
    QuickLinkSettingNewEditDlg dialog;
    dialog.onNewEditClicked(!isEdit, text("before"));
    dialog.onNewEditClicked(isEdit, name);
    QCOMPARE(dialog.m_isEdit, isEdit);
    QCOMPARE(dialog.m_editedName, name);
}

void DialogCommitTest::newEditClickedChangesNothingElse()
{
    OpenDialog dialog;
    dialog.fill(2, "News", "www.example.org");
    dialog->onSelectLaunchOnConnect(true);
    dialog->onNewEditClicked(true, text("Old"));
    QCOMPARE(dialog->m_appNameEdit->text(), text("News"));
    QCOMPARE(dialog->m_launchOnConnect, text("1"));
    QVERIFY(dialog.isOkEnabled());
    QVERIFY(!dialog->m_record);
    QVERIFY(FakeHost::instance().frames.first().titles.isEmpty());
}

void DialogCommitTest::okWithout_data()
{
    addMemberRows(names("m_appNameEdit m_appTypeChoice m_EditUrlName"));
}

void DialogCommitTest::okWithout()
{
    QFETCH(QString, member);
    OpenDialog dialog;
    dialog.fill(2, "News", "www.example.org");
    const RecordingTrace trace;
    {
        const NullMember missing(memberOf(dialog.get(), member));
        dialog.pressOk();
    }
    QCOMPARE(trace.countDebug(nullTrace("onClickOkButton")), 1);
    QVERIFY(dialog.isOpen());
    QVERIFY(dialog.added.isEmpty());
    QVERIFY(FakeHost::instance().messages.isEmpty());
    // Built before anything is checked.
    QVERIFY(dialog->m_record);
    QCOMPARE(difference(*dialog->m_record, QuickLinkRecord()), QString());
}

REGISTER_TEST(DialogCommitTest)
#include "DialogCommitTest.moc"
