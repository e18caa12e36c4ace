// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the operator of the computer fixes.

#include <sys/stat.h>

#include "FixedSettings.h"
#include "Places.h"
#include "ProcessLimits.h"
#include "RecordingTrace.h"
#include "Test.h"

class FixedSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_folder.reset(); }

    void reads_data();
    void reads();
    void badValueFixesNothing_data();
    void badValueFixesNothing();
    void noFileFixesNothing();
    void unreadableFileFixesNothing();
    void liesInTheMostImportantFolder_data();
    void liesInTheMostImportantFolder();

private:
    static QStringList languages() { return {"de", "en", "pt_PT"}; }
    static FixedSettings read(const QString& file) { return FixedSettings::read(file, &languages); }
    static QString text(const FixedSettings& fixed);
    bool write(const QByteArray& content) const;

    QScopedPointer<QTemporaryDir> m_folder;
    QString m_file;
};

/** A file of its own each time: the toolkit takes one of the same size and the same millisecond for unchanged. */
void FixedSettingsTest::init()
{
    m_folder.reset(new QTemporaryDir);
    m_file = m_folder->filePath("vellumconnect.ini");
}

/** Language, connection and start, "-" for what is not fixed. */
QString FixedSettingsTest::text(const FixedSettings& fixed)
{
    const QString kind = fixed.connection ? QString::number(int(*fixed.connection)) : "-";
    const QString start = fixed.startsWithSession ? (*fixed.startsWithSession ? "yes" : "no") : "-";
    return QStringList({fixed.language.value_or("-"), kind, start}).join(' ');
}

bool FixedSettingsTest::write(const QByteArray& content) const
{
    QFile file(m_file);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(content) == content.size();
}

void FixedSettingsTest::reads_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("expected");
    const QString any = QString::number(int(ConnectionKind::Any));
    const QString manual = QString::number(int(ConnectionKind::Manual));
    QTest::newRow("nothing") << QByteArray() << "- - -";
    QTest::newRow("other things") << QByteArray("colour=red\n[connection]\nplans=x\n") << "- - -";
    QTest::newRow("language") << QByteArray("language=pt_PT\n") << "pt_PT - -";
    QTest::newRow("connection") << QByteArray("[connection]\nkind=any\n") << "- " + any + " -";
    QTest::newRow("start") << QByteArray("startWithSession=true\n") << "- - yes";
    QTest::newRow("no start") << QByteArray("startWithSession=false\n") << "- - no";
    QTest::newRow("all") << QByteArray("language=de\nstartWithSession=true\n[connection]\nkind=manual\n")
                         << "de " + manual + " yes";
}

void FixedSettingsTest::reads()
{
    QFETCH(const QByteArray, content);
    QVERIFY(write(content));
    const RecordingTrace trace;
    QTEST(text(read(m_file)), "expected");
    QCOMPARE(trace.warningLines, QStringList());
}

void FixedSettingsTest::badValueFixesNothing_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("key");
    QTest::newRow("no such language") << QByteArray("language=tlh\n") << "language";
    QTest::newRow("no language") << QByteArray("language=\n") << "language";
    QTest::newRow("no such kind") << QByteArray("[connection]\nkind=satellite\n") << "connection/kind";
    QTest::newRow("start is a word") << QByteArray("startWithSession=yes\n") << "startWithSession";
}

void FixedSettingsTest::badValueFixesNothing()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, key);
    QVERIFY(write(content));
    const RecordingTrace trace;
    QCOMPARE(text(read(m_file)), "- - -");
    QCOMPARE(trace.warningLines.size(), 1);
    QCOMPARE(trace.countWarnings("\"" + key + "\" has no good value in .*; it is not fixed"), 1);
}

void FixedSettingsTest::noFileFixesNothing()
{
    QCOMPARE(text(read(m_folder->filePath("nowhere"))), "- - -");
    // Nobody writes to it.
    const QString pipe = m_folder->filePath("pipe");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QCOMPARE(text(read(pipe)), "- - -");
}

void FixedSettingsTest::unreadableFileFixesNothing()
{
    QVERIFY(write("language=de\n"));
    QVERIFY(setMode(m_folder->path(), 0755) && setMode(m_file, 0));
    {
        const WithoutPrivileges ordinary;
        QVERIFY(ordinary.isBound());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot be read; it fixes nothing$"));
        QCOMPARE(text(read(m_file)), "- - -");
    }
}

void FixedSettingsTest::liesInTheMostImportantFolder_data()
{
    QTest::addColumn<QByteArray>("folders");
    QTest::addColumn<QStringList>("expected");
    const QStringList usual = {"/usr/share/vellumconnect", "/etc/vellumconnect"};
    QTest::newRow("as usual") << QByteArray() << usual;
    QTest::newRow("chosen") << QByteArray("/a:/b") << QStringList({"/a", "/b"});
    QTest::newRow("chosen, one") << QByteArray("/a:") << QStringList("/a");
}

void FixedSettingsTest::liesInTheMostImportantFolder()
{
    QFETCH(const QByteArray, folders);
    QFETCH(const QStringList, expected);
    const QByteArray before = qgetenv("VELLUMCONNECT_OPERATOR_DIRS");
    qputenv("VELLUMCONNECT_OPERATOR_DIRS", folders);
    const QStringList found = Places::operatorFolders();
    const QString file = FixedSettings::file();
    qputenv("VELLUMCONNECT_OPERATOR_DIRS", before);
    QCOMPARE(found, expected);
    QCOMPARE(file, expected.last() + "/vellumconnect.ini");
}

REGISTER_TEST(FixedSettingsTest)
#include "FixedSettingsTest.moc"
