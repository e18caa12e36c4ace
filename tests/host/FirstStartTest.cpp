// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What is put into the user's folder before plug-ins start.

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include "FirstStart.h"
#include "Test.h"

class FirstStartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void copiesMissingDefaults();
    void neverOverwrites();
    void neverReplacesADeadLink();
    void doesNothingWithoutDefaults();
    void saysWhatCannotBeMade();
    void makesAFolderForEachPlugin();

private:
    void write(const QString& name, const QByteArray& text) const;
    QByteArray read(const QString& name) const;
    QString defaults() const { return m_folder->filePath("defaults"); }
    QString user() const { return m_folder->filePath("user"); }

    QScopedPointer<QTemporaryDir> m_folder;
};

static const QString configFile = "/plugins/Some/config.xml";

void FirstStartTest::init()
{
    m_folder.reset(new QTemporaryDir);
    QVERIFY(m_folder->isValid());
}

void FirstStartTest::cleanup()
{
    m_folder.reset();
}

void FirstStartTest::write(const QString& name, const QByteArray& text) const
{
    QFile file(m_folder->filePath(name));
    QVERIFY(QDir().mkpath(QFileInfo(file).path()));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), qint64(text.size()));
}

QByteArray FirstStartTest::read(const QString& name) const
{
    QFile file(m_folder->filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "unreadable";
}

void FirstStartTest::copiesMissingDefaults()
{
    write("defaults" + configFile, "default");
    write("defaults/plugins/Other/deep/file", "other");
    write("defaults/plugins/Other/.hidden", "hidden");
    QVERIFY(FirstStart::copyDefaults(defaults(), user()));
    QCOMPARE(read("user" + configFile), "default");
    QCOMPARE(read("user/plugins/Other/deep/file"), "other");
    QCOMPARE(read("user/plugins/Other/.hidden"), "hidden");
    // No temporary file is left beside it.
    QCOMPARE(QDir(user() + "/plugins/Some").entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
}

void FirstStartTest::neverOverwrites()
{
    write("defaults" + configFile, "default");
    write("user" + configFile, "own");
    QVERIFY(FirstStart::copyDefaults(defaults(), user()));
    QCOMPARE(read("user" + configFile), "own");
}

void FirstStartTest::neverReplacesADeadLink()
{
    write("defaults" + configFile, "default");
    const QString target = user() + configFile;
    QVERIFY(QDir().mkpath(QFileInfo(target).path()));
    QVERIFY(QFile::link("/no/such/file", target));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot be copied to .*config\\.xml"));
    QVERIFY(!FirstStart::copyDefaults(defaults(), user()));
    QCOMPARE(QFileInfo(target).symLinkTarget(), "/no/such/file");
}

void FirstStartTest::doesNothingWithoutDefaults()
{
    QVERIFY(FirstStart::copyDefaults(defaults(), user()));
    QVERIFY(!QFileInfo::exists(user()));
}

void FirstStartTest::saysWhatCannotBeMade()
{
    write("user", "a file where a folder should be");
    write("lib/Some/libSome.so", "");
    write("defaults" + configFile, "default");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("folder .*user/plugins/Some cannot be made"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot be copied to .*config\\.xml"));
    QVERIFY(!FirstStart::copyDefaults(defaults(), user()));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("folder .*user/plugins/Some cannot be made"));
    FirstStart::makePluginFolders(m_folder->filePath("lib"), user());
    QVERIFY(QFileInfo(user()).isFile());
}

void FirstStartTest::makesAFolderForEachPlugin()
{
    write("lib/Some/libSome.so", "");
    write("lib/Other/libSome.so", "");
    write("lib/libThird.so", "");
    FirstStart::makePluginFolders(m_folder->filePath("lib"), user());
    const QStringList made = QDir(user() + "/plugins").entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QCOMPARE(made, QStringList{"Some"});
}

REGISTER_TEST(FirstStartTest)
#include "FirstStartTest.moc"
