// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The languages in the View menu.

#include <algorithm>
#include <functional>

#include <QSignalSpy>

#include "FakeTranslator.h"
#include "LanguageMenu.h"
#include "Test.h"

class LanguageMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesEachInItsOwnLanguage_data();
    void namesEachInItsOwnLanguage();
    void namesTheCountryWhereItTellsTwoApart();
    void offersTheSystemsFirst();
    void marksTheCurrentOne_data();
    void marksTheCurrentOne();
    void tellsWhatIsChosen_data();
    void tellsWhatIsChosen();
    void fixedLanguageIsGreyedWithItsReason();
    void followsTheLanguage();
};

static const QStringList offeredLanguages = {"de", "en", "pt_BR"};

static QList<QAction*> choices(const QMenu& menu)
{
    QList<QAction*> choices = menu.actions();
    choices.erase(std::remove_if(choices.begin(), choices.end(), std::mem_fn(&QAction::isSeparator)), choices.end());
    return choices;
}

/** What is marked, by what it stands for. */
static QStringList marked(const QMenu& menu)
{
    QStringList languages;
    for (const QAction* action : choices(menu)) {
        if (action->isChecked())
            languages.append(action->data().toString());
    }
    return languages;
}

void LanguageMenuTest::namesEachInItsOwnLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("name");
    QTest::newRow("de") << "de"
                        << "Deutsch";
    QTest::newRow("en") << "en"
                        << "English";
    QTest::newRow("fr") << "fr" << QString::fromUtf8("Français");
    QTest::newRow("pt_BR") << "pt_BR" << QString::fromUtf8("Português");
    QTest::newRow("ru") << "ru" << QString::fromUtf8("Русский");
}

void LanguageMenuTest::namesEachInItsOwnLanguage()
{
    QFETCH(QString, language);
    const LanguageMenu menu({language}, QString());
    QCOMPARE(choices(menu).size(), 2);
    QTEST(choices(menu).constLast()->text(), "name");
}

void LanguageMenuTest::namesTheCountryWhereItTellsTwoApart()
{
    const LanguageMenu menu({"pl", "pt", "pt_PT", "zh_CN"}, QString());
    QStringList names;
    for (const QAction* action : choices(menu).mid(1))
        names.append(action->text());
    QCOMPARE(names, QStringList() << "Polski" << QString::fromUtf8("Português (Brasil)")
                                  << QString::fromUtf8("Português (Portugal)") << QString::fromUtf8("简体中文"));
}

void LanguageMenuTest::offersTheSystemsFirst()
{
    const LanguageMenu menu(offeredLanguages, QString());
    QCOMPARE(menu.title(), "&Language");
    QCOMPARE(choices(menu).size(), 4);
    QCOMPARE(choices(menu).constFirst()->text(), "&System Language");
    QVERIFY(menu.actions().at(1)->isSeparator());
    QStringList order;
    for (const QAction* action : choices(menu))
        order.append(action->data().toString());
    QCOMPARE(order, QStringList(QString()) + offeredLanguages);
}

void LanguageMenuTest::marksTheCurrentOne_data()
{
    QTest::addColumn<QString>("current");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("the system's") << QString() << QStringList(QString());
    QTest::newRow("de") << "de" << QStringList("de");
    QTest::newRow("pt_BR") << "pt_BR" << QStringList("pt_BR");
    QTest::newRow("not offered") << "pt" << QStringList();
}

void LanguageMenuTest::marksTheCurrentOne()
{
    QFETCH(QString, current);
    const LanguageMenu menu(offeredLanguages, current);
    QTEST(marked(menu), "expected");
}

void LanguageMenuTest::tellsWhatIsChosen_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("language");
    QTest::newRow("the system's") << 0 << QString();
    QTest::newRow("de") << 1 << "de";
    QTest::newRow("pt_BR") << 3 << "pt_BR";
}

void LanguageMenuTest::tellsWhatIsChosen()
{
    QFETCH(int, index);
    QFETCH(QString, language);
    const LanguageMenu menu(offeredLanguages, "en");
    QSignalSpy told(&menu, &LanguageMenu::languageChosen);
    choices(menu).at(index)->trigger();
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.first().first().toString(), language);
    QCOMPARE(marked(menu), QStringList(language));
}

void LanguageMenuTest::fixedLanguageIsGreyedWithItsReason()
{
    LanguageMenu menu(offeredLanguages, "de");
    menu.setFixed();
    for (const QAction* action : choices(menu))
        QVERIFY(!action->isEnabled());
    QCOMPARE(marked(menu), QStringList("de"));
    QCOMPARE(choices(menu).constLast()->text(), "Fixed by the administrator of this computer");
    const FakeTranslator translator;
    QTRY_COMPARE(choices(menu).constLast()->text(), "*Fixed by the administrator of this computer");
}

void LanguageMenuTest::followsTheLanguage()
{
    const LanguageMenu menu(offeredLanguages, QString());
    const FakeTranslator translator;
    QTRY_COMPARE(menu.title(), "*&Language");
    QCOMPARE(choices(menu).constFirst()->text(), "*&System Language");
    QCOMPARE(choices(menu).at(1)->text(), "Deutsch");
}

REGISTER_TEST(LanguageMenuTest)
#include "LanguageMenuTest.moc"
