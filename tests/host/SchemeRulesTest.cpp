// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What is done with the addresses of a scheme.

#include "SchemeRules.h"
#include "Test.h"

Q_DECLARE_METATYPE(SchemeRule)

class SchemeRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isOneForEachScheme_data();
    void isOneForEachScheme();
};

void SchemeRulesTest::isOneForEachScheme_data()
{
    QTest::addColumn<QString>("scheme");
    QTest::addColumn<SchemeRule>("rule");
    QTest::newRow("none") << QString() << SchemeRule::Path;
    for (const char* scheme : {"file"})
        QTest::newRow(scheme) << scheme << SchemeRule::Path;
    for (const char* scheme : {"http", "https", "ftp", "mailto", "tel"})
        QTest::newRow(scheme) << scheme << SchemeRule::HandOver;
    for (const char* scheme : {"javascript", "data", "vbscript"})
        QTest::newRow(scheme) << scheme << SchemeRule::Refuse;
    for (const char* scheme : {"sms", "ssh", "smb", "about", "view-source", "httpx", "xhttp", "c"})
        QTest::newRow(scheme) << scheme << SchemeRule::Ask;
}

void SchemeRulesTest::isOneForEachScheme()
{
    QFETCH(QString, scheme);
    QFETCH(SchemeRule, rule);
    QCOMPARE(SchemeRules::ruleFor(scheme), rule);
    QCOMPARE(SchemeRules::known().contains(scheme), rule != SchemeRule::Ask);
}

REGISTER_TEST(SchemeRulesTest)
#include "SchemeRulesTest.moc"
