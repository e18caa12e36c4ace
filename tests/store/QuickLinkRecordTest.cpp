// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include <climits>
#include <type_traits>

#include "QuickLinkRecord.h"
#include "Records.h"
#include "Test.h"

typedef QString QuickLinkRecord::*Field;

namespace
{
struct FieldRow {
    const char* name;
    Field field;
    const char* initial;
};

// In the order of declaration.
const FieldRow fieldRows[] = {{"id", &QuickLinkRecord::id, ""},
                              {"name", &QuickLinkRecord::name, ""},
                              {"url", &QuickLinkRecord::url, ""},
                              {"startconnect", &QuickLinkRecord::startconnect, "0"},
                              {"startmobile", &QuickLinkRecord::startmobile, "0"},
                              {"type", &QuickLinkRecord::type, ""},
                              {"para", &QuickLinkRecord::para, ""},
                              {"delete", &QuickLinkRecord::delete_, "1"},
                              {"edit", &QuickLinkRecord::edit, "1"},
                              {"visible", &QuickLinkRecord::visible, "1"}};

QuickLinkRecordList listOf(const char* letters)
{
    QuickLinkRecordList list;
    for (; *letters; ++letters)
        list.append(makeRecord(QByteArray(letters, 1).constData(), "internet", "www.example.org"));
    return list;
}

QString lettersOf(const QuickLinkRecordList& list)
{
    QString letters;
    for (const QuickLinkRecord& record : list)
        letters += record.name;
    return letters;
}
} // namespace

class QuickLinkRecordTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fieldHasItsDefault_data();
    void fieldHasItsDefault();
    void fieldsLieInTheirOrder_data() { fieldHasItsDefault_data(); }
    void fieldsLieInTheirOrder();
    void isPlainValue();
    void copyIsIndependent_data() { fieldHasItsDefault_data(); }
    void copyIsIndependent();
    void valueOutsideIsTheDefaultRecord_data();
    void valueOutsideIsTheDefaultRecord();
    void valueInsideIsCopy();
    void listOperation_data();
    void listOperation();
    void typeTexts_data();
    void typeTexts();
    void onlyOneMeansYes_data();
    void onlyOneMeansYes();
};

void QuickLinkRecordTest::fieldHasItsDefault_data()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const FieldRow& row : fieldRows)
        QTest::newRow(row.name) << index++;
}

void QuickLinkRecordTest::fieldHasItsDefault()
{
    QFETCH(int, index);
    QCOMPARE(QuickLinkRecord().*(fieldRows[index].field), QString::fromLatin1(fieldRows[index].initial));
}

void QuickLinkRecordTest::fieldsLieInTheirOrder()
{
    QFETCH(int, index);
    const QuickLinkRecord record;
    const char* const begin = reinterpret_cast<const char*>(&record);
    const char* const field = reinterpret_cast<const char*>(&(record.*(fieldRows[index].field)));
    QCOMPARE(static_cast<int>(field - begin), index * static_cast<int>(sizeof(QString)));
}

void QuickLinkRecordTest::isPlainValue()
{
    QCOMPARE(sizeof(QuickLinkRecord), 10 * sizeof(QString));
    QVERIFY(!std::is_polymorphic<QuickLinkRecord>::value);
    QVERIFY(std::is_copy_constructible<QuickLinkRecord>::value);
    QVERIFY(std::is_copy_assignable<QuickLinkRecord>::value);
    const bool isVector = std::is_same<QuickLinkRecordList, QVector<QuickLinkRecord>>::value;
    QVERIFY(isVector);
}

void QuickLinkRecordTest::copyIsIndependent()
{
    QFETCH(int, index);
    const Field field = fieldRows[index].field;
    QuickLinkRecord original;
    original.*field = "before";
    const QuickLinkRecord copy(original);
    QuickLinkRecord assigned;
    assigned = original;
    QCOMPARE(difference(copy, original), QString());
    QCOMPARE(difference(assigned, original), QString());
    original.*field = "after";
    QCOMPARE(copy.*field, "before");
    QCOMPARE(assigned.*field, "before");
}

void QuickLinkRecordTest::valueOutsideIsTheDefaultRecord_data()
{
    QTest::addColumn<QByteArray>("letters");
    QTest::addColumn<int>("index");
    QTest::newRow("empty list, -1") << QByteArray("") << -1;
    QTest::newRow("empty list, count") << QByteArray("") << 0;
    QTest::newRow("one record, -1") << QByteArray("a") << -1;
    QTest::newRow("one record, count") << QByteArray("a") << 1;
    QTest::newRow("three records, -1") << QByteArray("abc") << -1;
    QTest::newRow("three records, count") << QByteArray("abc") << 3;
    QTest::newRow("three records, beyond") << QByteArray("abc") << 4;
    QTest::newRow("three records, least") << QByteArray("abc") << INT_MIN;
    QTest::newRow("three records, greatest") << QByteArray("abc") << INT_MAX;
}

void QuickLinkRecordTest::valueOutsideIsTheDefaultRecord()
{
    QFETCH(QByteArray, letters);
    QFETCH(int, index);
    const QuickLinkRecordList list = listOf(letters.constData());
    QCOMPARE(difference(list.value(index), QuickLinkRecord()), QString());
    QCOMPARE(lettersOf(list), QString::fromLatin1(letters));
}

void QuickLinkRecordTest::valueInsideIsCopy()
{
    QuickLinkRecordList list = listOf("abc");
    QuickLinkRecord record = list.value(1);
    QCOMPARE(record.name, "b");
    record.name = "x";
    QCOMPARE(lettersOf(list), "abc");
}

void QuickLinkRecordTest::listOperation_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("expected");
    QTest::newRow("append") << "append" << 0 << "abcx";
    QTest::newRow("insert before the first") << "insert" << 0 << "xabc";
    QTest::newRow("insert between") << "insert" << 2 << "abxc";
    QTest::newRow("insert at count appends") << "insert" << 3 << "abcx";
    QTest::newRow("remove the first") << "remove" << 0 << "bc";
    QTest::newRow("remove between") << "remove" << 1 << "ac";
    QTest::newRow("remove the last") << "remove" << 2 << "ab";
    QTest::newRow("replace") << "replace" << 1 << "axc";
    QTest::newRow("edit in place") << "edit" << 1 << "axc";
}

void QuickLinkRecordTest::listOperation()
{
    QFETCH(QString, operation);
    QFETCH(int, index);
    QFETCH(QString, expected);
    QuickLinkRecordList list = listOf("abc");
    const QuickLinkRecordList copyFromBefore = list;
    QuickLinkRecord record = makeRecord("x", "email", "mailto:");
    if (operation == "append")
        list.append(record);
    else if (operation == "insert")
        list.insert(index, record);
    else if (operation == "remove")
        list.remove(index);
    else if (operation == "replace")
        list.replace(index, record);
    else
        list[index].name = record.name;
    record.name = "changed later";
    QCOMPARE(lettersOf(list), expected);
    QCOMPARE(lettersOf(copyFromBefore), "abc");
}

void QuickLinkRecordTest::typeTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("application") << LinkType::application() << "IDS_LINK_TYPE_APPLICATION";
    QTest::newRow("e-mail, with a hyphen") << LinkType::email() << "IDS_LINK_TYPE_E-MAIL";
    QTest::newRow("internet") << LinkType::internet() << "IDS_LINK_TYPE_INTERNET";
}

void QuickLinkRecordTest::typeTexts()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(text, expected);
}

void QuickLinkRecordTest::onlyOneMeansYes_data()
{
    QTest::addColumn<QString>("flag");
    QTest::addColumn<bool>("isYes");
    QTest::newRow("1") << "1" << true;
    const char* const others[] = {"", "0", "2", "11", "01", " 1", "1 ", "true", "yes"};
    for (const char* other : others)
        QTest::newRow(qPrintable('"' + QString(other) + '"')) << other << false;
}

void QuickLinkRecordTest::onlyOneMeansYes()
{
    QFETCH(QString, flag);
    QFETCH(bool, isYes);
    QCOMPARE(isSet(flag), isYes);
}

REGISTER_TEST(QuickLinkRecordTest)
#include "QuickLinkRecordTest.moc"
