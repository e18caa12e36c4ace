// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What is counted is counted as the language does.

#include "FailureList.h"
#include "ShownLanguage.h"
#include "Test.h"

class PluralsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ofFailures_data();
    void ofFailures();
};

void PluralsTest::ofFailures_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("rest");
    QTest::addColumn<QString>("text");
    QTest::newRow("en 1") << "en" << 1 << "and 1 more";
    QTest::newRow("en 2") << "en" << 2 << "and 2 more";
    QTest::newRow("fr 1") << "fr" << 1 << "et 1 autre";
    QTest::newRow("fr 2") << "fr" << 2 << "et 2 autres";
    QTest::newRow("ar 1") << "ar" << 1 << QString::fromUtf8("وواحد آخر");
    QTest::newRow("ar 2") << "ar" << 2 << QString::fromUtf8("واثنان آخران");
    QTest::newRow("ja 990") << "ja" << 990 << QString::fromUtf8("他 990 件");
}

void PluralsTest::ofFailures()
{
    QFETCH(QString, language);
    QFETCH(int, rest);
    const ShownLanguage shown(language);
    QVERIFY(shown.isKnown());
    FailureList failures;
    for (int i = 0; i < 10 + rest; ++i)
        failures.add("Title", "Gone:", "/x");
    QTEST(failures.text().section('\n', -1), "text");
}

REGISTER_TEST(PluralsTest)
#include "PluralsTest.moc"
