// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The table of links on a terminal.

#include "LinkTable.h"
#include "FakePlugin.h"
#include "Test.h"

class LinkTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsRowsInColumns();
    void saysThatThereAreNone_data();
    void saysThatThereAreNone();
    void keepsARowOnItsLine_data();
    void keepsARowOnItsLine();
    void nameMayBeOfAPluginThatTellsNone();
};

/** A plug-in with links that does not say who it is. */
class NamelessPlugin : public QObject, public IQuickLinkPlugin
{
    Q_OBJECT
    Q_INTERFACES(IQuickLinkPlugin)

public:
    int GetQuickLinkRecordSize() override { return 1; }
    QAction* GetActionFromQuickLink(int) override { return new QAction("Lost", this); }
    void LaunchQuickLinkAction(QAction*) override {}
};

/** The table of plugins, by their object names. */
template <class... Plugin>
static QString tableOf(Plugin*... plugin)
{
    return linkTable({PluginWith<IQuickLinkPlugin>{plugin, plugin, plugin->objectName()}...});
}

void LinkTableTest::showsRowsInColumns()
{
    FakePlugin first("Links");
    first.setProperty("links", QString(10, 'A').split(QString(), Qt::SkipEmptyParts) << "A long name");
    FakePlugin second("More");
    second.setProperty("links", QStringList{"B & C"});
    QString expected = " #  Name         Plug-in\n";
    for (int i = 1; i <= 10; ++i)
        expected += QString("%1  A            Links\n").arg(i, 2);
    expected += "11  A long name  Links\n"
                "12  B & C        More\n";
    QCOMPARE(tableOf(&first, &second), expected);
}

void LinkTableTest::saysThatThereAreNone_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("no links") << 0;
    QTest::newRow("none loaded") << -1;
    QTest::newRow("no plug-in") << -2;
}

void LinkTableTest::saysThatThereAreNone()
{
    QFETCH(int, count);
    FakePlugin plugin("Links");
    plugin.setProperty("links", QStringList{"A"});
    plugin.setProperty("linkCount", count);
    QCOMPARE(count > -2 ? tableOf(&plugin) : tableOf(), "No quick links\n");
}

void LinkTableTest::keepsARowOnItsLine_data()
{
    QTest::addColumn<QStringList>("links");
    QTest::newRow("control characters") << QStringList{"a\tb", "c\nd"};
    QTest::newRow("missing actions") << QStringList{QString(), "a b", QString(), "c d"};
}

void LinkTableTest::keepsARowOnItsLine()
{
    QFETCH(QStringList, links);
    FakePlugin plugin("Links");
    plugin.setProperty("links", links);
    QCOMPARE(tableOf(&plugin), "#  Name  Plug-in\n"
                               "1  a b   Links\n"
                               "2  c d   Links\n");
}

void LinkTableTest::nameMayBeOfAPluginThatTellsNone()
{
    NamelessPlugin plugin;
    QCOMPARE(tableOf(&plugin), "#  Name  Plug-in\n"
                               "1  Lost  \n");
}

REGISTER_TEST(LinkTableTest)
#include "LinkTableTest.moc"
