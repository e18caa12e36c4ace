// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

#include "FolderPrivacy.h"
#include "Test.h"

class FolderPrivacyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void rights_data();
    void rights();
    void content_data();
    void content();
    void contentKeepsItsRights();
    void symbolicLink();
    void foldersAboveStay();
    void otherUsersFolder();
    void noFolder_data();
    void noFolder();

private:
    static uint rightsOf(const QString& path);
    void make(uint rights, const QString& entry = QString()) const;

    std::unique_ptr<QTemporaryDir> m_place;
    QString m_folder;
};

void FolderPrivacyTest::init()
{
    m_place = std::make_unique<QTemporaryDir>();
    m_folder = m_place->path() + "/data";
}

uint FolderPrivacyTest::rightsOf(const QString& path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? uint(status.st_mode) & 07777U : 0;
}

/** Makes the folder, with one more folder in it. */
void FolderPrivacyTest::make(uint rights, const QString& entry) const
{
    QVERIFY(QDir().mkpath(m_folder + '/' + entry));
    QCOMPARE(::chmod(QFile::encodeName(m_folder).constData(), rights), 0);
}

void FolderPrivacyTest::rights_data()
{
    QTest::addColumn<uint>("before");
    QTest::addColumn<uint>("after");
    QTest::newRow("private") << 0700U << 0700U;
    QTest::newRow("usual") << 0755U << 0700U;
    QTest::newRow("not to be written to") << 0555U << 0500U;
    QTest::newRow("open to all") << 0777U << 0700U;
    QTest::newRow("group reads") << 0740U << 0700U;
    QTest::newRow("others pass") << 0701U << 0700U;
    QTest::newRow("stricter than private") << 0500U << 0500U;
}

void FolderPrivacyTest::rights()
{
    QFETCH(const uint, before);
    make(before);
    QCOMPARE(FolderPrivacy::keepOthersOut(m_folder), FolderPrivacy::Private);
    QTEST(rightsOf(m_folder), "after");
    QCOMPARE(FolderPrivacy::keepOthersOut(m_folder), FolderPrivacy::Private);
    QTEST(rightsOf(m_folder), "after");
}

void FolderPrivacyTest::content_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<bool>("isOurs");
    QTest::newRow("nothing") << "" << true;
    QTest::newRow("links") << "plugins/QuickLinkUIPlugin" << true;
    QTest::newRow("states") << "history" << true;
    QTest::newRow("lock") << "lock" << true;
    QTest::newRow("choices") << "vellumconnect.ini" << true;
    QTest::newRow("plug-ins that were called") << "calls" << true;
    QTest::newRow("plug-ins left out") << "left-out.json" << true;
    QTest::newRow("the operator's links that were given") << "seeded.xml" << true;
    QTest::newRow("something of the user's") << "Documents" << false;
    QTest::newRow("hidden") << ".ssh" << false;
    QTest::newRow("nearly ours") << "plugins2" << false;
}

void FolderPrivacyTest::content()
{
    QFETCH(const QString, entry);
    QFETCH(const bool, isOurs);
    make(0755, entry);
    QCOMPARE(FolderPrivacy::keepOthersOut(m_folder), isOurs ? FolderPrivacy::Private : FolderPrivacy::Open);
    QCOMPARE(rightsOf(m_folder), isOurs ? 0700U : 0755U);
}

void FolderPrivacyTest::contentKeepsItsRights()
{
    make(0755, "plugins");
    const uint before = rightsOf(m_folder + "/plugins");
    QCOMPARE(FolderPrivacy::keepOthersOut(m_folder), FolderPrivacy::Private);
    QCOMPARE(rightsOf(m_folder + "/plugins"), before);
}

void FolderPrivacyTest::symbolicLink()
{
    make(0755);
    const QString link = m_place->path() + "/link";
    QVERIFY(QFile::link(m_folder, link));
    QCOMPARE(FolderPrivacy::keepOthersOut(link), FolderPrivacy::Open);
    QCOMPARE(rightsOf(m_folder), 0755U);
}

void FolderPrivacyTest::foldersAboveStay()
{
    make(0755);
    QCOMPARE(::chmod(QFile::encodeName(m_place->path()).constData(), 0755), 0);
    QCOMPARE(FolderPrivacy::keepOthersOut(m_folder), FolderPrivacy::Private);
    QCOMPARE(rightsOf(m_place->path()), 0755U);
}

void FolderPrivacyTest::otherUsersFolder()
{
    if (::geteuid() != 0)
        QSKIP("Only the administrator has folders of other users.");
    make(0755);
    QCOMPARE(::chown(QFile::encodeName(m_folder).constData(), 12345, 12345), 0);
    QCOMPARE(FolderPrivacy::keepOthersOut(m_folder), FolderPrivacy::Open);
    QCOMPARE(rightsOf(m_folder), 0755U);
}

void FolderPrivacyTest::noFolder_data()
{
    QTest::addColumn<bool>("isFile");
    QTest::newRow("nothing") << false;
    QTest::newRow("file") << true;
}

void FolderPrivacyTest::noFolder()
{
    QFETCH(const bool, isFile);
    QFile file(m_folder);
    if (isFile)
        QVERIFY(file.open(QIODevice::WriteOnly));
    const uint before = rightsOf(m_folder);
    QCOMPARE(FolderPrivacy::keepOthersOut(m_folder), FolderPrivacy::Missing);
    QCOMPARE(rightsOf(m_folder), before);
}

REGISTER_TEST(FolderPrivacyTest)
#include "FolderPrivacyTest.moc"
