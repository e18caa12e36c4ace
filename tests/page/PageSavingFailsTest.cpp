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

    void fails_data();
    void fails();
    void linksBeforeTheCutAreReadBack();
    void diskFull_data();
    void diskFull();
    void counterAfterAFailure();

private:
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

void PageSavingFailsTest::fails_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("list");
    QTest::addColumn<int>("notifications");
    // After New the list is what the disk holds.
    const char* const ways[][2] = {{"no folder", ""},
                                   {"folder in place of the file", ""},
                                   {"read-only", "a b c"},
                                   {"old file cannot be removed", "a b c d"},
                                   {"file cut short", ""}};
    const char* const changes[][2] = {{"Edit", "a x c"}, {"Delete", "a c"}, {"Up", "b a c"}, {"Down", "a c b"}};
    for (const char* const* way : ways) {
        QTest::newRow(qPrintable(QString(way[0]) + ", New")) << QString(way[0]) << "New"
                                                             << "a b c d" << QString(way[1]) << 1;
        for (const char* const* change : changes) {
            const QString what(change[0]);
            QTest::newRow(qPrintable(QString(way[0]) + ", " + what))
                << QString(way[0]) << what << QString(change[1]) << QString(change[1])
                << (what == "Edit" || what == "Delete" ? 1 : 0);
        }
    }
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
    QVERIFY(m_page.currentRow() < m_page.table()->rowCount());
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

void PageSavingFailsTest::fails()
{
    QFETCH(QString, way);
    QFETCH(QString, what);
    m_page.begin(links("a b c"));
    const QByteArray before = m_page.file();
    const QString folder = FakeHost::instance().configFolder();
    const QString path = FakeHost::instance().configPath();
    const bool isReadOnly = way == "read-only";
    const bool isKept = way == "old file cannot be removed";
    const bool isCut = way == "file cut short";
    {
        QScopedPointer<WithoutPrivileges> user;
        QScopedPointer<LowerLimit> limit;
        if (way == "no folder") {
            QVERIFY(removeFolder(folder));
        } else if (way == "folder in place of the file") {
            QVERIFY(QFile::remove(path) && QDir().mkpath(path + "/inside"));
        } else if (isCut) {
            limit.reset(new LowerLimit(RLIMIT_FSIZE, 200));
            QVERIFY(limit->isLowered());
        } else {
            QVERIFY(setMode(FakeHost::instance().userFolder, 0755));
            QVERIFY(setMode(folder, 0555));
            QVERIFY(setMode(path, isReadOnly ? 0444 : 0666));
            user.reset(new WithoutPrivileges);
            QVERIFY(user->isBound());
        }
        RecordingTrace trace;
        change();
        QCOMPARE(trace.countDebug("Error open file: "), isKept || isCut ? 0 : 1);
    }
    if (isReadOnly || isKept)
        QVERIFY(setMode(folder, 0755));
    checkPage();
    const QByteArray expected = document();
    if (isReadOnly)
        QCOMPARE(m_page.file(), before);
    else if (isKept) // written over the old bytes, whose tail stays behind a shorter document
        QCOMPARE(m_page.file(), expected + before.mid(expected.size()));
    else if (isCut)
        QCOMPARE(m_page.file(), expected.left(200));
    else if (way == "no folder")
        QVERIFY(!QFile::exists(folder));
    else
        QVERIFY(QFileInfo(path + "/inside").isDir());
    if (way != "no folder")
        return;

    // With the folder back, everything works again.
    QVERIFY(QDir().mkpath(folder));
    m_page.show();
    const QString names = m_page.listNames();
    m_page.addLink(1, "last");
    QCOMPARE(m_page.linkNames(), what == "New" ? "last" : names + " last");
    const QByteArray counter = QuickLinkXmlParse::GetInstance()->m_currentId.toLatin1();
    QCOMPARE(m_page.file(), m_page.expectedFile(counter.constData()));
}

void PageSavingFailsTest::linksBeforeTheCutAreReadBack()
{
    m_page.begin(links("a b c"));
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
    m_page.begin(links("a b c"));
    QVERIFY(removeFolder(FakeHost::instance().configFolder()));
    m_page.addLink(1, "d");
    QCOMPARE(QuickLinkXmlParse::GetInstance()->m_currentId, "3");
    QVERIFY(QDir().mkpath(FakeHost::instance().configFolder()));
    m_page.addLink(1, "e");
    QCOMPARE(m_page.listNames(), "e");
    QCOMPARE(m_page.page->m_recordList->at(0).id, "3");
}

REGISTER_TEST(PageSavingFailsTest)
#include "PageSavingFailsTest.moc"
