// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The page on which the user chooses the connections that count.

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <QSignalSpy>

#include <algorithm>

#include "ConnectionPage.h"
#include "FakeTranslator.h"
#include "Test.h"

using Plans = ConnectionChoice::Plans;
Q_DECLARE_METATYPE(ConnectionChoice)

class ConnectionPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void showsTheChoice_data();
    void showsTheChoice();
    void tellsEachChoiceOnce();
    void tellsNothingThatIsTheSame();
    void keepsWhatBelongsToAnotherKind();
    void arrowKeysChoose();
    void asksForPlansEachTimeItShows();
    void offersPlans();
    void plansThatAreGoneStayUntilUnticked();
    void plansThatNobodyNamesAreNotGone();
    void saysWhatItKnowsOfPlans();
    void namesOfPlansAreShownAsTheyStand();
    void anyPlanWhileNoneIsTicked();
    void saysThatTheCommandLineDecides();
    void fixedKindIsGreyedWithItsReason();
    void keyboardGoesFromTopToBottom();
    void followsTheLanguage();

private:
    void show(const ConnectionChoice& choice, bool isForNextTime = false);
    /** The buttons and boxes from top to bottom, "*" before the chosen ones and in brackets those that are disabled. */
    QStringList lines() const;
    QStringList texts() const;
    void click(const QString& text);

    std::unique_ptr<ConnectionPage> m_page;
    QList<ConnectionChoice> m_told;
};

namespace
{
ConnectionChoice withPlans(const Plans& plans)
{
    ConnectionChoice choice;
    choice.plans = plans;
    return choice;
}

QList<QAbstractButton*> buttonsOf(const QWidget& page)
{
    QList<QAbstractButton*> buttons = page.findChildren<QAbstractButton*>();
    std::sort(buttons.begin(), buttons.end(), [&page](const QAbstractButton* a, const QAbstractButton* b) {
        return a->mapTo(&page, QPoint()).y() < b->mapTo(&page, QPoint()).y();
    });
    return buttons;
}

const QStringList atFirst = {"*&Mobile broadband", "*An&y plan",      "Only the plans &ticked here",
                             "Not while &roaming", "&Any connection", "My own &button"};
} // namespace

void ConnectionPageTest::init()
{
    m_told.clear();
}

void ConnectionPageTest::show(const ConnectionChoice& choice, bool isForNextTime)
{
    m_page = std::make_unique<ConnectionPage>(choice, isForNextTime);
    connect(m_page.get(), &ConnectionPage::chosen, this, [this](const ConnectionChoice& told) { m_told.append(told); });
    m_page->resize(500, 500);
    m_page->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_page.get()));
}

QStringList ConnectionPageTest::lines() const
{
    QCoreApplication::sendPostedEvents();
    QStringList lines;
    const QList<QAbstractButton*> buttons = buttonsOf(*m_page);
    for (const QAbstractButton* button : buttons) {
        const QString line = (button->isChecked() ? "*" : "") + button->text();
        lines.append(button->isEnabled() ? line : '[' + line + ']');
    }
    return lines;
}

/** The texts of the labels that are seen. */
QStringList ConnectionPageTest::texts() const
{
    QStringList texts;
    const QList<QLabel*> labels = m_page->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        if (label->isVisible())
            texts.append(label->text());
    }
    return texts;
}

void ConnectionPageTest::click(const QString& text)
{
    const QList<QAbstractButton*> buttons = m_page->findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons) {
        if (button->text() == text) {
            QVERIFY(button->isEnabled());
            return button->click();
        }
    }
    QFAIL(qPrintable("nothing to click: " + text));
}

void ConnectionPageTest::showsTheChoice_data()
{
    QTest::addColumn<ConnectionChoice>("choice");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("mobile") << ConnectionChoice() << atFirst;
    ConnectionChoice choice(ConnectionKind::Any);
    choice.isNotWhileRoaming = true;
    QTest::newRow("any") << choice
                         << QStringList{"&Mobile broadband",     "[*An&y plan]",     "[Only the plans &ticked here]",
                                        "[*Not while &roaming]", "*&Any connection", "My own &button"};
    QTest::newRow("manual") << ConnectionChoice(ConnectionKind::Manual)
                            << QStringList{"&Mobile broadband",    "[*An&y plan]",    "[Only the plans &ticked here]",
                                           "[Not while &roaming]", "&Any connection", "*My own &button"};
    QTest::newRow("plans") << withPlans({{"1", "Work"}, {"2", "Home"}}) << QStringList{"*&Mobile broadband",
                                                                                       "An&y plan",
                                                                                       "*Only the plans &ticked here",
                                                                                       "*Home",
                                                                                       "*Work",
                                                                                       "Not while &roaming",
                                                                                       "&Any connection",
                                                                                       "My own &button"};
}

void ConnectionPageTest::showsTheChoice()
{
    QFETCH(const ConnectionChoice, choice);
    show(choice);
    QTEST(lines(), "expected");
    QCOMPARE(m_told.size(), 0);
}

void ConnectionPageTest::tellsEachChoiceOnce()
{
    show(ConnectionChoice());
    click("&Any connection");
    QCOMPARE(m_told.size(), 1);
    QCOMPARE(m_told.last().kind, ConnectionKind::Any);
    click("My own &button");
    QCOMPARE(m_told.last().kind, ConnectionKind::Manual);
    click("&Mobile broadband");
    QCOMPARE(m_told.last().kind, ConnectionKind::Mobile);
    QVERIFY(!m_told.last().isNotWhileRoaming);
    click("Not while &roaming");
    QVERIFY(m_told.last().isNotWhileRoaming);
    click("Not while &roaming");
    QVERIFY(m_told.last() == ConnectionChoice());
    QCOMPARE(m_told.size(), 5);
    QCOMPARE(lines(), atFirst);
}

void ConnectionPageTest::tellsNothingThatIsTheSame()
{
    show(ConnectionChoice());
    click("&Mobile broadband");
    click("An&y plan");
    m_page->setPlans({{"1", "Home"}}, true);
    click("Only the plans &ticked here");
    QCOMPARE(m_told.size(), 0);
}

void ConnectionPageTest::keepsWhatBelongsToAnotherKind()
{
    ConnectionChoice choice = withPlans({{"1", "Home"}});
    choice.isNotWhileRoaming = true;
    show(choice);
    click("&Any connection");
    QCOMPARE(m_told.last().plans, choice.plans);
    QVERIFY(m_told.last().isNotWhileRoaming);
    click("&Mobile broadband");
    QVERIFY(m_told.last() == choice);
}

void ConnectionPageTest::arrowKeysChoose()
{
    show(ConnectionChoice());
    QRadioButton* const mobile = m_page->findChild<QRadioButton*>();
    mobile->setFocus();
    QTest::keyClick(mobile, Qt::Key_Down);
    QCOMPARE(m_told.size(), 1);
    QCOMPARE(m_told.last().kind, ConnectionKind::Any);
}

void ConnectionPageTest::asksForPlansEachTimeItShows()
{
    ConnectionPage page(ConnectionChoice(), false);
    const QSignalSpy wanted(&page, &ConnectionPage::plansWanted);
    QCOMPARE(wanted.size(), 0);
    page.show();
    QCOMPARE(wanted.size(), 1);
    page.hide();
    page.show();
    QCOMPARE(wanted.size(), 2);
}

void ConnectionPageTest::offersPlans()
{
    show(ConnectionChoice());
    m_page->setPlans({{"1", "Work"}, {"2", "Home"}}, true);
    QCOMPARE(lines().mid(1, 5),
             QStringList({"*An&y plan", "Only the plans &ticked here", "[Home]", "[Work]", "Not while &roaming"}));
    click("Only the plans &ticked here");
    QCOMPARE(lines().mid(1, 4), QStringList({"An&y plan", "*Only the plans &ticked here", "Home", "Work"}));
    click("Work");
    QCOMPARE(m_told.last().plans, Plans({{"1", "Work"}}));
    click("Home");
    QCOMPARE(m_told.last().plans, Plans({{"1", "Work"}, {"2", "Home"}}));
    click("An&y plan");
    QCOMPARE(m_told.last().plans, Plans());
    // A slip costs no ticks.
    click("Only the plans &ticked here");
    QCOMPARE(m_told.last().plans, Plans({{"1", "Work"}, {"2", "Home"}}));
    QCOMPARE(m_told.size(), 4);
}

void ConnectionPageTest::plansThatAreGoneStayUntilUnticked()
{
    show(withPlans({{"1", "Home"}, {"2", "Work"}}));
    m_page->setPlans({{"2", "Office"}, {"3", "Travel"}}, true);
    QCOMPARE(lines().mid(3, 3), QStringList({"*Home (not there now)", "*Office", "Travel"}));
    QCOMPARE(m_told.size(), 0);
    click("Home (not there now)");
    QCOMPARE(m_told.last().plans, Plans({{"2", "Office"}}));
    // It can be ticked again as long as the page is not shown anew.
    QCOMPARE(lines().at(3), "Home (not there now)");
    m_page->setPlans({{"2", "Office"}, {"3", "Travel"}}, true);
    QCOMPARE(lines().mid(3, 2), QStringList({"*Office", "Travel"}));
}

void ConnectionPageTest::plansThatNobodyNamesAreNotGone()
{
    show(withPlans({{"1", "Home"}}));
    QCOMPARE(lines().at(3), "*Home");
    m_page->setPlans({}, false);
    QCOMPARE(lines().at(3), "*Home");
    m_page->setPlans({}, true);
    QCOMPARE(lines().at(3), "*Home (not there now)");
}

void ConnectionPageTest::saysWhatItKnowsOfPlans()
{
    show(ConnectionChoice());
    QCOMPARE(texts(), QStringList());
    m_page->setPlans({}, false);
    QCOMPARE(texts(), QStringList("NetworkManager does not say which plans there are."));
    m_page->setPlans({}, true);
    QCOMPARE(texts(), QStringList("There are no mobile plans yet."));
    m_page->setPlans({{"1", "Home"}}, true);
    QCOMPARE(texts(), QStringList("While none is ticked, any plan counts."));
}

void ConnectionPageTest::namesOfPlansAreShownAsTheyStand()
{
    show(ConnectionChoice());
    m_page->setPlans({{"1", "R&D <b>\nnext"}, {"2", QString(100000, 'W')}, {"3", ""}}, true);
    const QStringList shown = lines().mid(3, 3);
    QCOMPARE(shown.at(0), "[3]");
    QCOMPARE(shown.at(1), "[R&&D <b> next]");
    QVERIFY2(shown.at(2).size() < 200, qPrintable(shown.at(2)));
    click("Only the plans &ticked here");
    click("R&&D <b> next");
    QCOMPARE(m_told.last().plans, Plans({{"1", "R&D <b>\nnext"}}));
}

void ConnectionPageTest::anyPlanWhileNoneIsTicked()
{
    show(withPlans({{"1", "Home"}}));
    click("Home");
    QCOMPARE(m_told.size(), 1);
    QVERIFY(m_told.last() == ConnectionChoice());
}

void ConnectionPageTest::saysThatTheCommandLineDecides()
{
    show(ConnectionChoice(), true);
    QCOMPARE(texts(), QStringList("In this run the command line says which connections count. What you choose here "
                                  "counts from the next start on."));
}

void ConnectionPageTest::fixedKindIsGreyedWithItsReason()
{
    const QString reason = "Fixed by the administrator of this computer";
    show(ConnectionChoice());
    QVERIFY(!texts().contains(reason));
    m_page->setKindFixed();
    QCOMPARE(lines(), QStringList({"[*&Mobile broadband]", "*An&y plan", "Only the plans &ticked here",
                                   "Not while &roaming", "[&Any connection]", "[My own &button]"}));
    QVERIFY(texts().contains(reason));
    // Which plans count is the user's choice all the same.
    click("Not while &roaming");
    QVERIFY(m_told.last().isNotWhileRoaming);
    const FakeTranslator other;
    QTRY_VERIFY(texts().contains("*" + reason));
    QCOMPARE(buttonsOf(*m_page).first()->accessibleDescription(), "*" + reason);
}

void ConnectionPageTest::keyboardGoesFromTopToBottom()
{
    show(withPlans({{"1", "Home"}}));
    m_page->setPlans({{"1", "Home"}, {"2", "Work"}}, true);
    lines();
    QList<QAbstractButton*> way;
    for (QWidget* widget = m_page->nextInFocusChain(); widget != m_page.get(); widget = widget->nextInFocusChain()) {
        if (QAbstractButton* const button = qobject_cast<QAbstractButton*>(widget))
            way.append(button);
    }
    QCOMPARE(way.size(), 8);
    QCOMPARE(way, buttonsOf(*m_page));
}

void ConnectionPageTest::followsTheLanguage()
{
    show(withPlans({{"1", "Home"}}), true);
    m_page->setPlans({}, true);
    QCOMPARE(m_page->caption(), "Connection");
    const FakeTranslator other;
    QTRY_COMPARE(lines().constFirst(), "**&Mobile broadband");
    const QStringList all = lines() + texts();
    for (const QString& text : all)
        QVERIFY2(text.contains(QRegularExpression("^\\*?\\[?\\*")), qPrintable(text));
    QVERIFY(all.contains("**Home (not there now)"));
    QCOMPARE(m_page->caption(), "*Connection");
}

REGISTER_TEST(ConnectionPageTest)
#include "ConnectionPageTest.moc"
