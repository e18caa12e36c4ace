// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The text behind a key, and what stands there when there is none.

#include "Change.h"
#include "FakeTranslator.h"
#include "Test.h"

class ChangeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void translates_data();
    void translates();
    void showsTheKeyWithoutATranslator();
};

void ChangeTest::translates_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("context");
    QTest::addColumn<QString>("expected");
    const QString key = QString::fromUtf8("IDS_\303\226K");
    const QString context = QString::fromUtf8("Kontext\303\244");
    QTest::newRow("known") << key << context << QString::fromUtf8("In Ordnung \342\234\223");
    QTest::newRow("other context") << key << "Other" << key;
    QTest::newRow("other key") << QString::fromUtf8("IDS_\303\234") << context << QString::fromUtf8("IDS_\303\234");
    QTest::newRow("empty key") << QString() << context << QString();
}

void ChangeTest::translates()
{
    QFETCH(QString, key);
    QFETCH(QString, context);
    QFETCH(QString, expected);
    const FakeTranslator translator([](const QByteArray& inContext, const QByteArray& source) {
        const bool isKnown = inContext == "Kontext\303\244" && source == "IDS_\303\226K";
        return isKnown ? QString::fromUtf8("In Ordnung \342\234\223") : QString();
    });
    QCOMPARE(Change::tr(key, context), expected);
}

void ChangeTest::showsTheKeyWithoutATranslator()
{
    QCOMPARE(Change::tr("IDS_OK", "QuickLinkUIPlugin"), "IDS_OK");
}

REGISTER_TEST(ChangeTest)
#include "ChangeTest.moc"
