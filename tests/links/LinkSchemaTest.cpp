// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// That the schema's word is heard, whatever it is, and that its reader reads nothing but what it is given.

#include "LinkSchema.h"
#include "LinkFileCheck.h"
#include "LinksTool.h"
#include "Test.h"

class LinkSchemaTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatNothingElseSays();
    void explainedIsNotRepeated_data();
    void explainedIsNotRepeated();
    void severalSentencesAreOneFinding();
    void checkAsksIt();
    void noSchema_data();
    void noSchema();
    void readsNothingElse_data();
    void readsNothingElse();
    void whatItCannotReadIsTold();
    void depthEndsInAFinding();

private:
    /** What is found by another schema, in which a name has no capitals, as "<line>:<code>". */
    QStringList foundIn(const QByteArray& content) const;

    LinksTool m_tool;
};

QStringList LinkSchemaTest::foundIn(const QByteArray& content) const
{
    const QByteArray capitals = "<attribute name=\"name\"><data type=\"string\"/></attribute>";
    const QByteArray none =
        "<attribute name=\"name\"><data type=\"string\"><param name=\"pattern\">[^A-Z]*</param></data>"
        "</attribute>";
    QByteArray text = m_tool.read(DOCUMENTS "/config.rng");
    if (!text.contains(capitals))
        return {"no such attribute"};
    m_tool.write(m_tool.path("other.rng"), text.replace(capitals, none));
    m_tool.write(m_tool.path("links.xml"), content);
    const LinkSchema schema(m_tool.path("other.rng"));
    QStringList found{schema.problem()};
    found.removeAll(QString());
    const Findings findings = LinkFileCheck::of(m_tool.path("links.xml"), &schema);
    for (const Finding& finding : findings)
        found.append(QString("%1:%2").arg(finding.place.line).arg(FindingCodes::of(finding.code).word));
    return found;
}

/** The good file in small letters. */
static QByteArray withoutCapitals()
{
    return goodFile().replace("Portal", "portal").replace("Write", "write").replace("Root", "root");
}

void LinkSchemaTest::saysWhatNothingElseSays()
{
    QCOMPARE(foundIn(withoutCapitals()), QStringList());
    QCOMPARE(foundIn(withoutCapitals().replace("write", "Write").replace("root", "Root")),
             (QStringList{"14:schema-broken", "15:schema-broken"}));
}

void LinkSchemaTest::explainedIsNotRepeated_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("found");
    const QByteArray bad = withoutCapitals().replace("write", "Write");
    QTest::newRow("another finding about the link")
        << QByteArray(bad).replace("startmobile=\"1\"", "startmobile=\"2\"") << QStringList{"14:bad-flag"};
    QTest::newRow("a finding in the link")
        << QByteArray(bad).replace("edit=\"1\" visible=\"1\"/>\n        <item id=\"2\"",
                                   "edit=\"1\" visible=\"1\"><b/></item>\n        <item id=\"2\"")
        << QStringList{"14:unknown-element"};
    QTest::newRow("a finding about another link")
        << QByteArray(bad).replace("para=\"-x\"", "") << QStringList{"14:schema-broken", "15:missing-attribute"};
    QTest::newRow("a finding that is none of the structure")
        << QByteArray(bad).replace("root", "Write")
        << QStringList{"14:schema-broken", "15:schema-broken", "15:duplicate-name"};
    QTest::newRow("a finding about the header")
        << QByteArray(bad).replace("<Visible>1", "<Visible>2") << QStringList{"4:bad-flag", "14:schema-broken"};
}

void LinkSchemaTest::explainedIsNotRepeated()
{
    QFETCH(QByteArray, content);
    QTEST(foundIn(content), "found");
}

void LinkSchemaTest::severalSentencesAreOneFinding()
{
    const LinkSchema schema(DOCUMENTS "/config.rng");
    const QList<LinkSchema::Objection> objections = schema.objectionsTo(goodFile().replace("Visible>1", "Visible>2"));
    QCOMPARE(objections.size(), 1);
    QCOMPARE(objections.constFirst().element, 2);
    QVERIFY(objections.constFirst().sentence.startsWith("By the schema: "));
    QVERIFY(objections.constFirst().sentence.contains("; "));
    QVERIFY(!objections.constFirst().sentence.contains('\n'));
}

void LinkSchemaTest::checkAsksIt()
{
    QVERIFY(m_tool.write(m_tool.path("links.xml"), goodFile().replace("<Visible>1", "<Visible>1\r")));
    const LinksTool::Answer answer = m_tool.run({"check", "links.xml"});
    QCOMPARE(answer.code, 1);
    QVERIFY2(answer.out.endsWith(" [schema-broken]\n"), qUtf8Printable(answer.out));
}

void LinkSchemaTest::noSchema_data()
{
    QTest::addColumn<QByteArray>("schema");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("damaged") << m_tool.read(DOCUMENTS "/config.rng").left(1000);
    QTest::newRow("something else") << goodFile();
}

void LinkSchemaTest::noSchema()
{
    QFETCH(QByteArray, schema);
    // An installation of its own.
    const QTemporaryDir place;
    QVERIFY(QDir().mkpath(place.filePath("bin")));
    QVERIFY(QFile::copy(PROGRAM, place.filePath("bin/vellumconnect-links")));
    const LinksTool tool(place.filePath("bin/vellumconnect-links"));
    const QString file = place.filePath("share/vellumconnect/config.rng");
    QVERIFY(schema.isEmpty() || tool.write(file, schema));
    QVERIFY(tool.write(tool.path("good.xml"), goodFile()));
    QVERIFY(tool.write(tool.path("bad.xml"), goodFile().replace("Root", "Write")));
    const LinksTool::Answer answer = tool.run({"check", "good.xml", "bad.xml"});
    QCOMPARE(answer.code, 1);
    QVERIFY(answer.out.startsWith("bad.xml:15:"));
    QCOMPARE(answer.out.count('\n'), 1);
    QVERIFY2(answer.error.contains(QFileInfo(place.path()).canonicalFilePath() + "/share/vellumconnect/config.rng"),
             qUtf8Printable(answer.error));
    QCOMPARE(answer.error.count('\n'), 1);
    // Nobody takes half a check for a whole one.
    QCOMPARE(tool.run({"check", "good.xml"}).code, 1);
}

void LinkSchemaTest::readsNothingElse_data()
{
    QTest::addColumn<QByteArray>("declaration");
    QTest::addColumn<QByteArray>("use");
    const QByteArray other = QUrl::fromLocalFile(m_tool.path("other.xml")).toEncoded();
    QTest::newRow("entity") << "[<!ENTITY a SYSTEM \"" + other + "\">]" << QByteArray("&a;");
    QTest::newRow("type of document") << "SYSTEM \"" + other + '"' << QByteArray();
    QTest::newRow("parameter entity") << "[<!ENTITY % a SYSTEM \"" + other + "\"> %a;]" << QByteArray();
}

void LinkSchemaTest::readsNothingElse()
{
    QFETCH(QByteArray, declaration);
    QFETCH(QByteArray, use);
    // A text that the schema would object to.
    QVERIFY(m_tool.write(m_tool.path("other.xml"), "text"));
    QVERIFY(m_tool.write(m_tool.path("links.xml"),
                         goodFile()
                             .replace("<tovadoc", "<!DOCTYPE tovadoc " + declaration + "><tovadoc")
                             .replace("</menu>", use + "</menu>")));
    const LinksTool::Answer answer = m_tool.run({"check", "links.xml"});
    QCOMPARE(answer.out, "");
    QCOMPARE(answer.error, "");
}

/** Its limits are not those of the program. */
void LinkSchemaTest::whatItCannotReadIsTold()
{
    const LinkSchema schema(DOCUMENTS "/config.rng");
    QVERIFY(m_tool.write(m_tool.path("links.xml"), goodFile().replace("-x", QByteArray(11000000, 'x'))));
    const Findings findings = LinkFileCheck::of(m_tool.path("links.xml"), &schema);
    QCOMPARE(findings.size(), 2);
    QCOMPARE(int(findings.at(0).code), int(FindingCode::TooLong));
    QCOMPARE(int(findings.at(1).code), int(FindingCode::SchemaBroken));
    QCOMPARE(findings.at(1).place.line, qint64(15));
}

void LinkSchemaTest::depthEndsInAFinding()
{
    const LinkSchema schema(DOCUMENTS "/config.rng");
    const QByteArray deep = QByteArray("<b>").repeated(10000) + QByteArray("</b>").repeated(10000);
    QVERIFY(m_tool.write(m_tool.path("links.xml"), goodFile().replace("</menu>", deep + "</menu>")));
    const Findings findings = LinkFileCheck::of(m_tool.path("links.xml"), &schema);
    QCOMPARE(findings.size(), 1);
    QCOMPARE(int(findings.constFirst().code), int(FindingCode::UnknownElement));
}

REGISTER_TEST(LinkSchemaTest)
#include "LinkSchemaTest.moc"
