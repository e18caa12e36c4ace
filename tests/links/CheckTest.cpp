// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What "check" finds in a file, and that the schema says the same of the structure.

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <algorithm>

#include <sys/stat.h>

#include "CheckTable.h"
#include "FindingsReport.h"
#include "LinkFileCheck.h"
#include "LinkSchema.h"
#include "Test.h"

class CheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void table_data();
    void table();
    void everyCodeIsInTheTable();
    void agreesWithTheSchema();
    void documentedExampleIsGood();
    void damageHasALine();
    void otherEncodingHasLines_data();
    void otherEncodingHasLines();
    void cannotBeRead_data();
    void cannotBeRead();
    void namesTheLikelySlip();
    void twinNamesTheOther();
    void textReport();
    void jsonReport();
    void sarifReport();

private:
    QString write(const QByteArray& content, const QString& name = "links.xml") const;

    const LinkSchema m_schema{DOCUMENTS "/config.rng"};
    QTemporaryDir m_folder;
};

QString CheckTest::write(const QByteArray& content, const QString& name) const
{
    QFile file(m_folder.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? file.fileName() : QString();
}

/** What a file has from a place on. */
static QString textAt(const QByteArray& content, const Place& place)
{
    QByteArray text = content;
    text.replace("\r", "").replace("\xef\xbb\xbf", "");
    const QStringList lines = QString::fromUtf8(text).split('\n');
    return lines.value(int(place.line) - 1).mid(int(place.column) - 1);
}

/** The findings as the table has them, each as long as the one expected. */
static QStringList shown(const Findings& findings, const CheckedFile& file)
{
    QStringList texts;
    for (const Finding& finding : findings) {
        const QString text = FindingCodes::of(finding.code).word + (' ' + textAt(file.content, finding.place));
        const QString expected = file.findings.value(texts.size());
        texts.append(expected.isEmpty() ? text : text.left(expected.size()));
    }
    return texts;
}

void CheckTest::table_data()
{
    QTest::addColumn<int>("index");
    const QList<CheckedFile> files = checkedFiles();
    for (int i = 0; i < files.size(); ++i)
        QTest::newRow(files.at(i).name) << i;
}

void CheckTest::table()
{
    QFETCH(int, index);
    const CheckedFile file = checkedFiles().at(index);
    QCOMPARE(shown(LinkFileCheck::of(write(file.content), &m_schema), file), file.findings);
}

void CheckTest::everyCodeIsInTheTable()
{
    QSet<QString> codes{"unreadable"}; // No content is.
    const QList<CheckedFile> files = checkedFiles();
    for (const CheckedFile& file : files) {
        for (const QString& finding : file.findings)
            codes.insert(finding.section(' ', 0, 0));
    }
    for (const FindingCodes::Row& row : FindingCodes::all()) {
        QVERIFY2(codes.remove(row.word), row.word);
        QCOMPARE(FindingCodes::of(row.code).word, row.word);
    }
    QCOMPARE(codes, QSet<QString>());
}

static bool isWellFormed(const Findings& findings)
{
    return std::none_of(findings.cbegin(), findings.cend(), [](const Finding& finding) {
        return finding.code == FindingCode::NotWellFormed || finding.code == FindingCode::TooLarge;
    });
}

static bool hasStructure(const Findings& findings)
{
    return std::none_of(findings.cbegin(), findings.cend(),
                        [](const Finding& finding) { return FindingCodes::of(finding.code).isOfSchema; });
}

void CheckTest::agreesWithTheSchema()
{
    const QList<CheckedFile> files = checkedFiles();
    QStringList paths;
    QStringList expected;
    for (const CheckedFile& file : files) {
        const QString path = write(file.content, QString("%1 %2").arg(paths.size()).arg(file.name));
        const Findings findings = LinkFileCheck::of(path, &m_schema);
        if (!isWellFormed(findings))
            continue;
        paths.append(path);
        expected.append(path + (hasStructure(findings) ? " validates" : " fails to validate"));
    }
    QVERIFY(paths.size() >= 60);
    QProcess xmllint;
    xmllint.start("xmllint", QStringList{"--noout", "--relaxng", DOCUMENTS "/config.rng"} + paths);
    QVERIFY(xmllint.waitForFinished(60000));
    // Beside the verdicts there are lines that say why.
    const QStringList lines = QString::fromUtf8(xmllint.readAllStandardError()).split('\n');
    QCOMPARE(lines.filter(QRegularExpression("^" + QRegularExpression::escape(m_folder.path()) +
                                             ".* (validates|fails to validate)$")),
             expected);
}

void CheckTest::documentedExampleIsGood()
{
    QFile page(DOCUMENTS "/config-xml.md");
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QByteArray text = page.readAll();
    const int begin = int(text.indexOf("<?xml"));
    const Findings findings = LinkFileCheck::of(write(text.mid(begin, text.indexOf("```", begin) - begin)));
    // Its program may not be on this computer.
    for (const Finding& finding : findings)
        QCOMPARE(int(finding.code), int(FindingCode::ProgramMissing));
}

void CheckTest::damageHasALine()
{
    const Findings findings = LinkFileCheck::of(write(goodFile().replace("</menu>", "</meun>")));
    QCOMPARE(findings.size(), 1);
    QCOMPARE(findings.constFirst().place.line, qint64(16));
}

void CheckTest::otherEncodingHasLines_data()
{
    QTest::addColumn<QByteArray>("content");
    const QString text = QString(goodFile()).replace("UTF-8", "UTF-16").replace("Root", "Write");
    const QByteArray wide(reinterpret_cast<const char*>(text.utf16()), int(text.size()) * 2);
    const QChar mark = QChar::ByteOrderMark;
    QTest::newRow("UTF-16") << QByteArray(reinterpret_cast<const char*>(&mark), 2) + wide;
    QTest::newRow("UTF-16 without a mark") << wide;
    // What is many signs there would be few in UTF-8, and all places behind them others.
    QTest::newRow("Latin-1") << goodFile()
                                    .replace("UTF-8", "ISO-8859-1")
                                    .replace("Portal", QByteArray("\xc3\xa9").repeated(20))
                                    .replace("https://a.example/", "http://a/" + QByteArray("\xc3\xa9").repeated(100))
                                    .replace("Root", "Write");
}

void CheckTest::otherEncodingHasLines()
{
    QFETCH(QByteArray, content);
    const Findings findings = LinkFileCheck::of(write(content));
    QCOMPARE(findings.size(), 1);
    QCOMPARE(int(findings.constFirst().code), int(FindingCode::DuplicateName));
    QCOMPARE(findings.constFirst().place.line, qint64(15));
}

void CheckTest::cannotBeRead_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("missing") << m_folder.filePath("missing.xml");
    QTest::newRow("a folder") << m_folder.path();
    const QString pipe = m_folder.filePath("pipe");
    ::mkfifo(QFile::encodeName(pipe).constData(), 0600);
    QTest::newRow("a pipe that nobody writes to") << pipe;
}

void CheckTest::cannotBeRead()
{
    QFETCH(QString, file);
    const Findings findings = LinkFileCheck::of(file);
    QCOMPARE(findings.size(), 1);
    QCOMPARE(int(findings.constFirst().code), int(FindingCode::Unreadable));
    QCOMPARE(findings.constFirst().file, file);
}

void CheckTest::namesTheLikelySlip()
{
    const Findings slip = LinkFileCheck::of(write(goodFile().replace("E-MAIL", "E_MAIL")));
    QCOMPARE(slip.size(), 1);
    QVERIFY(slip.constFirst().sentence.contains("\"IDS_LINK_TYPE_E-MAIL\""));
    const Findings other = LinkFileCheck::of(write(goodFile().replace("E-MAIL", "MAIL")));
    QCOMPARE(other.size(), 1);
    QVERIFY(!other.constFirst().sentence.contains("IDS_LINK_TYPE_E-MAIL"));
}

void CheckTest::twinNamesTheOther()
{
    const Findings findings = LinkFileCheck::of(write(goodFile().replace("Root", "Portal")));
    QCOMPARE(findings.size(), 1);
    QCOMPARE(findings.constFirst().place.line, qint64(15));
    QVERIFY(findings.constFirst().sentence.contains("line 13 "));
}

static const Findings twoFindings{{"a b.xml", {2, 5}, FindingCode::HiddenLink, "One \x1b[2J."},
                                  {"/c/d.xml", {30, 1}, FindingCode::BadFlag, "Two."}};

void CheckTest::textReport()
{
    QCOMPARE(FindingsReport::of({}, "text"), QByteArray());
    QCOMPARE(FindingsReport::of(twoFindings, "text"),
             "a b.xml:2:5: One ?[2J. [hidden-link]\n/c/d.xml:30:1: Two. [bad-flag]\n");
}

void CheckTest::jsonReport()
{
    const QJsonArray findings =
        QJsonDocument::fromJson(FindingsReport::of(twoFindings, "json")).object().value("findings").toArray();
    QCOMPARE(findings.size(), 2);
    QCOMPARE(
        findings.at(0).toObject(),
        (QJsonObject{
            {"file", "a b.xml"}, {"line", 2}, {"column", 5}, {"code", "hidden-link"}, {"sentence", "One \x1b[2J."}}));
    QVERIFY(QJsonDocument::fromJson(FindingsReport::of({}, "json")).object().value("findings").isArray());
}

void CheckTest::sarifReport()
{
    const QJsonObject log = QJsonDocument::fromJson(FindingsReport::of(twoFindings, "sarif")).object();
    QCOMPARE(log.value("version").toString(), "2.1.0");
    const QJsonObject run = log.value("runs").toArray().at(0).toObject();
    const QJsonArray rules = run.value("tool").toObject().value("driver").toObject().value("rules").toArray();
    const QJsonArray results = run.value("results").toArray();
    QCOMPARE(results.size(), 2);
    for (int i = 0; i < 2; ++i) {
        const QJsonObject result = results.at(i).toObject();
        const QString word = FindingCodes::of(twoFindings.at(i).code).word;
        QCOMPARE(result.value("ruleId").toString(), word);
        QCOMPARE(rules.at(result.value("ruleIndex").toInt()).toObject().value("id").toString(), word);
        QCOMPARE(result.value("message").toObject().value("text").toString(), twoFindings.at(i).sentence);
        const QJsonObject place =
            result.value("locations").toArray().at(0).toObject().value("physicalLocation").toObject();
        QCOMPARE(place.value("artifactLocation").toObject().value("uri").toString(),
                 i == 0 ? "a%20b.xml" : "file:///c/d.xml");
        QCOMPARE(place.value("region").toObject(), (QJsonObject{{"startLine", twoFindings.at(i).place.line},
                                                                {"startColumn", twoFindings.at(i).place.column}}));
    }
}

REGISTER_TEST(CheckTest)
#include "CheckTest.moc"
