// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The page of choices about the program itself.

#include <QCheckBox>
#include <QLabel>
#include <QSignalSpy>

#include "FakeTranslator.h"
#include "GeneralPage.h"
#include "Test.h"

class GeneralPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheChoice_data();
    void showsTheChoice();
    void asksForTheChoice();
    void tellsThatItCannotBeKept();
    void fixedChoiceIsGreyedWithItsReason();
    void followsTheLanguage();
};

/** The texts of the labels that are seen. */
static QStringList texts(const GeneralPage& page)
{
    QStringList texts;
    const QList<QLabel*> labels = page.findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        if (label->isVisible())
            texts.append(label->text());
    }
    return texts;
}

void GeneralPageTest::showsTheChoice_data()
{
    QTest::addColumn<bool>("isOn");
    QTest::newRow("on") << true;
    QTest::newRow("off") << false;
}

void GeneralPageTest::showsTheChoice()
{
    QFETCH(bool, isOn);
    GeneralPage page(isOn);
    page.show();
    QCOMPARE(page.findChild<QCheckBox*>()->isChecked(), isOn);
    QCOMPARE(texts(page).size(), 1);
}

void GeneralPageTest::asksForTheChoice()
{
    GeneralPage page(false);
    page.show();
    const QSignalSpy chosen(&page, &GeneralPage::startWithSessionChosen);
    QCheckBox* const box = page.findChild<QCheckBox*>();
    box->click();
    box->click();
    QCOMPARE(chosen.size(), 2);
    QCOMPARE(chosen.at(0).constFirst().toBool(), true);
    QCOMPARE(chosen.at(1).constFirst().toBool(), false);
    // What the program says is no choice of the user.
    page.setStartsWithSession(true, QString());
    QVERIFY(box->isChecked());
    QCOMPARE(chosen.size(), 2);
}

void GeneralPageTest::tellsThatItCannotBeKept()
{
    GeneralPage page(false);
    page.show();
    page.findChild<QCheckBox*>()->click();
    page.setStartsWithSession(false, "/etc/x.desktop");
    QVERIFY(!page.findChild<QCheckBox*>()->isChecked());
    QCOMPARE(texts(page).value(1), "This choice cannot be kept in /etc/x.desktop.");
    page.setStartsWithSession(true, QString());
    QCOMPARE(texts(page).size(), 1);
}

void GeneralPageTest::fixedChoiceIsGreyedWithItsReason()
{
    GeneralPage page(true);
    page.setFixed();
    page.show();
    const QSignalSpy chosen(&page, &GeneralPage::startWithSessionChosen);
    QCheckBox* const box = page.findChild<QCheckBox*>();
    QVERIFY(!box->isEnabled());
    QVERIFY(box->isChecked());
    box->click();
    QCOMPARE(chosen.size(), 0);
    const QString reason = "Fixed by the administrator of this computer";
    QCOMPARE(texts(page).value(0), reason);
    QCOMPARE(box->accessibleDescription(), reason);
    const FakeTranslator other;
    QTRY_COMPARE(box->accessibleDescription(), "*" + reason);
    QCOMPARE(texts(page).value(0), "*" + reason);
}

void GeneralPageTest::followsTheLanguage()
{
    GeneralPage page(false);
    page.show();
    QCOMPARE(page.caption(), "General");
    const FakeTranslator other;
    QTRY_COMPARE(page.findChild<QCheckBox*>()->text(), "*Start with the session");
    QCOMPARE(page.caption(), "*General");
}

REGISTER_TEST(GeneralPageTest)
#include "GeneralPageTest.moc"
