// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Changes that cannot be saved: the page and the list hold them, and New shows what the disk holds.

#include <QDir>

#include <sys/mount.h>

#include "ProcessLimits.h"
#include "ShownPage.h"
#include "Test.h"

class PageSavingFailsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void noFolder_data() { changeRows(""); }
    void noFolder();
    void folderInPlaceOfTheFile_data() { changeRows(""); }
    void folderInPlaceOfTheFile();
    void readOnly_data() { changeRows("a b c"); }
    void readOnly();
    void oldFileCannotBeRemoved_data() { changeRows("a b c d"); }
    void oldFileCannotBeRemoved();
    void fileCutShort_data() { changeRows(""); }
    void fileCutShort();
    void linksBeforeTheCutAreReadBack();
    void diskFull_data();
    void diskFull();
    void counterAfterAFailure();
    void worksAgainAfterwards_data() { changeRows(""); }
    void worksAgainAfterwards();

private:
    static void changeRows(const char* listAfterNew);
    void begin() { m_page.begin(links("a b c")); }
    /** Makes the change of the present test row. */
    void change();
    /** Page and list as the present test row says, the menu told as ever. */
    void checkPage();
    /** The document that the change would have saved. */
    QByteArray document() const;

    ShownPage m_page;
    QString m_mounted;
};

void PageSavingFailsTest::cleanup()
{
    m_page.end();
    if (!m_mounted.isEmpty() && umount(m_mounted.toLocal8Bit().constData()) != 0)
        qWarning("%s stays mounted", qPrintable(m_mounted));
    m_mounted.clear();
}

void PageSavingFailsTest::changeRows(const char* listAfterNew)
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("list");
    QTest::addColumn<int>("notifications");
    QTest::newRow("New") << "New"
                         << "a b c d" << QString(listAfterNew) << 1;
    QTest::newRow("Edit") << "Edit"
                          << "a x c"
                          << "a x c" << 1;
    QTest::newRow("Delete") << "Delete"
                            << "a c"
                            << "a c" << 1;
    QTest::newRow("Up") << "Up"
                        << "b a c"
                        << "b a c" << 0;
    QTest::newRow("Down") << "Down"
                          << "a c b"
                          << "a c b" << 0;
}

void PageSavingFailsTest::change()
{
    QFETCH(QString, what);
    m_page.select(1);
    m_page.change(what);
}

void PageSavingFailsTest::checkPage()
{
    QFETCH(QString, what);
    QFETCH(QString, rows);
    QFETCH(QString, list);
    QFETCH(int, notifications);
    QCOMPARE(m_page.shownNames(), rows);
    QCOMPARE(m_page.listNames(), list);
    QCOMPARE(FakeHost::instance().notifications.size(), notifications);
    QCOMPARE(FakeHost::instance().messages.size(), what == "Delete" ? 1 : 0);
    QCOMPARE(m_page.page->m_recordList, QuickLinkXmlParse::GetInstance()->m_recordList);
    QCOMPARE(m_page.table()->rowCount() - 1 - m_page.currentRow() >= 0, true);
}

QByteArray PageSavingFailsTest::document() const
{
    QFETCH(QString, rows);
    const QStringList names = rows.split(' ');
    QList<QuickLinkRecord> records;
    const QuickLinkRecordList unchanged = links("a b c");
    for (const QString& name : names) {
        QuickLinkRecord record;
        if (name == "d") {
            record = makeRecord("d", "email", "mailto:");
            record.id = "3";
        } else if (name == "x") {
            record = makeRecord("x", "email", "mailto:");
            record.id = "2";
        } else {
            record = unchanged.at(name.at(0).unicode() - 'a');
        }
        records.append(record);
    }
    return configDocument("1", names.contains("d") ? "4" : "3", records);
}

void PageSavingFailsTest::noFolder()
{
    begin();
    QVERIFY(removeFolder(FakeHost::instance().configFolder()));
    {
        RecordingTrace trace;
        change();
        QCOMPARE(trace.countDebug("Error open file: "), 1);
    }
    checkPage();
    QVERIFY(!QFile::exists(FakeHost::instance().configFolder()));
}

void PageSavingFailsTest::folderInPlaceOfTheFile()
{
    begin();
    const QString path = FakeHost::instance().configPath();
    QVERIFY(QFile::remove(path) && QDir().mkpath(path + "/inside"));
    {
        RecordingTrace trace;
        change();
        QCOMPARE(trace.countDebug("Error open file: "), 1);
    }
    checkPage();
    QVERIFY(QFileInfo(path + "/inside").isDir());
}

void PageSavingFailsTest::readOnly()
{
    begin();
    const QByteArray before = m_page.file();
    QVERIFY(setMode(FakeHost::instance().userFolder, 0755));
    QVERIFY(setMode(FakeHost::instance().configFolder(), 0555));
    QVERIFY(setMode(FakeHost::instance().configPath(), 0444));
    {
        const WithoutPrivileges user;
        QVERIFY(user.isBound());
        RecordingTrace trace;
        change();
        QCOMPARE(trace.countDebug("Error open file: "), 1);
    }
    QVERIFY(setMode(FakeHost::instance().configFolder(), 0755));
    checkPage();
    QCOMPARE(m_page.file(), before);
}

void PageSavingFailsTest::oldFileCannotBeRemoved()
{
    begin();
    const QByteArray before = m_page.file();
    QVERIFY(setMode(FakeHost::instance().userFolder, 0755));
    QVERIFY(setMode(FakeHost::instance().configFolder(), 0555));
    QVERIFY(setMode(FakeHost::instance().configPath(), 0666));
    {
        const WithoutPrivileges user;
        QVERIFY(user.isBound());
        change();
    }
    QVERIFY(setMode(FakeHost::instance().configFolder(), 0755));
    checkPage();
    // Written over the old bytes, whose tail stays behind a shorter document.
    const QByteArray expected = document();
    QCOMPARE(m_page.file(), expected + before.mid(expected.size()));
}

void PageSavingFailsTest::fileCutShort()
{
    begin();
    {
        const LowerLimit limit(RLIMIT_FSIZE, 200);
        QVERIFY(limit.isLowered());
        change();
    }
    checkPage();
    QCOMPARE(m_page.file(), document().left(200));
}

void PageSavingFailsTest::linksBeforeTheCutAreReadBack()
{
    begin();
    const QByteArray before = m_page.file();
    const int cut = int(before.indexOf("name=\"b\""));
    QVERIFY(cut > 0);
    {
        const LowerLimit limit(RLIMIT_FSIZE, rlim_t(cut));
        QVERIFY(limit.isLowered());
        m_page.addLink(1, "d");
    }
    QCOMPARE(m_page.listNames(), "a");
    QCOMPARE(m_page.shownNames(), "a b c d");
    m_page.show();
    QCOMPARE(m_page.shownNames(), "a");
    QCOMPARE(m_page.enabledButtons(), "New Edit Delete");
}

void PageSavingFailsTest::diskFull_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("list");
    QTest::newRow("New") << "New"
                         << "a b c d"
                         << "a b c";
    QTest::newRow("Edit") << "Edit"
                          << "a x c"
                          << "a x c";
}

void PageSavingFailsTest::diskFull()
{
    QFETCH(QString, what);
    QFETCH(QString, names);
    QFETCH(QString, list);
    m_page.make();
    const QString folder = FakeHost::instance().configFolder();
    if (mount("tmpfs", folder.toLocal8Bit().constData(), "tmpfs", 0, "size=16k,mode=755") != 0)
        QSKIP("No disk can be mounted here");
    m_mounted = folder;

    // All of the disk but 4096 bytes is taken; the third link ends near them, and the change goes beyond.
    QuickLinkRecordList records = links("a b c");
    const int room = 4096 - int(configDocument("1", "3", records.toList()).size()) - 20;
    records[2].para = QString(room, 'p');
    QVERIFY(FakeHost::instance().writeConfig(configDocument("1", "3", records.toList())));
    QFile filler(folder + "/filler");
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(1024, 'f')) > 0) {
    }
    filler.close();

    m_page.page->Init();
    m_page.host = new QWidget;
    m_page.show();
    QCOMPARE(m_page.shownNames(), "a b c");
    m_page.select(1);
    if (what == "New") {
        m_page.addLink(1, "d");
    } else {
        m_page.click("m_editBtn");
        m_page.chooseType(2);
        m_page.enter("m_appNameEdit", "x");
        m_page.enter("m_EditUrlName", QString(200, 'u'));
        m_page.pressOk();
    }
    QCOMPARE(m_page.shownNames(), names);
    QCOMPARE(m_page.listNames(), list);
    QCOMPARE(m_page.file().size(), 4096);
    QCOMPARE(m_page.told(), 1);
}

void PageSavingFailsTest::counterAfterAFailure()
{
    begin();
    QVERIFY(removeFolder(FakeHost::instance().configFolder()));
    m_page.addLink(1, "d");
    QCOMPARE(QuickLinkXmlParse::GetInstance()->m_currentId, "3");
    QVERIFY(QDir().mkpath(FakeHost::instance().configFolder()));
    m_page.addLink(1, "e");
    QCOMPARE(m_page.listNames(), "e");
    QCOMPARE(m_page.page->m_recordList->at(0).id, "3");
}

void PageSavingFailsTest::worksAgainAfterwards()
{
    QFETCH(QString, what);
    begin();
    QVERIFY(removeFolder(FakeHost::instance().configFolder()));
    change();
    QVERIFY(QDir().mkpath(FakeHost::instance().configFolder()));
    m_page.show();
    m_page.addLink(1, "last");
    const QString before = what == "New" ? QString() : m_page.listNames();
    QVERIFY(before.isEmpty() ? m_page.listNames() == "last" : before.endsWith("last"));
    QCOMPARE(m_page.disorder(), QString());
    QCOMPARE(m_page.file(), m_page.expectedFile(QuickLinkXmlParse::GetInstance()->m_currentId.toLatin1().constData()));
}

REGISTER_TEST(PageSavingFailsTest)
#include "PageSavingFailsTest.moc"
