// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LayerRules.h"
#include "LayerTable.h"
#include "LinkFile.h"
#include "Test.h"

using LayerRules::Outcome;

/** Runs the rows of docs/layer-rules.md, which also says how they are written. */
class LayerRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void table_data();
    void table();
    void outcomeStands_data() { table_data(); }
    void outcomeStands();
    void fieldsThatAreMissingAreEmpty();
};

/** What the rules make of the texts of three cells. */
static Outcome outcomeOf(const QString& users, const QString& given, const QString& operators)
{
    const LayerTable::Cell layers = LayerTable::read(operators);
    return LayerRules::outcome(LayerTable::read(users).fields(), LayerTable::read(given).links, layers.layerLinks(),
                               layers.unreadable);
}

/** The text of the user's links when that is done. */
static QString linksAfter(const QString& users, const Outcome& outcome)
{
    LinkRewrite before;
    before.added = LayerTable::read(users).fields();
    const QByteArray content = before.applied(LinkFile::withoutLinks());
    return LayerTable::written(LinkItems::of(outcome.links.applied(content)));
}

void LayerRulesTest::table_data()
{
    QTest::addColumn<QStringList>("cells");
    QFile file(QString(RULES));
    QVERIFY(file.open(QIODevice::ReadOnly));
    int rows = 0;
    QString section;
    const QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
    for (const QString& line : lines) {
        const QStringList cells = line.mid(2).chopped(line.endsWith(" |") ? 2 : 0).split(" | ");
        if (line.startsWith("### "))
            section = line.mid(4);
        if (cells.size() != 6 || cells.first() == "case")
            continue;
        QTest::newRow(qPrintable(section + ": " + cells.first())) << QStringList(cells.mid(1));
        ++rows;
    }
    QCOMPARE(rows, 78);
}

void LayerRulesTest::table()
{
    QFETCH(const QStringList, cells);
    const Outcome outcome = outcomeOf(cells.at(0), cells.at(1), cells.at(2));
    QCOMPARE(linksAfter(cells.at(0), outcome), cells.at(3));
    QCOMPARE(LayerTable::written(outcome.given), cells.at(4));
}

/** At the next start, with nothing new, nothing is done. */
void LayerRulesTest::outcomeStands()
{
    QFETCH(const QStringList, cells);
    const Outcome outcome = outcomeOf(cells.at(3), cells.at(4), cells.at(2));
    QVERIFY(outcome.links.isNone());
    QCOMPARE(LayerTable::written(outcome.given), cells.at(4));
}

/** As they are for the plug-in, which writes them so. */
void LayerRulesTest::fieldsThatAreMissingAreEmpty()
{
    const LinkItems::Fields bare = {{"name", "P"}, {"url", "p"}};
    const LinkItems::Fields whole = {{"name", "P"},        {"url", "p"},        {"type", ""},   {"para", ""},
                                     {"startconnect", ""}, {"startmobile", ""}, {"delete", ""}, {"edit", ""}};
    const Outcome first = LayerRules::outcome({}, {}, {{"a", bare}}, {});
    QCOMPARE(int(first.links.added.size()), 1);
    const Outcome second = LayerRules::outcome({whole}, first.given, {{"a", bare}}, {});
    QVERIFY(second.links.isNone());
    QVERIFY(second.given == first.given);
    QCOMPARE(LayerRules::outcome({whole}, first.given, {}, {}).links.removed, QSet<int>{0});
}

REGISTER_TEST(LayerRulesTest)
#include "LayerRulesTest.moc"
