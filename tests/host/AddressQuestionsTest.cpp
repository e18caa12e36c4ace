// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Whether an unusual address may be opened: what is asked, how often, and what counts as an agreement.

#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>

#include "AddressQuestions.h"
#include "CommonUtils.h"
#include "MessageOnScreen.h"
#include "Test.h"

class AddressQuestionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsTheAddressAsItStands();
    void cutsOffAVeryLongAddress();
    void takesNothingButYesForAnAgreement_data();
    void takesNothingButYesForAnAgreement();
    void asksOnceWhileAQuestionIsOpen();
    void asksAgainAfterANo();
    void asksOneAfterTheOther();
    void letsTwoHundredWait();
    void canBeAnsweredOverAModalMessage();
    void goesOnWhenTheWindowBelowGoes();
    void endsWithTheProgram();
    void endsWithItsOwner();

private:
    static QPointer<QMessageBox> question() { return notice(); }
    QStringList agreed() const;

    std::unique_ptr<AddressQuestions> m_questions;
    std::unique_ptr<QSignalSpy> m_agreed;
};

void AddressQuestionsTest::init()
{
    m_questions = std::make_unique<AddressQuestions>();
    m_agreed = std::make_unique<QSignalSpy>(m_questions.get(), &AddressQuestions::agreed);
}

void AddressQuestionsTest::cleanup()
{
    m_questions.reset();
    m_agreed.reset();
    QCOMPARE(messageCount(), 0);
}

/** The addresses that were agreed to, in order. */
QStringList AddressQuestionsTest::agreed() const
{
    QStringList addresses;
    for (const QList<QVariant>& signal : *m_agreed)
        addresses.append(signal.at(0).toString());
    return addresses;
}

void AddressQuestionsTest::showsTheAddressAsItStands()
{
    QVERIFY(m_questions->ask("sms:<b>1</b>"));
    QVERIFY(question());
    QCOMPARE(question()->text(), "Open this address with the program for \"sms\" links?\n\nsms:<b>1</b>");
    QCOMPARE(question()->textFormat(), Qt::PlainText);
    QCOMPARE(question()->icon(), QMessageBox::Question);
    QCOMPARE(question()->windowTitle(), "Unusual address");
    QVERIFY(!question()->isModal());
    QCOMPARE(question()->detailedText(), QString());
    QCOMPARE(question()->standardButtons(), QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(question()->defaultButton(), question()->button(QMessageBox::No));
}

void AddressQuestionsTest::cutsOffAVeryLongAddress()
{
    const QString address = "sms:" + QString(5000, '1');
    m_questions->ask(address);
    QVERIFY(question()->text().size() < 300);
    QCOMPARE(question()->detailedText(), address);
    clickButton(question(), QMessageBox::Yes);
    QCOMPARE(agreed(), QStringList(address));
}

void AddressQuestionsTest::takesNothingButYesForAnAgreement_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("isAgreed");
    QTest::newRow("Yes") << 0 << int(QMessageBox::Yes) << true;
    QTest::newRow("No") << 0 << int(QMessageBox::No) << false;
    QTest::newRow("Return") << int(Qt::Key_Return) << 0 << false;
    QTest::newRow("Escape") << int(Qt::Key_Escape) << 0 << false;
    QTest::newRow("closed") << 0 << 0 << false;
}

void AddressQuestionsTest::takesNothingButYesForAnAgreement()
{
    QFETCH(int, key);
    QFETCH(int, button);
    QFETCH(bool, isAgreed);
    m_questions->ask("sms:1");
    const QPointer<QMessageBox> box = question();
    QVERIFY(QTest::qWaitForWindowExposed(box));
    if (key)
        QTest::keyClick(box, Qt::Key(key));
    else if (button)
        clickButton(box, QMessageBox::StandardButton(button));
    else
        box->close();
    QTRY_VERIFY(!box);
    QCOMPARE(agreed(), isAgreed ? QStringList("sms:1") : QStringList());
    QVERIFY(!question());
}

void AddressQuestionsTest::asksOnceWhileAQuestionIsOpen()
{
    QVERIFY(m_questions->ask("sms:1"));
    QVERIFY(m_questions->ask("sms:1"));
    QCOMPARE(messageCount(), 1);
    const QPointer<QMessageBox> box = question();
    clickButton(box, QMessageBox::No);
    QTRY_VERIFY(!box);
    QCoreApplication::processEvents();
    QVERIFY(!question());
}

void AddressQuestionsTest::asksAgainAfterANo()
{
    m_questions->ask("sms:1");
    clickButton(question(), QMessageBox::No);
    QTRY_VERIFY(!question());
    // What follows a closed question comes with a later event.
    const auto isAskedAgain = [this] {
        return m_questions->ask("sms:1") && question();
    };
    QTRY_VERIFY(isAskedAgain());
    clickButton(question(), QMessageBox::Yes);
    QCOMPARE(agreed(), QStringList("sms:1"));
}

void AddressQuestionsTest::asksOneAfterTheOther()
{
    const QStringList addresses{"sms:1", "geo:2", "sms:3"};
    for (const QString& address : addresses)
        QVERIFY(m_questions->ask(address));
    for (const QString& address : addresses) {
        QTRY_VERIFY(question() && question()->text().endsWith("\n\n" + address));
        QCOMPARE(messageCount(), 1);
        clickButton(question(), QMessageBox::Yes);
    }
    QTRY_COMPARE(agreed(), addresses);
    QTRY_COMPARE(messageCount(), 0);
}

void AddressQuestionsTest::letsTwoHundredWait()
{
    QVERIFY(m_questions->ask("sms:open"));
    for (int i = 0; i < 200; ++i)
        QVERIFY(m_questions->ask(QString("sms:%1").arg(i)));
    QVERIFY(!m_questions->ask("sms:200"));
    QVERIFY(m_questions->ask("sms:199")); // waits already
    QCOMPARE(messageCount(), 1);
}

void AddressQuestionsTest::canBeAnsweredOverAModalMessage()
{
    m_questions->ask("sms:1");
    bool isAnswered = false;
    whenMessageShows([&](QMessageBox* modal) {
        m_questions->ask("sms:1");
        clickButton(question(), QMessageBox::Yes);
        isAnswered = QTest::qWaitFor([this] { return !m_agreed->isEmpty(); });
        modal->close();
    });
    CommonUtils::ShowMessage(QMessageBox::Information, nullptr, QString(), QString(), "A", QString(), QString(), false,
                             Qt::WindowFlags(), nullptr, QString(), true);
    QVERIFY(isAnswered);
}

void AddressQuestionsTest::goesOnWhenTheWindowBelowGoes()
{
    auto below = std::make_unique<QWidget>();
    below->show();
    QVERIFY(QTest::qWaitForWindowActive(below.get()));
    m_questions->ask("sms:1");
    m_questions->ask("sms:2");
    QVERIFY(question());
    QCOMPARE(question()->parentWidget(), below.get());
    below.reset();
    QTRY_VERIFY(question());
    QVERIFY(question()->text().endsWith("sms:2"));
    QCOMPARE(agreed(), QStringList());
}

void AddressQuestionsTest::endsWithTheProgram()
{
    m_questions->ask("sms:1");
    m_questions->ask("sms:2");
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QApplication::exec();
    QVERIFY(!question());
    QCoreApplication::processEvents();
    QVERIFY(!question());
    QCOMPARE(agreed(), QStringList());
}

void AddressQuestionsTest::endsWithItsOwner()
{
    m_questions->ask("sms:1");
    QVERIFY(question());
    m_questions.reset();
    QVERIFY(!question());
}

REGISTER_TEST(AddressQuestionsTest)
#include "AddressQuestionsTest.moc"
