// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What an edit takes from a link though nobody asked for it.

#include "DroppedFields.h"
#include "Test.h"

class DroppedFieldsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ofOneEdit_data();
    void ofOneEdit();
    void ofTheEditedLinkAmongOthers();
    void ofNothingElse_data();
    void ofNothingElse();
};

static QByteArray link(const QByteArray& attributes)
{
    return "<item " + attributes + " visible=\"1\"/>";
}

static QByteArray file(const QByteArray& links)
{
    return "<tovadoc><menu>" + links + "</menu></tovadoc>";
}

static QString summaryOf(const LinkItems::Fields& fields)
{
    QStringList parts;
    for (auto field = fields.cbegin(); field != fields.cend(); ++field)
        parts.append(field.key() + '=' + field.value());
    return parts.join(' ');
}

void DroppedFieldsTest::ofOneEdit_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<bool>("showsConnect");
    QTest::addColumn<bool>("showsStart");
    QTest::addColumn<QString>("rights");
    QTest::addColumn<QString>("marks");
    const QByteArray marked = "name=\"A\" startconnect=\"1\" startmobile=\"1\"";
    const QByteArray bare = "name=\"B\" startconnect=\"0\" startmobile=\"0\"";
    const auto add = [](const char* name, const QByteArray& before, const QByteArray& after, bool showsConnect,
                        bool showsStart, const char* rights, const char* marks) {
        QTest::newRow(name) << before << after << showsConnect << showsStart << QString(rights) << QString(marks);
    };
    add("both marks", marked, bare, true, true, "", "startconnect=1 startmobile=1");
    add("unmarked by the user", marked, bare, false, false, "", "");
    add("the one that was not unmarked", marked, bare, false, true, "", "startmobile=1");
    add("the other", marked, bare, true, false, "", "startconnect=1");
    add("marked by the user", bare, "name=\"B\" startconnect=\"1\" startmobile=\"1\"", true, true, "", "");
    add("kept", marked, "name=\"B\" startconnect=\"1\" startmobile=\"1\"", true, true, "", "");
    add("a mark that says something else", "name=\"A\" startconnect=\"yes\"", "name=\"A\" startconnect=\"0\"", true,
        true, "", "");
    add("the right to delete", "name=\"A\" delete=\"0\"", "name=\"A\" delete=\"1\"", false, false, "delete=0", "");
    add("the right to edit", "name=\"A\" edit=\"\"", "name=\"A\" edit=\"1\"", false, false, "edit=", "");
    add("rights that were never said", "name=\"A\"", "name=\"B\" delete=\"1\" edit=\"1\"", false, false, "", "");
    add("a recipient", "name=\"A\" url=\"mailto:me@example.org\"", "name=\"B\" url=\"mailto:\"", false, false, "",
        "url=mailto:me@example.org");
    add("no recipient", "name=\"A\" url=\"mailto:\"", "name=\"B\" url=\"mailto:\"", false, false, "", "");
    add("another address", "name=\"A\" url=\"http://a\"", "name=\"A\" url=\"http://b\"", false, false, "", "");
    add("mail in place of a page", "name=\"A\" url=\"http://a\"", "name=\"A\" url=\"mailto:\"", false, false, "", "");
}

void DroppedFieldsTest::ofOneEdit()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(bool, showsConnect);
    QFETCH(bool, showsStart);
    const DroppedFields dropped =
        DroppedFields::between(file(link(before)), file(link(after)), {showsConnect, showsStart});
    QTEST(summaryOf(dropped.rights), "rights");
    QTEST(summaryOf(dropped.marks), "marks");
}

void DroppedFieldsTest::ofTheEditedLinkAmongOthers()
{
    const QByteArray before = link("id=\"0\" name=\"A\"") + link("id=\"1\" name=\"B\" delete=\"0\"");
    // Numbers are given anew, and links that are not shown go with any save.
    const QByteArray hidden = "<item name=\"hidden\" visible=\"0\"/>";
    const QByteArray after = link("id=\"7\" name=\"A\"") + link("id=\"7\" name=\"C\" delete=\"1\"");
    const DroppedFields dropped = DroppedFields::between(file(hidden + before), file(after), {});
    QCOMPARE(dropped.index, 1);
    QCOMPARE(summaryOf(dropped.rights), "delete=0");
}

void DroppedFieldsTest::ofNothingElse_data()
{
    QTest::addColumn<QByteArray>("after");
    const QByteArray first = link("name=\"A\" delete=\"0\""), second = link("name=\"B\" delete=\"0\"");
    QTest::newRow("the same") << first + second;
    QTest::newRow("moved") << second + first;
    QTest::newRow("deleted") << second;
    QTest::newRow("added") << first + second + link("name=\"C\"");
    QTest::newRow("two changed") << link("name=\"A\" delete=\"1\"") + link("name=\"B\" delete=\"1\"");
}

void DroppedFieldsTest::ofNothingElse()
{
    QFETCH(QByteArray, after);
    const QByteArray before = link("name=\"A\" delete=\"0\"") + link("name=\"B\" delete=\"0\"");
    const DroppedFields dropped = DroppedFields::between(file(before), file(after), {true, true});
    QCOMPARE(dropped.index, -1);
    QVERIFY(dropped.rights.isEmpty() && dropped.marks.isEmpty());
}

REGISTER_TEST(DroppedFieldsTest)
#include "DroppedFieldsTest.moc"
