// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The operator's files: which count, in which order, and what hides them.

#include "LayerFiles.h"
#include "LayerFolders.h"
#include "Test.h"

class LayerFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folders.reset(new LayerFolders); }
    void cleanup() { m_folders.reset(); }

    void goesByTheNamesOfFiles();
    void computersFileTakesThePlaceOfThePackages();
    void hides_data();
    void hides();
    void otherFilesAreNoLayers();
    void brokenLayerHidesToo();
    void takesWhatCountsOfALink();
    void foldersThatAreMissingHaveNone();
    void closedFolderIsUnknown_data();
    void closedFolderIsUnknown();

private:
    QStringList names() const;

    QScopedPointer<LayerFolders> m_folders;
};

/** Of all links, as "layer name". */
QStringList LayerFilesTest::names() const
{
    QStringList names;
    const LayerFiles files = LayerFiles::read(m_folders->folders());
    for (const LayerLink& link : files.links)
        names.append(link.layer + ' ' + link.fields.value("name"));
    return names;
}

void LayerFilesTest::goesByTheNamesOfFiles()
{
    QVERIFY(LayerFolders::write(m_folders->packages(), "20-b.xml", LayerFolders::links({"C"})));
    QVERIFY(LayerFolders::write(m_folders->computers(), "10-a.xml", LayerFolders::links({"B", "A"})));
    QVERIFY(LayerFolders::write(m_folders->packages(), "5.xml", LayerFolders::links({"D"})));
    QCOMPARE(names(), QStringList({"10-a.xml B", "10-a.xml A", "20-b.xml C", "5.xml D"}));
}

void LayerFilesTest::computersFileTakesThePlaceOfThePackages()
{
    QVERIFY(LayerFolders::write(m_folders->packages(), "a.xml", LayerFolders::links({"A", "B"})));
    QVERIFY(LayerFolders::write(m_folders->computers(), "a.xml", LayerFolders::links({"C"})));
    QCOMPARE(names(), QStringList("a.xml C"));
    QCOMPARE(LayerFiles::read(m_folders->folders()).paths, QStringList(m_folders->computers() + "/a.xml"));
}

void LayerFilesTest::hides_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("empty") << "empty";
    QTest::newRow("blank") << "blank";
    QTest::newRow("link to nothing") << "/dev/null";
}

void LayerFilesTest::hides()
{
    QFETCH(const QString, how);
    QVERIFY(LayerFolders::write(m_folders->packages(), "a.xml", LayerFolders::links({"A"})));
    if (how.startsWith('/'))
        QVERIFY(QFile::link(how, m_folders->computers() + "/a.xml"));
    else
        QVERIFY(LayerFolders::write(m_folders->computers(), "a.xml", how == "blank" ? " \n" : ""));
    const LayerFiles files = LayerFiles::read(m_folders->folders());
    QVERIFY(files.links.isEmpty());
    QCOMPARE(files.unreadable, QStringList());
}

void LayerFilesTest::otherFilesAreNoLayers()
{
    for (const char* const name : {"a.xml.dpkg-new", "a.xml~", ".a.xml", "a.XML", "a.txt"})
        QVERIFY(LayerFolders::write(m_folders->packages(), name, LayerFolders::links({"A"})));
    QVERIFY(QDir().mkdir(m_folders->packages() + "/folder.xml"));
    const LayerFiles files = LayerFiles::read(m_folders->folders());
    QCOMPARE(files.paths, QStringList());
    QVERIFY(!files.isUnknown);
}

/** What was taken of the one below it would be wrong as soon as the broken one is mended. */
void LayerFilesTest::brokenLayerHidesToo()
{
    QVERIFY(LayerFolders::write(m_folders->packages(), "a.xml", LayerFolders::links({"A"})));
    QVERIFY(LayerFolders::write(m_folders->packages(), "b.xml", LayerFolders::links({"B"})));
    QVERIFY(LayerFolders::write(m_folders->computers(), "a.xml", LayerFolders::links({"C"}).chopped(3)));
    QVERIFY(QFile::link(m_folders->computers() + "/nowhere", m_folders->computers() + "/c.xml"));
    QCOMPARE(names(), QStringList("b.xml B"));
    QCOMPARE(LayerFiles::read(m_folders->folders()).unreadable, QStringList({"a.xml", "c.xml"}));
}

void LayerFilesTest::takesWhatCountsOfALink()
{
    const QByteArray item = "id=\"7\" key=\"k\" name=\"A\" url=\"u\" edit=\"\" colour=\"red\"";
    QByteArray content = LayerFolders::layer({item, "hidden name=\"B\""});
    content.replace("visible=\"1\" hidden", "visible=\"0\"");
    QVERIFY(LayerFolders::write(m_folders->packages(), "a.xml", content));
    const LayerFiles files = LayerFiles::read(m_folders->folders());
    QCOMPARE(int(files.links.size()), 1);
    const LinkItems::Fields expected = {{"key", "k"}, {"name", "A"}, {"url", "u"}, {"edit", ""}};
    QCOMPARE(files.links.first().fields, expected);
}

void LayerFilesTest::foldersThatAreMissingHaveNone()
{
    const LayerFiles files = LayerFiles::read({m_folders->packages() + "/nowhere", "/dev/null/links.d"});
    QVERIFY(files.links.isEmpty() && files.paths.isEmpty() && !files.isUnknown);
}

void LayerFilesTest::closedFolderIsUnknown_data()
{
    QTest::addColumn<QString>("below");
    QTest::addColumn<uint>("mode");
    QTest::addColumn<bool>("isUnknown");
    QTest::newRow("open") << "" << 0755U << false;
    QTest::newRow("closed") << "" << 0U << true;
    QTest::newRow("names only") << "" << 0744U << true;
    QTest::newRow("closed above") << "/.." << 0U << true;
}

void LayerFilesTest::closedFolderIsUnknown()
{
    QFETCH(const QString, below);
    QFETCH(const uint, mode);
    const QString closed = m_folders->computers() + below;
    QVERIFY(setMode(closed, mode));
    bool isUnknown = false;
    {
        const WithoutPrivileges ordinary;
        QVERIFY(ordinary.isBound());
        isUnknown = LayerFiles::read(m_folders->folders()).isUnknown;
    }
    QVERIFY(setMode(closed, 0755));
    QTEST(isUnknown, "isUnknown");
}

REGISTER_TEST(LayerFilesTest)
#include "LayerFilesTest.moc"
