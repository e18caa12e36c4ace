// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Damaged and hostile files: the links before the first error stay, nothing is said, nothing hangs.

#include "StoreFixture.h"
#include "Test.h"

using namespace StoreFixture;

namespace
{
const char twoGood[] = "<item name='a' visible='1'/><item name='b' visible='1'/>";
const char third[] = "<item name='c' visible='1'/>";

/** A document whose menu begins with two good links. */
QByteArray afterTwoGood(const QByteArray& content)
{
    return document("<Visible>1</Visible><menu>" + QByteArray(twoGood) + content + "</menu>");
}

QByteArray withDeclaration(const char* encoding, const QByteArray& content)
{
    return QByteArray("<?xml version='1.0' encoding='") + encoding + "'?><tovadoc><menu>" + content +
           "</menu></tovadoc>";
}

/** The text in UTF-16, low byte first. */
QByteArray utf16(const QByteArray& latin1)
{
    QByteArray bytes("\xff\xfe");
    for (int i = 0; i < latin1.size(); ++i) {
        bytes.append(latin1.at(i));
        bytes.append('\0');
    }
    return bytes;
}

QByteArray repeated(const char* text, int times)
{
    return QByteArray(text).repeated(times);
}

/** Up to which level the bomb goes: a gigabyte where the toolkit sees it coming, else what can be borne. */
const int bombLevel = areEntitiesLimited ? 8 : 4;

/** Entities e0 to e<level>, each ten times the one before. */
QByteArray entityBomb(int levels)
{
    QByteArray declarations = "<!DOCTYPE tovadoc [<!ENTITY e0 \"ten chars!\">";
    for (int level = 1; level <= levels; ++level) {
        const QByteArray before = "&e" + QByteArray::number(level - 1) + ';';
        declarations += "<!ENTITY e" + QByteArray::number(level) + " \"" + before.repeated(10) + "\">";
    }
    return declarations + "]>";
}
} // namespace

class StoreBrokenFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }

    void goodLinksStay_data();
    void goodLinksStay();
    void encodings_data();
    void encodings();
    void wrongByte_data();
    void wrongByte();
    void cutAtEveryByte();
    void everyByteDamaged();
    void externalEntityIsNotRead_data();
    void externalEntityIsNotRead();
    void folderInPlaceOfFile();
    void hugeAttribute_data();
    void hugeAttribute();
};

void StoreBrokenFilesTest::goodLinksStay_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");
    const QByteArray good = afterTwoGood(third);

    QTest::newRow("not damaged") << good << "a,b,c";
    QTest::newRow("empty") << QByteArray() << "";
    QTest::newRow("one blank") << QByteArray(" ") << "";
    QTest::newRow("line feeds only") << QByteArray("\n\n\n") << "";
    QTest::newRow("not XML") << QByteArray("[links]\nname=Portal\n") << "";
    QTest::newRow("HTML") << QByteArray("<!DOCTYPE html><html><br><menu>") + third + "</menu></html>"
                          << "c";
    QTest::newRow("only the declaration") << QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n") << "";
    QTest::newRow("only the root's start") << QByteArray("<tovadoc>") << "";
    QTest::newRow("declaration not at the beginning") << "\n" + good << "";
    QTest::newRow("XML 9.9") << QByteArray("<?xml version='9.9'?><menu>") + third + "</menu>"
                             << "";
    QTest::newRow("cut in a name") << good.left(good.indexOf("name='c'") + 2) << "a,b";
    QTest::newRow("cut in the middle of an attribute") << good.left(good.indexOf("name='c'") + 6) << "a,b";
    QTest::newRow("cut before an item's end") << good.left(good.lastIndexOf("/></menu>")) << "a,b";
    QTest::newRow("cut between items") << good.left(good.indexOf("<item name='c'")) << "a,b";

    const char* const damages[][2] = {{"broken item", "<item name= />"},
                                      {"attribute without quotes", "<item name=x visible=1/>"},
                                      {"attribute without value", "<item visible/>"},
                                      {"duplicate attribute", "<item visible='1' visible='1'/>"},
                                      {"less-than in a value", "<item name='<' visible='1'/>"},
                                      {"bare ampersand", "<item name='R&D' visible='1'/>"},
                                      {"unknown entity", "<item name='&nbsp;' visible='1'/>"},
                                      {"reference to no character", "<item name='&#0;' visible='1'/>"},
                                      {"reference to a surrogate", "<item name='&#xD800;' visible='1'/>"},
                                      {"undeclared prefix", "<p:item name='x' visible='1'/>"},
                                      {"wrong end tag", "</tovadoc>"},
                                      {"end tag too many", "</x>"},
                                      {"unclosed comment", "<!-- "},
                                      {"double hyphen in a comment", "<!-- -- -->"},
                                      {"unclosed character data", "<![CDATA["},
                                      {"end of character data in text", "]]>"},
                                      {"instruction named xml", "<?xml version='1.0'?>"},
                                      {"control character", "<item name='\x01' visible='1'/>"}};
    for (const auto& damage : damages)
        QTest::newRow(damage[0]) << afterTwoGood(damage[1] + QByteArray(third)) << "a,b";

    QTest::newRow("unclosed menu") << QByteArray("<tovadoc><menu>") + twoGood + third + "</tovadoc>"
                                   << "a,b,c";
    QTest::newRow("unclosed root") << QByteArray("<tovadoc><menu>") + twoGood + third + "</menu>"
                                   << "a,b,c";
    QTest::newRow("text after the root") << good + "text" + third << "a,b,c";
    QTest::newRow("two roots") << good + "<tovadoc><menu>" + third + "</menu></tovadoc>"
                               << "a,b,c";
    QTest::newRow("no root, only items") << QByteArray(third) + third << "";
    QTest::newRow("NUL byte in a value") << afterTwoGood(QByteArray("<item name='x\0y' visible='1'/>", 30) + third)
                                         << (isNulAnError ? "a,b" : "a,b,xy,c");
    QTest::newRow("NUL byte between") << afterTwoGood(QByteArray("\0", 1) + third) << "a,b";
    QTest::newRow("NUL bytes only") << QByteArray(5000, '\0') << "";
    QTest::newRow("NUL bytes after the root") << good + QByteArray(5000, '\0') << "a,b,c";
    const QByteArray bomb = entityBomb(bombLevel);
    const QString expanded = QString("ten chars!").repeated(10000);
    const QByteArray last = "&e" + QByteArray::number(bombLevel) + ';';
    QTest::newRow("entity bomb in a value")
        << bomb + "<tovadoc><menu>" + twoGood + "<item name='" + last + "' visible='1'/>" + third + "</menu></tovadoc>"
        << (areEntitiesLimited ? QString("a,b") : "a,b," + expanded + ",c");
    QTest::newRow("entity bomb in Visible")
        << bomb + "<tovadoc><Visible>" + last + "</Visible><menu>" + twoGood + "</menu></tovadoc>"
        << (areEntitiesLimited ? "" : "a,b");
    QTest::newRow("entity that holds itself") << QByteArray("<!DOCTYPE t [<!ENTITY e 'x&e;'>]><t><menu>") + twoGood +
                                                     "<item name='&e;' visible='1'/>" + third + "</menu></t>"
                                              << "a,b";
    QTest::newRow("unclosed document type") << QByteArray("<!DOCTYPE t [<!ENTITY e 'x'><t><menu>") + third << "";
    QTest::newRow("100,000 elements deep")
        << afterTwoGood(repeated("<deep>", 100000) + third + repeated("</deep>", 100000)) << "a,b,c";
    QTest::newRow("100,000 items deep, never closed")
        << QByteArray("<menu>") + twoGood + repeated("<item name='x'>", 100000) << "a,b";
    QTest::newRow("100,000 brackets") << afterTwoGood(repeated("<", 100000)) << "a,b";
    // No more: a reader may compare each with each.
    QTest::newRow("2,000 attributes") << afterTwoGood("<item " + repeated("x='1' ", 2000) + "/>") << "a,b";
}

void StoreBrokenFilesTest::goodLinksStay()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, expected);
    RecordingTrace trace;
    QCOMPARE(readBytes(bytes), 0);
    QCOMPARE(names(), expected);
    QCOMPARE(trace.debugDifference(readerBeginning() + walkLines()), QString());
    QCOMPARE(trace.warningLines, QStringList());
    QCOMPARE(FakeHost::instance().readConfig(), bytes);
}

void StoreBrokenFilesTest::encodings_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");
    const QByteArray cafe = "<item name='Caf\xe9' visible='1'/>";
    const QByteArray cafeUtf8 = "<item name='Caf\xc3\xa9' visible='1'/>";
    const QString cafeName = QString::fromUtf8("Caf\xc3\xa9");
    QTest::newRow("UTF-8") << withDeclaration("UTF-8", cafeUtf8) << cafeName;
    QTest::newRow("UTF-8 with a byte order mark") << "\xef\xbb\xbf" + withDeclaration("UTF-8", cafeUtf8) << cafeName;
    QTest::newRow("no declaration") << "<menu>" + cafeUtf8 + "</menu>" << cafeName;
    QTest::newRow("Latin-1 declared") << withDeclaration("ISO-8859-1", cafe) << cafeName;
    QTest::newRow("UTF-16 with a byte order mark") << utf16(withDeclaration("UTF-16", cafe)) << cafeName;
    QTest::newRow("UTF-16 without a byte order mark") << utf16(withDeclaration("UTF-16", cafe)).mid(2) << cafeName;
    QTest::newRow("UTF-16 declared, UTF-8 written") << withDeclaration("UTF-16", twoGood) << "";
    QTest::newRow("unknown encoding") << withDeclaration("X-NO-SUCH-THING", twoGood) << "";
    QTest::newRow("no encoding's name") << withDeclaration("%$!", twoGood) << "";
    QTest::newRow("only a byte order mark") << QByteArray("\xef\xbb\xbf") << "";
    QTest::newRow("half of a byte order mark") << "\xef\xbb" + withDeclaration("UTF-8", twoGood) << "";
}

void StoreBrokenFilesTest::encodings()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, expected);
    QCOMPARE(readBytes(bytes), 0);
    QCOMPARE(names(), expected);
}

void StoreBrokenFilesTest::wrongByte_data()
{
    QTest::addColumn<int>("damaged"); // link
    QTest::addColumn<int>("read");    // links
    // Links of 64 bytes: 128 fill a block of 8 KiB, and the head of the file takes the place of the first.
    QTest::newRow("first block, first link") << 0 << 0;
    QTest::newRow("first block, last link") << 126 << 0;
    QTest::newRow("second block, first link") << 127 << 127;
    QTest::newRow("second block, last link") << 254 << 127;
    QTest::newRow("third block, first link") << 255 << 255;
}

void StoreBrokenFilesTest::wrongByte()
{
    QFETCH(int, damaged);
    QFETCH(int, read);
    const QByteArray head = QByteArray("<tovadoc><menu>").leftJustified(64);
    const QByteArray link = QByteArray("<item visible='1' name='n'/>").leftJustified(64);
    QByteArray bytes = head + link.repeated(300) + "</menu></tovadoc>";
    bytes[head.size() + damaged * link.size() + link.indexOf('n', 20)] = '\xff';
    QCOMPARE(readBytes(bytes), 0);
    QCOMPARE(int(store()->m_recordList->size()), read);
}

void StoreBrokenFilesTest::cutAtEveryByte()
{
    const RecordingTrace quiet;
    const QByteArray good = afterTwoGood(third);
    for (int size = 0; size <= good.size(); ++size) {
        const QByteArray cut = good.left(size);
        QStringList expected;
        for (const char* name : {"a", "b", "c"}) {
            const QByteArray item = QByteArray("<item name='") + name + "' visible='1'/>";
            if (cut.contains(item))
                expected.append(QLatin1String(name));
        }
        QCOMPARE(readBytes(cut), 0);
        QVERIFY2(names() == expected.join(","), cut.constData());
    }
}

void StoreBrokenFilesTest::everyByteDamaged()
{
    const RecordingTrace quiet;
    // Whatever the damage, the result is a list of links that the file could hold.
    const QByteArray good = afterTwoGood(third);
    const char damages[] = {'<', '>', '&', '"', '\'', '/', '\0', '\xff', '\xc3', ' '};
    for (int place = 0; place < good.size(); ++place) {
        for (const char damage : damages) {
            QByteArray damaged = good;
            damaged[place] = damage;
            QCOMPARE(readBytes(damaged), 0);
            QVERIFY(store()->m_recordList->size() <= 3);
            for (const QuickLinkRecord& record : *store()->m_recordList)
                QCOMPARE(record.visible, "1");
        }
    }
}

void StoreBrokenFilesTest::externalEntityIsNotRead_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("expected");
    QTest::newRow("in an attribute") << QByteArray("<menu><item name='a' visible='1'/><item name='&x;' visible='1'/>"
                                                   "</menu>")
                                     << "a";
    QTest::newRow("in an element") << QByteArray("<Visible>&x;</Visible><CurrentID>&x;</CurrentID><menu><item name='a' "
                                                 "visible='1'/></menu>")
                                   << "a";
    QTest::newRow("between items") << QByteArray("<menu><item name='a' visible='1'/>&x;<item name='b' visible='1'/>"
                                                 "</menu>")
                                   << "a,b";
}

void StoreBrokenFilesTest::externalEntityIsNotRead()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, expected);
    const QString path = FakeHost::instance().userFolder + "/secret.txt";
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("<item name='secret' visible='1'/>secret") > 0);
    file.close();
    const QByteArray bytes =
        "<!DOCTYPE tovadoc [<!ENTITY x SYSTEM \"file://" + path.toUtf8() + "\">]><tovadoc>" + content + "</tovadoc>";
    QCOMPARE(readBytes(bytes), 0);
    QCOMPARE(names(), expected);
    QVERIFY(!store()->m_visible.contains("secret"));
    QVERIFY(!store()->m_currentId.contains("secret"));
}

void StoreBrokenFilesTest::folderInPlaceOfFile()
{
    const QString path = FakeHost::instance().configPath();
    QVERIFY(QDir().mkpath(path + "/inner"));
    QCOMPARE(store()->ReadXmlInformation(), 25);
    QCOMPARE(names(), QString());
    QVERIFY(QFileInfo(path + "/inner").isDir());
}

void StoreBrokenFilesTest::hugeAttribute_data()
{
    QTest::addColumn<QByteArray>("end");
    QTest::addColumn<int>("count");
    QTest::newRow("closed") << QByteArray("' visible='1'/></menu></tovadoc>") << 3;
    QTest::newRow("cut off") << QByteArray() << 2;
}

void StoreBrokenFilesTest::hugeAttribute()
{
    QFETCH(QByteArray, end);
    QFETCH(int, count);
    const int megabytes = 64;
    QFile file(FakeHost::instance().configPath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<tovadoc><menu>" + QByteArray(twoGood) + "<item name='");
    const QByteArray megabyte(1 << 20, 'x');
    for (int i = 0; i < megabytes; ++i)
        QCOMPARE(static_cast<int>(file.write(megabyte)), 1 << 20);
    file.write(end);
    file.close();
    QCOMPARE(store()->ReadXmlInformation(), 0);
    QCOMPARE(store()->m_recordList->size(), count);
    QCOMPARE(store()->m_recordList->at(1).name, "b");
    if (count == 3)
        QCOMPARE(static_cast<int>(store()->m_recordList->at(2).name.size()), megabytes << 20);
}

REGISTER_TEST(StoreBrokenFilesTest)
#include "StoreBrokenFilesTest.moc"
