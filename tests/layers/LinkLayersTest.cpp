// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The operator's links in a user's file, which the guard writes: from one start to the next, and while the program
// runs.

#include <QSignalSpy>

#include "LayerFolders.h"
#include "LinkGuard.h"
#include "LinkLayers.h"
#include "ProcessLimits.h"
#include "RecordingTrace.h"
#include "SeedRecord.h"
#include "Test.h"

class LinkLayersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isIdleWithoutLayers();
    void givesLinksOnce();
    void keepsTheStateBefore();
    void changesNothingAtTheNextStart();
    void deletedLinkStaysAway();
    void notesNothingThatIsNotInPlace();
    void givesAllAgainWhereThereIsNoTrace();
    void notesItLater();
    void brokenLayerIsToldOnce();
    void closedFolderChangesNothing();
    void tellsThatLayersChanged_data();
    void tellsThatLayersChanged();
    void isQuietWhileFilesCome();

private:
    QString record() const { return m_user->path() + "/seeded.xml"; }
    QStringList start() const;
    bool give(const QList<QByteArray>& names) const;
    QStringList names() const { return LinkFile::names(m_user->read()); }

    QScopedPointer<GuardedFolder> m_user;
    QScopedPointer<LayerFolders> m_folders;
};

void LinkLayersTest::init()
{
    m_user.reset(new GuardedFolder);
    m_folders.reset(new LayerFolders);
    QVERIFY(m_user->write(GuardedFolder::links({"Mine"})));
}

void LinkLayersTest::cleanup()
{
    m_folders.reset();
    m_user.reset();
}

/** Lets the operator's only layer have links of these names. */
bool LinkLayersTest::give(const QList<QByteArray>& names) const
{
    return LayerFolders::write(m_folders->computers(), "a.xml", LayerFolders::links(names));
}

/** A start of the program; the names of the links then. */
QStringList LinkLayersTest::start() const
{
    LinkGuard guard(m_user->path());
    guard.start(false);
    LinkLayers layers(m_folders->folders(), record());
    layers.seed(m_user->read(), [&guard](const QByteArray& content) { return guard.startWith(content); });
    guard.watch();
    return names();
}

void LinkLayersTest::isIdleWithoutLayers()
{
    const auto isIdle = [this] {
        return LinkLayers(m_folders->folders(), record()).isIdle();
    };
    QVERIFY(isIdle());
    QVERIFY(give({"A"}));
    QVERIFY(!isIdle());
    QCOMPARE(start(), QStringList({"Mine", "A"}));
    // What was given may have to go.
    QVERIFY(QFile::remove(m_folders->computers() + "/a.xml"));
    QVERIFY(!isIdle());
}

void LinkLayersTest::givesLinksOnce()
{
    QVERIFY(give({"A", "B"}));
    QCOMPARE(start(), QStringList({"Mine", "A", "B"}));
    QCOMPARE(start(), QStringList({"Mine", "A", "B"}));
    QVERIFY(give({"A", "C"}));
    QCOMPARE(start(), QStringList({"Mine", "A", "C"}));
}

void LinkLayersTest::keepsTheStateBefore()
{
    const QByteArray before = m_user->read();
    QVERIFY(give({"A"}));
    start();
    const QList<LinkHistory::State> states = LinkGuard(m_user->path()).history().states();
    QCOMPARE(int(states.size()), 2);
    QCOMPARE(LinkHistory::contentOf(states.at(0)), m_user->read());
    QCOMPARE(LinkHistory::contentOf(states.at(1)), before);
}

void LinkLayersTest::changesNothingAtTheNextStart()
{
    QVERIFY(give({"A", "B"}));
    start();
    const FileStamp links = FileStamp::of(m_user->file()), note = FileStamp::of(record());
    start();
    QVERIFY(FileStamp::of(m_user->file()) == links);
    QVERIFY(FileStamp::of(record()) == note);
    QCOMPARE(int(LinkGuard(m_user->path()).history().states().size()), 2);
}

void LinkLayersTest::deletedLinkStaysAway()
{
    QVERIFY(give({"A", "B"}));
    start();
    QVERIFY(m_user->write(GuardedFolder::links({"Mine"})));
    QCOMPARE(start(), QStringList("Mine"));
    QVERIFY(give({}));
    start();
    QVERIFY(give({"A", "B", "C"}));
    QCOMPARE(start(), QStringList({"Mine", "C"}));
}

/** Or it would be one that the user deleted. */
void LinkLayersTest::notesNothingThatIsNotInPlace()
{
    QVERIFY(give({"A"}));
    LinkLayers layers(m_folders->folders(), record());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot be put in place"));
    QVERIFY(!layers.seed(m_user->read(), [](const QByteArray&) { return false; }));
    layers.finish();
    QVERIFY(!QFileInfo::exists(record()));
    QCOMPARE(start(), QStringList({"Mine", "A"}));
}

void LinkLayersTest::givesAllAgainWhereThereIsNoTrace()
{
    QVERIFY(give({"A"}));
    start();
    LinkLayers layers(m_folders->folders(), record());
    layers.forget();
    QByteArray placed;
    layers.seed(LinkFile::withoutLinks(), [&placed](const QByteArray& content) {
        placed = content;
        return true;
    });
    QCOMPARE(LinkFile::names(placed), QStringList("A"));
    // Also where there is nothing to note but that.
    QVERIFY(give({}));
    LinkLayers others(m_folders->folders(), record());
    others.forget();
    QVERIFY(!others.seed(LinkFile::withoutLinks(), [](const QByteArray&) { return true; }));
    QVERIFY(SeedRecord::read(record()).isEmpty());
}

void LinkLayersTest::notesItLater()
{
    QVERIFY(give({"A"}));
    LinkLayers layers(m_folders->folders(), record());
    {
        const LowerLimit full(RLIMIT_FSIZE, 10);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("seeded.xml cannot be written"));
        QVERIFY(layers.seed(m_user->read(), [](const QByteArray&) { return true; }));
    }
    QVERIFY(!QFileInfo::exists(record()));
    layers.finish();
    QCOMPARE(int(SeedRecord::read(record()).size()), 1);
}

void LinkLayersTest::brokenLayerIsToldOnce()
{
    QVERIFY(give({"A"}));
    start();
    const QByteArray before = m_user->read();
    QVERIFY(LayerFolders::write(m_folders->computers(), "a.xml", "<tovadoc>"));
    QVERIFY(LayerFolders::write(m_folders->computers(), "b.xml", LayerFolders::links({"B"})));
    LinkLayers layers(m_folders->folders(), record());
    QByteArray placed;
    const RecordingTrace trace;
    for (int i = 0; i < 2; ++i) {
        layers.seed(placed.isEmpty() ? before : placed, [&placed](const QByteArray& content) {
            placed = content;
            return true;
        });
    }
    QCOMPARE(LinkFile::names(placed), QStringList({"Mine", "A", "B"}));
    QCOMPARE(trace.warningLines.size(), 1);
    QCOMPARE(trace.countWarnings(".*the operator's file a.xml is no good; its links stay as they are"), 1);
}

void LinkLayersTest::closedFolderChangesNothing()
{
    QVERIFY(give({"A"}));
    start();
    LinkLayers layers(m_folders->folders(), record());
    const QByteArray links = m_user->read();
    // Knows by now what was given.
    QVERIFY(!layers.seed(links, [](const QByteArray&) { return true; }));
    QVERIFY(setMode(m_folders->computers(), 0));
    bool isAsked = false;
    {
        const WithoutPrivileges ordinary;
        QVERIFY(ordinary.isBound());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("all links stay as they are"));
        layers.seed(links, [&isAsked](const QByteArray&) { return isAsked = true; });
    }
    QVERIFY(setMode(m_folders->computers(), 0755));
    QVERIFY(!isAsked);
}

void LinkLayersTest::tellsThatLayersChanged_data()
{
    QTest::addColumn<QString>("what");
    QTest::newRow("new file") << "new";
    QTest::newRow("file changed in place") << "changed";
    QTest::newRow("file replaced") << "replaced";
    QTest::newRow("file removed") << "removed";
    QTest::newRow("folder made") << "made";
}

void LinkLayersTest::tellsThatLayersChanged()
{
    QFETCH(const QString, what);
    QVERIFY(give({"A"}));
    const QString file = m_folders->computers() + "/a.xml";
    if (what == "made")
        QVERIFY(QDir(m_folders->packages() + "/..").removeRecursively());
    LinkLayers layers(m_folders->folders(), record(), 50);
    layers.seed(m_user->read(), [](const QByteArray&) { return true; });
    layers.watch();
    QSignalSpy changed(&layers, &LinkLayers::changed);
    if (what == "changed") {
        QFile layer(file);
        QVERIFY(layer.open(QIODevice::Append) && layer.write("\n") == 1);
    } else if (what == "made") {
        QVERIFY(QDir().mkpath(m_folders->packages()));
    } else if (what == "removed") {
        QVERIFY(QFile::remove(file));
    } else {
        const QString place = what == "new" ? m_folders->packages() : m_folders->computers();
        QVERIFY(LayerFolders::write(place, "a.xml", LayerFolders::links({"B"})));
    }
    QTRY_VERIFY(changed.size() > 0);
    // And again: the watch has not ended with what it was on.
    changed.clear();
    QVERIFY(LayerFolders::write(m_folders->packages(), "c.xml", LayerFolders::links({"C"})));
    QTRY_VERIFY(changed.size() > 0);
    // A file that has come since is watched as well.
    layers.seed(m_user->read(), [](const QByteArray&) { return true; });
    changed.clear();
    QFile newLayer(m_folders->packages() + "/c.xml");
    QVERIFY(newLayer.open(QIODevice::Append) && newLayer.write("\n") == 1);
    newLayer.close();
    QTRY_VERIFY(changed.size() > 0);
}

void LinkLayersTest::isQuietWhileFilesCome()
{
    LinkLayers layers(m_folders->folders(), record(), 200);
    layers.watch();
    const QSignalSpy changed(&layers, &LinkLayers::changed);
    for (int i = 0; i < 5; ++i) {
        QVERIFY(give({QByteArray::number(i)}));
        QCoreApplication::processEvents();
    }
    QTRY_COMPARE(changed.size(), 1);
}

REGISTER_TEST(LinkLayersTest)
#include "LinkLayersTest.moc"
