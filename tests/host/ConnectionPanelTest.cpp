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
    void hasARowForAllThatIsKnown_data();
    void hasARowForAllThatIsKnown();
    void saysSinceWhen();
    void showsANameAsItStands();
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
    QTest::addColumn<bool>("isUp");
    QTest::addColumn<bool>("isComingUp");
    QTest::addColumn<int>("reach");
    QTest::addColumn<QStringList>("expected");
    const QString connected = "Connected";
    const QStringList since{"Since:", "before this program started"};
    QTest::newRow("down") << false << false << int(Reach::Unknown)
                          << QStringList{"Not connected", "Waiting for a connection."};
    QTest::newRow("coming up") << false << true << int(Reach::Unknown)
                               << QStringList(QString::fromUtf8("Connecting\xe2\x80\xa6"));
    QTest::newRow("up") << true << false << int(Reach::Full) << QStringList(connected) + since;
    QTest::newRow("nobody looked") << true << false << int(Reach::Unknown) << QStringList(connected) + since;
    QTest::newRow("portal") << true << false << int(Reach::Portal)
                            << QStringList{connected, "This network asks for a login first."} + since;
    QTest::newRow("limited") << true << false << int(Reach::Limited)
                             << QStringList{connected, "The Internet is out of reach."} + since;
}

void ConnectionPanelTest::saysHowItIs()
{
    QFETCH(bool, isUp);
    QFETCH(bool, isComingUp);
    QFETCH(int, reach);
    ConnectionState state;
    state.isUp = isUp;
    state.isComingUp = isComingUp;
    state.reach = Reach(reach);
    state.id = isUp ? "a" : QString();
    m_source->become(state);
    show(false);
    QTEST(texts(), "expected");
}

void ConnectionPanelTest::saysWhatItWaitsFor_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("isManual");
    QTest::addColumn<QString>("hint");
    QTest::newRow("mobile") << int(ConnectionKind::Mobile) << false << "Waiting for mobile broadband.";
    QTest::newRow("any") << int(ConnectionKind::Any) << false << "Waiting for a connection.";
    QTest::newRow("manual") << int(ConnectionKind::Manual) << true << "Press Connect when your connection is up.";
    QTest::newRow("no service for mobile")
        << int(ConnectionKind::Mobile) << true << "Press Connect when your connection is up.";
}

void ConnectionPanelTest::saysWhatItWaitsFor()
{
    QFETCH(int, kind);
    QFETCH(bool, isManual);
    QFETCH(QString, hint);
    show(isManual, ConnectionKind(kind));
    QCOMPARE(texts(), QStringList({"Not connected", hint}));
}

void ConnectionPanelTest::hasARowForAllThatIsKnown_data()
{
    QTest::addColumn<QStringList>("known"); // name, device, operator
    QTest::addColumn<QStringList>("expected");
    const QString name = "Home", device = "wwan0", mobile = "Example";
    QTest::newRow("all") << QStringList{name, device, mobile}
                         << QStringList{"Connection:", name, "Device:", device, "Operator:", mobile, "Since:"};
    QTest::newRow("name") << QStringList{name, QString(), QString()} << QStringList{"Connection:", name, "Since:"};
    QTest::newRow("device") << QStringList{QString(), device, QString()} << QStringList{"Device:", device, "Since:"};
    QTest::newRow("operator") << QStringList{QString(), QString(), mobile}
                              << QStringList{"Operator:", mobile, "Since:"};
}

void ConnectionPanelTest::hasARowForAllThatIsKnown()
{
    QFETCH(QStringList, known);
    QFETCH(QStringList, expected);
    ConnectionState state;
    state.isUp = true;
    state.id = "a";
    state.reach = Reach::Full;
    state.name = known.at(0);
    state.device = known.at(1);
    state.operatorName = known.at(2);
    show(false);
    m_source->become(state);
    QStringList rows = texts().mid(1);
    QVERIFY(!rows.isEmpty());
    rows.removeLast();
    QCOMPARE(rows, expected);
    // A screen reader says the caption with the value.
    for (int i = 0; i + 1 < rows.size(); i += 2) {
        QStringList spoken;
        const QList<QLabel*> labels = m_panel->findChildren<QLabel*>();
        for (const QLabel* label : labels)
            spoken.append(label->accessibleName());
        QVERIFY2(spoken.contains(rows.at(i) + ' ' + rows.at(i + 1)), qPrintable(rows.at(i)));
    }
    m_source->become(QString());
    QCOMPARE(texts(), QStringList({"Not connected", "Waiting for a connection."}));
}

void ConnectionPanelTest::saysSinceWhen()
{
    show(false);
    m_source->become("a");
    const QTime time = m_monitor->upSince().time();
    QVERIFY(time.isValid());
    QCOMPARE(texts(), QStringList({"Connected", "Since:", QLocale().toString(time, QLocale::ShortFormat)}));
}

void ConnectionPanelTest::showsANameAsItStands()
{
    show(false);
    ConnectionState state;
    state.isUp = true;
    state.id = "a";
    state.name = "<b>Home</b>";
    m_source->become(state);
    const QList<QLabel*> labels = m_panel->findChildren<QLabel*>();
    int found = 0;
    for (const QLabel* label : labels) {
        if (label->text() != state.name)
            continue;
        ++found;
        QCOMPARE(label->textFormat(), Qt::PlainText);
    }
    QCOMPARE(found, 1);
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
    QTest::addColumn<bool>("isUp");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("summary");
    QTest::newRow("up with name") << true << "Home"
                                  << "Connected: Home";
    QTest::newRow("up without name") << true << QString() << "Connected";
    QTest::newRow("down") << false << QString() << "Not connected";
}

void ConnectionPanelTest::summaryIsOneLine()
{
    QFETCH(bool, isUp);
    QFETCH(QString, name);
    QFETCH(QString, summary);
    ConnectionState state;
    state.isUp = isUp;
    state.id = isUp ? "a" : QString();
    state.name = name;
    m_source->become(state);
    show(false);
    QCOMPARE(ConnectionTexts(*m_monitor, ConnectionKind::Any).summary(), summary);
}

void ConnectionPanelTest::saysThatAServiceIsMissing_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("isBuiltIn");
    QTest::addColumn<bool>("isAvailable");
    QTest::addColumn<QString>("text");
    QTest::newRow("there") << int(ConnectionKind::Any) << true << true << QString();
    QTest::newRow("gone") << int(ConnectionKind::Any) << true << false
                          << QStringLiteral("NetworkManager is not running");
    QTest::newRow("not built in") << int(ConnectionKind::Mobile) << false << false
                                  << QStringLiteral("Built without NetworkManager");
    QTest::newRow("not asked for") << int(ConnectionKind::Manual) << false << false << QString();
}

void ConnectionPanelTest::saysThatAServiceIsMissing()
{
    QFETCH(int, kind);
    QFETCH(bool, isBuiltIn);
    QFETCH(bool, isAvailable);
    QFETCH(QString, text);
    show(!isBuiltIn, ConnectionKind(kind));
    if (isBuiltIn)
        m_source->setAvailable(isAvailable);
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
