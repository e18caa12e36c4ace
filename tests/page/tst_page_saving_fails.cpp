// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Changes that cannot be saved: the page and the list hold them, and New shows what the disk holds.

#include <QDir>
#include <QtTest>

#include <sys/mount.h>

#include "PageFixture.h"
#include "ProcessLimits.h"

class PageSavingFails : public QObject
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

void PageSavingFails::cleanup()
{
    m_page.end();
    if (!m_mounted.isEmpty() && umount(m_mounted.toLocal8Bit().constData()) != 0)
        qWarning("%s stays mounted", qPrintable(m_mounted));
    m_mounted.clear();
}

void PageSavingFails::changeRows(const char* listAfterNew)
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("list");
    QTest::addColumn<int>("notifications");
    QTest::newRow("New") << QString::fromLatin1("New") << QString::fromLatin1("a b c d")
                         << QString::fromLatin1(listAfterNew) << 1;
    QTest::newRow("Edit") << QString::fromLatin1("Edit") << QString::fromLatin1("a x c") << QString::fromLatin1("a x c")
                          << 1;
    QTest::newRow("Delete") << QString::fromLatin1("Delete") << QString::fromLatin1("a c") << QString::fromLatin1("a c")
                            << 1;
    QTest::newRow("Up") << QString::fromLatin1("Up") << QString::fromLatin1("b a c") << QString::fromLatin1("b a c")
                        << 0;
    QTest::newRow("Down") << QString::fromLatin1("Down") << QString::fromLatin1("a c b") << QString::fromLatin1("a c b")
                          << 0;
}

void PageSavingFails::change()
{
    QFETCH(QString, what);
    m_page.select(1);
    m_page.change(what);
}

void PageSavingFails::checkPage()
{
    QFETCH(QString, what);
    QFETCH(QString, rows);
    QFETCH(QString, list);
    QFETCH(int, notifications);
    QCOMPARE(m_page.shownNames(), rows);
    QCOMPARE(m_page.listNames(), list);
    QCOMPARE(FakeHost::instance().notifications.size(), notifications);
    QCOMPARE(FakeHost::instance().messages.size(), what == QLatin1String("Delete") ? 1 : 0);
    QCOMPARE(m_page.page->m_recordList, QuickLinkXmlParse::GetInstance()->m_recordList);
    QCOMPARE(m_page.table()->rowCount() - 1 - m_page.currentRow() >= 0, true);
}

QByteArray PageSavingFails::document() const
{
    QFETCH(QString, rows);
    const QStringList names = rows.split(QLatin1Char(' '));
    QList<QuickLinkRecord> records;
    const QuickLinkRecordList unchanged = links("a b c");
    for (const QString& name : names) {
        QuickLinkRecord record;
        if (name == QLatin1String("d")) {
            record = makeRecord("d", "email", "mailto:");
            record.id = QLatin1String("3");
        } else if (name == QLatin1String("x")) {
            record = makeRecord("x", "email", "mailto:");
            record.id = QLatin1String("2");
        } else {
            record = unchanged.at(name.at(0).unicode() - 'a');
        }
        records.append(record);
    }
    return configDocument(QLatin1String("1"),
                          names.contains(QLatin1String("d")) ? QLatin1String("4") : QLatin1String("3"), records);
}

void PageSavingFails::noFolder()
{
    begin();
    QVERIFY(QDir(FakeHost::instance().configFolder()).removeRecursively());
    {
        TraceRecorder trace;
        change();
        QCOMPARE(trace.countDebug(QLatin1String("Error open file: ")), 1);
    }
    checkPage();
    QVERIFY(!QFile::exists(FakeHost::instance().configFolder()));
}

void PageSavingFails::folderInPlaceOfTheFile()
{
    begin();
    const QString path = FakeHost::instance().configPath();
    QVERIFY(QFile::remove(path) && QDir().mkpath(path + QLatin1String("/inside")));
    {
        TraceRecorder trace;
        change();
        QCOMPARE(trace.countDebug(QLatin1String("Error open file: ")), 1);
    }
    checkPage();
    QVERIFY(QFileInfo(path + QLatin1String("/inside")).isDir());
}

void PageSavingFails::readOnly()
{
    begin();
    const QByteArray before = FakeHost::instance().readConfig();
    QVERIFY(setMode(FakeHost::instance().userFolder, 0755));
    QVERIFY(setMode(FakeHost::instance().configFolder(), 0555));
    QVERIFY(setMode(FakeHost::instance().configPath(), 0444));
    {
        const WithoutPrivileges user;
        QVERIFY(user.isBound());
        TraceRecorder trace;
        change();
        QCOMPARE(trace.countDebug(QLatin1String("Error open file: ")), 1);
    }
    QVERIFY(setMode(FakeHost::instance().configFolder(), 0755));
    checkPage();
    QCOMPARE(FakeHost::instance().readConfig(), before);
}

void PageSavingFails::oldFileCannotBeRemoved()
{
    begin();
    const QByteArray before = FakeHost::instance().readConfig();
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
    QCOMPARE(FakeHost::instance().readConfig(), expected + before.mid(expected.size()));
}

void PageSavingFails::fileCutShort()
{
    begin();
    {
        const LowerLimit limit(RLIMIT_FSIZE, 200);
        QVERIFY(limit.isLowered());
        change();
    }
    checkPage();
    QCOMPARE(FakeHost::instance().readConfig(), document().left(200));
}

void PageSavingFails::linksBeforeTheCutAreReadBack()
{
    begin();
    const QByteArray before = FakeHost::instance().readConfig();
    const int cut = int(before.indexOf("name=\"b\""));
    QVERIFY(cut > 0);
    {
        const LowerLimit limit(RLIMIT_FSIZE, rlim_t(cut));
        QVERIFY(limit.isLowered());
        m_page.addLink(1, "d");
    }
    QCOMPARE(m_page.listNames(), QString::fromLatin1("a"));
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a b c d"));
    m_page.show();
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a"));
    QCOMPARE(m_page.enabledButtons(), QString::fromLatin1("New Edit Delete"));
}

void PageSavingFails::diskFull_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("list");
    QTest::newRow("New") << QString::fromLatin1("New") << QString::fromLatin1("a b c d")
                         << QString::fromLatin1("a b c");
    QTest::newRow("Edit") << QString::fromLatin1("Edit") << QString::fromLatin1("a x c")
                          << QString::fromLatin1("a x c");
}

void PageSavingFails::diskFull()
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
    const int room = 4096 - int(configDocument(QLatin1String("1"), QLatin1String("3"), records.toList()).size()) - 20;
    records[2].para = QString(room, QLatin1Char('p'));
    QVERIFY(FakeHost::instance().writeConfig(configDocument(QLatin1String("1"), QLatin1String("3"), records.toList())));
    QFile filler(folder + QLatin1String("/filler"));
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(1024, 'f')) > 0) {
    }
    filler.close();

    m_page.page->Init();
    m_page.host = new QWidget;
    m_page.show();
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a b c"));
    m_page.select(1);
    if (what == QLatin1String("New")) {
        m_page.addLink(1, "d");
    } else {
        m_page.click("m_editBtn");
        m_page.chooseType(2);
        m_page.enter("m_appNameEdit", QLatin1String("x"));
        m_page.enter("m_EditUrlName", QString(200, QLatin1Char('u')));
        m_page.pressOk();
    }
    QCOMPARE(m_page.shownNames(), names);
    QCOMPARE(m_page.listNames(), list);
    QCOMPARE(FakeHost::instance().readConfig().size(), 4096);
    QCOMPARE(FakeHost::instance().notifications.size(), 1);
}

void PageSavingFails::counterAfterAFailure()
{
    begin();
    QVERIFY(QDir(FakeHost::instance().configFolder()).removeRecursively());
    m_page.addLink(1, "d");
    QCOMPARE(QuickLinkXmlParse::GetInstance()->m_currentId, QString::fromLatin1("3"));
    QVERIFY(QDir().mkpath(FakeHost::instance().configFolder()));
    m_page.addLink(1, "e");
    QCOMPARE(m_page.listNames(), QString::fromLatin1("e"));
    QCOMPARE(m_page.page->m_recordList->at(0).id, QString::fromLatin1("3"));
}

void PageSavingFails::worksAgainAfterwards()
{
    QFETCH(QString, what);
    begin();
    QVERIFY(QDir(FakeHost::instance().configFolder()).removeRecursively());
    change();
    QVERIFY(QDir().mkpath(FakeHost::instance().configFolder()));
    m_page.show();
    m_page.addLink(1, "last");
    const QString before = what == QLatin1String("New") ? QString() : m_page.listNames();
    QVERIFY(before.isEmpty() ? m_page.listNames() == QLatin1String("last") : before.endsWith(QLatin1String("last")));
    QCOMPARE(m_page.disorder(), QString());
    QCOMPARE(FakeHost::instance().readConfig(),
             m_page.expectedFile(QuickLinkXmlParse::GetInstance()->m_currentId.toLatin1().constData()));
}

QTEST_MAIN(PageSavingFails)
#include "tst_page_saving_fails.moc"
