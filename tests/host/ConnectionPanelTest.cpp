// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the window says of the connection.

#include <QLabel>
#include <QLayout>
#include <QLocale>
#include <QPushButton>

#include <algorithm>

#include "ConnectionMonitor.h"
#include "ConnectionPanel.h"
#include "FakeSource.h"
#include "FakeTranslator.h"
#include "Test.h"

using Reach = ConnectionState::Reach;

static const QStringList waiting = {"Not connected", "Waiting for a connection."};

static ConnectionState up(Reach reach = Reach::Full, const QString& name = QString())
{
    ConnectionState state;
    state.isUp = true;
    state.id = "a";
    state.reach = reach;
    state.name = name;
    return state;
}

static ConnectionState comingUp()
{
    ConnectionState state;
    state.isComingUp = true;
    return state;
}
Q_DECLARE_METATYPE(ConnectionState)

class ConnectionPanelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void saysHowItIs_data();
    void saysHowItIs();
    void saysWhatItWaitsFor_data();
    void saysWhatItWaitsFor();
    void saysWhatThereIsInItsPlace_data();
    void saysWhatThereIsInItsPlace();
    void followsTheKind();
    void hasARowForAllThatIsKnown_data();
    void hasARowForAllThatIsKnown();
    void saysSinceWhen();
    void saysTheDayOfAFormerDay();
    void showsANameAsItStands();
    void hugeNamesStayInTheirPlace();
    void noButtonBeforeTheServiceIsKnown();
    void buttonIsThereWhereOnlyTheUserKnows_data();
    void buttonIsThereWhereOnlyTheUserKnows();
    void buttonTellsTheMonitor();
    void summaryIsOneLine_data();
    void summaryIsOneLine();
    void saysThatAServiceIsMissing_data();
    void saysThatAServiceIsMissing();
    void followsTheLanguage();

private:
    void show(bool isManual, ConnectionKind kind = ConnectionKind::Any);
    QStringList texts() const;
    QPushButton* button() const { return m_panel->findChild<QPushButton*>(); }

    std::unique_ptr<FakeSource> m_made;
    FakeSource* m_source = nullptr; ///< the monitor's from show() on
    std::unique_ptr<ConnectionMonitor> m_monitor;
    std::unique_ptr<ConnectionPanel> m_panel;
};

void ConnectionPanelTest::init()
{
    m_made = std::make_unique<FakeSource>();
    m_source = m_made.get();
    m_monitor = std::make_unique<ConnectionMonitor>();
}

void ConnectionPanelTest::cleanup()
{
    m_panel.reset();
    m_monitor.reset();
}

void ConnectionPanelTest::show(bool isManual, ConnectionKind kind)
{
    m_monitor->start(isManual ? nullptr : std::move(m_made));
    m_panel = std::make_unique<ConnectionPanel>(*m_monitor, kind);
    m_panel->resize(400, 300);
    m_panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_panel.get()));
}

/** What the user reads, line by line from the left. */
QStringList ConnectionPanelTest::texts() const
{
    m_panel->layout()->activate();
    QList<QLabel*> labels = m_panel->findChildren<QLabel*>();
    std::sort(labels.begin(), labels.end(),
              [](const QLabel* a, const QLabel* b) { return a->y() != b->y() ? a->y() < b->y() : a->x() < b->x(); });
    QStringList texts;
    for (const QLabel* label : qAsConst(labels)) {
        if (label->isVisible())
            texts.append(label->text());
    }
    return texts;
}

void ConnectionPanelTest::saysHowItIs_data()
{
    QTest::addColumn<ConnectionState>("state");
    QTest::addColumn<QStringList>("expected");
    const QStringList connected("Connected"), since{"Since:", "before this program started"};
    const QString login = "This network asks for a login first.", away = "The Internet is out of reach.";
    QTest::newRow("down") << ConnectionState() << waiting;
    QTest::newRow("coming up") << comingUp() << QStringList(QString::fromUtf8("Connecting\xe2\x80\xa6"));
    QTest::newRow("up") << up() << connected + since;
    QTest::newRow("nobody looked") << up(Reach::Unknown) << connected + since;
    QTest::newRow("portal") << up(Reach::Portal) << (QStringList(connected) << login) + since;
    QTest::newRow("limited") << up(Reach::Limited) << (QStringList(connected) << away) + since;
}

void ConnectionPanelTest::saysHowItIs()
{
    QFETCH(ConnectionState, state);
    m_source->become(state);
    show(false);
    QTEST(texts(), "expected");
}

void ConnectionPanelTest::saysWhatItWaitsFor_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("isManual");
    QTest::addColumn<QString>("hint");
    const QString press = "Press Connect when your connection is up.";
    QTest::newRow("mobile") << int(ConnectionKind::Mobile) << false << "Waiting for mobile broadband.";
    QTest::newRow("any") << int(ConnectionKind::Any) << false << waiting.last();
    QTest::newRow("manual") << int(ConnectionKind::Manual) << true << press;
    QTest::newRow("no service for mobile") << int(ConnectionKind::Mobile) << true << press;
}

void ConnectionPanelTest::saysWhatItWaitsFor()
{
    QFETCH(int, kind);
    QFETCH(bool, isManual);
    QFETCH(QString, hint);
    show(isManual, ConnectionKind(kind));
    QCOMPARE(texts(), QStringList({"Not connected", hint}));
}

void ConnectionPanelTest::saysWhatThereIsInItsPlace_data()
{
    QTest::addColumn<int>("inItsPlace");
    QTest::addColumn<QString>("hint");
    const auto row = [](const char* name, ConnectionState::InItsPlace inItsPlace, const char* hint) {
        QTest::newRow(name) << int(inItsPlace) << QString(hint);
    };
    using InItsPlace = ConnectionState::InItsPlace;
    row("nothing", InItsPlace::Nothing, "Waiting for mobile broadband.");
    row("cable", InItsPlace::Ethernet, "Online by Ethernet; waiting for mobile broadband.");
    row("Wi-Fi", InItsPlace::Wireless, "Online by Wi-Fi; waiting for mobile broadband.");
    row("another", InItsPlace::Other, "Online by another connection; waiting for mobile broadband.");
    row("roaming", InItsPlace::Roaming, "Roaming; waiting for your own network.");
}

void ConnectionPanelTest::saysWhatThereIsInItsPlace()
{
    QFETCH(int, inItsPlace);
    QFETCH(QString, hint);
    show(false, ConnectionKind::Mobile);
    ConnectionState state;
    state.inItsPlace = ConnectionState::InItsPlace(inItsPlace);
    m_source->become(state);
    QCOMPARE(texts(), QStringList({"Not connected", hint}));
    state.isComingUp = true;
    m_source->become(state);
    QCOMPARE(texts().size(), 1);
    // Once the user tells, the service has nothing to say.
    m_source->setAvailable(false);
    QCOMPARE(texts().last(), "Press Connect when your connection is up.");
}

void ConnectionPanelTest::followsTheKind()
{
    show(false, ConnectionKind::Mobile);
    QCOMPARE(texts().last(), "Waiting for mobile broadband.");
    m_panel->setKind(ConnectionKind::Any);
    QCOMPARE(texts(), waiting);
    ConnectionTexts texts(*m_monitor, ConnectionKind::Any);
    texts.setKind(ConnectionKind::Mobile);
    QCOMPARE(texts.hint(), "Waiting for mobile broadband.");
    // Nobody knows since when it is up.
    auto made = std::make_unique<FakeSource>();
    made->become("b");
    m_monitor->start(std::move(made));
    QCOMPARE(this->texts(), QStringList("Connected"));
}

void ConnectionPanelTest::hasARowForAllThatIsKnown_data()
{
    QTest::addColumn<QStringList>("known"); // name, device, operator
    QTest::addColumn<QStringList>("expected");
    const QString none, name = "Home", device = "wwan0", mobile = "Example";
    QTest::newRow("all") << QStringList{name, device, mobile}
                         << QStringList{"Connection:", name, "Device:", device, "Operator:", mobile};
    QTest::newRow("name") << QStringList{name, none, none} << QStringList{"Connection:", name};
    QTest::newRow("device") << QStringList{none, device, none} << QStringList{"Device:", device};
    QTest::newRow("operator") << QStringList{none, none, mobile} << QStringList{"Operator:", mobile};
}

void ConnectionPanelTest::hasARowForAllThatIsKnown()
{
    QFETCH(QStringList, known);
    QFETCH(QStringList, expected);
    ConnectionState state = up(Reach::Full, known.at(0));
    state.device = known.at(1);
    state.operatorName = known.at(2);
    show(false);
    m_source->become(state);
    const QStringList rows = texts();
    QCOMPARE(rows.mid(0, rows.size() - 1), QStringList("Connected") + expected + QStringList("Since:"));
    QStringList spoken;
    for (const QLabel* label : m_panel->findChildren<QLabel*>())
        spoken.append(label->accessibleName());
    // A screen reader says the caption with the value.
    for (int i = 1; i < rows.size(); i += 2)
        QVERIFY2(spoken.contains(rows.at(i) + ' ' + rows.at(i + 1)), qPrintable(rows.at(i)));
    m_source->become(QString());
    QCOMPARE(texts(), waiting);
}

void ConnectionPanelTest::saysSinceWhen()
{
    show(false);
    m_source->become("a");
    const QTime time = m_monitor->upSince().time();
    QVERIFY(time.isValid());
    QCOMPARE(texts(), QStringList({"Connected", "Since:", QLocale().toString(time, QLocale::ShortFormat)}));
}

void ConnectionPanelTest::saysTheDayOfAFormerDay()
{
    show(false);
    m_source->become("a");
    const QDateTime time = m_monitor->upSince();
    const ConnectionTexts texts(*m_monitor, ConnectionKind::Any);
    QCOMPARE(texts.since(time.date()), QLocale().toString(time.time(), QLocale::ShortFormat));
    QCOMPARE(texts.since(time.date().addDays(1)), QLocale().toString(time, QLocale::ShortFormat));
}

void ConnectionPanelTest::showsANameAsItStands()
{
    show(false);
    const QString name = "<b>Home</b>";
    m_source->become(up(Reach::Full, name));
    int found = 0;
    for (const QLabel* label : m_panel->findChildren<QLabel*>()) {
        if (label->text() != name)
            continue;
        ++found;
        QCOMPARE(label->textFormat(), Qt::PlainText);
    }
    QCOMPARE(found, 1);
}

void ConnectionPanelTest::hugeNamesStayInTheirPlace()
{
    show(false);
    m_source->become(up(Reach::Full, "Home"));
    const int width = m_panel->minimumSizeHint().width();
    ConnectionState huge = up(Reach::Full, QString(100000, 'W') + "\nnext line");
    huge.device = QString(100000, 'W');
    huge.operatorName = QString("a\nb\u202ec");
    m_source->become(huge);
    QVERIFY2(m_panel->minimumSizeHint().width() <= width, qPrintable(QString::number(width)));
    const QStringList shown = texts();
    for (const QString& text : shown)
        QVERIFY2(text.size() < 200 && !text.contains('\n'), qPrintable(text));
    QVERIFY(shown.contains("a b c"));
    QVERIFY(ConnectionTexts(*m_monitor, ConnectionKind::Any).summary().size() < 200);
}

void ConnectionPanelTest::noButtonBeforeTheServiceIsKnown()
{
    m_source->known = false;
    show(false, ConnectionKind::Mobile);
    QVERIFY(!button()->isVisible());
    QCOMPARE(texts(), QStringList({"Not connected", "Waiting for mobile broadband."}));
    m_source->known = true;
    m_source->setAvailable(false);
    QVERIFY(button()->isVisible());
}

void ConnectionPanelTest::buttonIsThereWhereOnlyTheUserKnows_data()
{
    QTest::addColumn<bool>("isManual");
    QTest::addColumn<bool>("isAvailable");
    QTest::addColumn<bool>("isThere");
    QTest::newRow("service") << false << true << false;
    QTest::newRow("service is gone") << false << false << true;
    QTest::newRow("no service wanted") << true << false << true;
}

void ConnectionPanelTest::buttonIsThereWhereOnlyTheUserKnows()
{
    QFETCH(bool, isManual);
    QFETCH(bool, isAvailable);
    QFETCH(bool, isThere);
    show(isManual);
    if (!isManual)
        m_source->setAvailable(isAvailable);
    QCOMPARE(button()->isVisible(), isThere);
}

void ConnectionPanelTest::buttonTellsTheMonitor()
{
    show(true);
    QCOMPARE(button()->text(), "Co&nnect");
    QTest::mouseClick(button(), Qt::LeftButton);
    QVERIFY(m_monitor->state().isUp);
    QCOMPARE(button()->text(), "&Disconnect");
    QCOMPARE(texts().constFirst(), "Connected");
    QTest::mouseClick(button(), Qt::LeftButton);
    QVERIFY(!m_monitor->state().isUp);
    QCOMPARE(button()->text(), "Co&nnect");
}

void ConnectionPanelTest::summaryIsOneLine_data()
{
    QTest::addColumn<ConnectionState>("state");
    QTest::addColumn<QString>("summary");
    QTest::newRow("up with name") << up(Reach::Full, "Home") << "Connected: Home";
    const QString arabic = codePoint(0x0627);
    QTest::newRow("up with name from right to left")
        << up(Reach::Full, arabic) << "Connected: " + codePoint(0x2068) + arabic + codePoint(0x2069);
    QTest::newRow("up without name") << up() << "Connected";
    QTest::newRow("down") << ConnectionState() << "Not connected";
}

void ConnectionPanelTest::summaryIsOneLine()
{
    QFETCH(ConnectionState, state);
    m_source->become(state);
    show(false);
    QTEST(ConnectionTexts(*m_monitor, ConnectionKind::Any).summary(), "summary");
}

void ConnectionPanelTest::saysThatAServiceIsMissing_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("isKnown");
    QTest::addColumn<bool>("isAvailable");
    QTest::addColumn<QString>("text");
    QTest::newRow("there") << int(ConnectionKind::Any) << true << true << QString();
    QTest::newRow("gone") << int(ConnectionKind::Any) << true << false << "NetworkManager is not running";
    QTest::newRow("not known yet") << int(ConnectionKind::Mobile) << false << false << QString();
    QTest::newRow("not asked for") << int(ConnectionKind::Manual) << true << false << QString();
}

void ConnectionPanelTest::saysThatAServiceIsMissing()
{
    QFETCH(int, kind);
    QFETCH(bool, isKnown);
    QFETCH(bool, isAvailable);
    QFETCH(QString, text);
    m_source->known = isKnown;
    m_source->available = isAvailable;
    show(ConnectionKind(kind) == ConnectionKind::Manual, ConnectionKind(kind));
    QCOMPARE(ConnectionTexts(*m_monitor, ConnectionKind(kind)).missingService(), text);
}

void ConnectionPanelTest::followsTheLanguage()
{
    show(true);
    const FakeTranslator other;
    QTRY_COMPARE(texts(), QStringList({"*Not connected", "*Press Connect when your connection is up."}));
    QCOMPARE(button()->text(), "*Co&nnect");
}

REGISTER_TEST(ConnectionPanelTest)
#include "ConnectionPanelTest.moc"
