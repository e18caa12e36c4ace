// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The line that offers to put back what an edit took from a link.

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

#include "FakeTranslator.h"
#include "OfferLine.h"
#include "PutBackOffer.h"
#include "Test.h"

class PutBackOfferTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void saysWhatWent_data();
    void saysWhatWent();
    void keepsTheDirectionOfTheName();
    void isTakenOnce();
    void isDismissed();
    void isWithdrawn();
    void movesToWhereTheUserIs();
    void followsTheLanguage();

private:
    static QString shown(const OfferLine& line);
    static void press(const OfferLine& line, const QString& button);

    QScopedPointer<OfferLine> m_line;
    QScopedPointer<PutBackOffer> m_offer;
    const LinkItems::Fields m_link{{"name", "News"}};
    const LinkItems::Fields m_fields{{"startconnect", "1"}};
};

void PutBackOfferTest::init()
{
    m_offer.reset();
    m_line.reset(new OfferLine);
    m_offer.reset(new PutBackOffer);
    m_offer->setLine(m_line.data());
}

/** What a line says; empty where it is hidden. */
QString PutBackOfferTest::shown(const OfferLine& line)
{
    return line.isVisible() ? line.findChild<QLabel*>()->text() : QString();
}

void PutBackOfferTest::press(const OfferLine& line, const QString& button)
{
    const QList<QPushButton*> buttons = line.findChildren<QPushButton*>();
    for (QPushButton* found : buttons) {
        if (found->text().remove('&') == button)
            return found->click();
    }
    QFAIL("no such button");
}

void PutBackOfferTest::saysWhatWent_data()
{
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<QString>("text");
    QTest::newRow("connect") << QStringList{"startconnect"} << "\"News\" no longer opens when connected.";
    QTest::newRow("start") << QStringList{"startmobile"} << "\"News\" no longer opens when Vellum Connect starts.";
    QTest::newRow("both") << QStringList{"startconnect", "startmobile"} << "\"News\" no longer opens by itself.";
    QTest::newRow("recipient") << QStringList{"url"} << "\"News\" no longer has a recipient.";
    QTest::newRow("mark and recipient")
        << QStringList{"url", "startmobile"}
        << "\"News\" no longer opens when Vellum Connect starts. \"News\" no longer has a recipient.";
}

void PutBackOfferTest::saysWhatWent()
{
    QFETCH(QStringList, fields);
    LinkItems::Fields dropped;
    for (const QString& field : fields)
        dropped.insert(field, "x");
    QVERIFY(!m_line->isVisible());
    m_offer->offer(m_link, dropped);
    QTEST(shown(*m_line), "text");
}

void PutBackOfferTest::keepsTheDirectionOfTheName()
{
    const QString arabic = codePoint(0x0627);
    m_offer->offer({{"name", arabic}}, m_fields);
    QVERIFY(shown(*m_line).startsWith("\"" + codePoint(0x2068) + arabic + codePoint(0x2069) + "\""));
}

void PutBackOfferTest::isTakenOnce()
{
    const QSignalSpy accepted(m_offer.data(), &PutBackOffer::accepted);
    m_offer->offer(m_link, m_fields);
    press(*m_line, "Put Back");
    QCOMPARE(accepted.size(), 1);
    QVERIFY(!m_line->isVisible());
}

void PutBackOfferTest::isDismissed()
{
    const QSignalSpy accepted(m_offer.data(), &PutBackOffer::accepted);
    m_offer->offer(m_link, m_fields);
    press(*m_line, "Leave As It Is");
    QCOMPARE(accepted.size(), 0);
    QVERIFY(!m_line->isVisible());
}

void PutBackOfferTest::isWithdrawn()
{
    m_offer->offer(m_link, m_fields);
    m_offer->withdraw();
    QVERIFY(!m_line->isVisible());
    // Nor does it come back elsewhere.
    OfferLine other;
    m_offer->setLine(&other);
    QVERIFY(!other.isVisible());
}

void PutBackOfferTest::movesToWhereTheUserIs()
{
    const QSignalSpy accepted(m_offer.data(), &PutBackOffer::accepted);
    m_offer->offer(m_link, m_fields);
    QScopedPointer<OfferLine> other(new OfferLine);
    m_offer->setLine(other.data());
    QVERIFY(!m_line->isVisible());
    QCOMPARE(shown(*other), "\"News\" no longer opens when connected.");
    // The window that had it closes.
    other.reset();
    m_offer->setLine(m_line.data());
    QVERIFY(m_line->isVisible());
    press(*m_line, "Put Back");
    QCOMPARE(accepted.size(), 1);
    m_offer->setLine(nullptr);
    m_offer->offer(m_link, m_fields);
    QVERIFY(!m_line->isVisible());
}

void PutBackOfferTest::followsTheLanguage()
{
    const FakeTranslator translator;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    const QList<QPushButton*> buttons = m_line->findChildren<QPushButton*>();
    QCOMPARE(buttons.size(), 2);
    for (const QPushButton* button : buttons)
        QVERIFY(button->text() != "&Put Back" && button->text() != "Leave &As It Is");
}

REGISTER_TEST(PutBackOfferTest)
#include "PutBackOfferTest.moc"
