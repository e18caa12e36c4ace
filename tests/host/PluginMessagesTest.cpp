// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the user is told and asked of plug-ins that were not loaded.

#include <QAbstractButton>
#include <QMainWindow>
#include <QSignalSpy>

#include <algorithm>

#include "MessageOnScreen.h"
#include "PluginMessages.h"
#include "Test.h"

class PluginMessagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void names_data();
    void names();
    void namesAllInOneNotice();
    void saysNothingWhereAllIsWell();
    void asks_data();
    void asks();
    void asksAboutAllAtOnce();
    void asksOnce();
    void hearsTheAnswer_data();
    void hearsTheAnswer();

private:
    QScopedPointer<QMainWindow> m_window;
    QScopedPointer<PluginMessages> m_messages;
};

static LeftOutPlugins::Entry entryOf(const QString& file, int call, bool isHung)
{
    LeftOutPlugins::Entry entry;
    entry.call.file.path = file;
    entry.call.call = PluginGate::Call(call);
    entry.call.isHung = isHung;
    return entry;
}

void PluginMessagesTest::init()
{
    m_window.reset(new QMainWindow);
    m_window->show();
    m_messages.reset(new PluginMessages(m_window.data()));
}

void PluginMessagesTest::cleanup()
{
    m_messages.reset();
    m_window.reset();
    delete notice();
}

void PluginMessagesTest::names_data()
{
    QTest::addColumn<int>("problem");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("text");
    const QString file = "/plugins/A/libA.so";
    const QString not_ = "This was not loaded, because ";
    QTest::newRow("owner") << int(Gatekeeper::ForeignOwner) << file << "/plugins"
                           << not_ + "another user owns /plugins:\n\n" + file;
    QTest::newRow("others") << int(Gatekeeper::OthersWrite) << file << file
                            << not_ + "other users may change " + file + ":\n\n" + file;
    QTest::newRow("not known") << int(Gatekeeper::NotKnown) << file << "/p"
                               << not_ + "it is not known who may change /p:\n\n" + file;
    QTest::newRow("quick links") << int(Gatekeeper::FalseLinks) << file << "/p"
                                 << not_ + "it passes itself off as the quick links of this program:\n\n" + file;
    QTest::newRow("line feed") << int(Gatekeeper::ForeignOwner) << "/A\nB"
                               << "/A\nC" << not_ + "another user owns /A C:\n\n/A B";
}

void PluginMessagesTest::names()
{
    QFETCH(int, problem);
    QFETCH(QString, file);
    QFETCH(QString, place);
    PluginMessages::tell({{file, Gatekeeper::Problem(problem), place}});
    QVERIFY(notice());
    QTEST(notice()->text(), "text");
    QCOMPARE(notice()->windowTitle(), "Plug-ins");
}

void PluginMessagesTest::namesAllInOneNotice()
{
    PluginMessages::tell({{"/p/A", Gatekeeper::OthersWrite, "/p"},
                          {"/p/B", Gatekeeper::OthersWrite, "/p"},
                          {"/p/C", Gatekeeper::FalseLinks, "/p"}});
    QCOMPARE(messageCount(), 1);
    QCOMPARE(notice()->text(), "This was not loaded, because other users may change /p:\n• /p/A\n• /p/B\n"
                               "This was not loaded, because it passes itself off as the quick links of this "
                               "program:\n• /p/C");
}

void PluginMessagesTest::saysNothingWhereAllIsWell()
{
    PluginMessages::tell({});
    m_messages->ask({});
    QCoreApplication::processEvents();
    QCOMPARE(messageCount(), 0);
}

void PluginMessagesTest::asks_data()
{
    QTest::addColumn<int>("call");
    QTest::addColumn<bool>("isHung");
    QTest::addColumn<QString>("text");
    const QString start = "The plug-in A did not finish starting last time (it crashed or hung), and was left out.";
    const QString end = "The plug-in A did not finish ending last time (it crashed or hung), and was left out.";
    const QString hungStart = "The plug-in A did not answer while it was starting, and was left out.";
    const QString hungEnd = "The plug-in A did not answer while it was ending, and was left out.";
    QTest::newRow("constructor") << int(PluginGate::Loading) << false << start;
    QTest::newRow("constructor, hung") << int(PluginGate::Loading) << true << hungStart;
    QTest::newRow("Init") << int(PluginGate::Init) << false << start;
    QTest::newRow("Init, hung") << int(PluginGate::Init) << true << hungStart;
    QTest::newRow("OnDestroy") << int(PluginGate::OnDestroy) << false << end;
    QTest::newRow("OnDestroy, hung") << int(PluginGate::OnDestroy) << true << hungEnd;
    QTest::newRow("destructor") << int(PluginGate::Unloading) << false << end;
    QTest::newRow("destructor, hung") << int(PluginGate::Unloading) << true << hungEnd;
}

void PluginMessagesTest::asks()
{
    QFETCH(int, call);
    QFETCH(bool, isHung);
    m_messages->ask({entryOf("/plugins/A/libA.so", call, isHung)});
    QVERIFY(notice());
    QTEST(notice()->text(), "text");
    QCOMPARE(notice()->textFormat(), Qt::PlainText);
    QCOMPARE(notice()->parentWidget(), m_window.data());
}

void PluginMessagesTest::asksAboutAllAtOnce()
{
    m_messages->ask({entryOf("/libA.so", 0, false), entryOf("/libB\nb.so", 2, true)});
    QCOMPARE(messageCount(), 1);
    QCOMPARE(notice()->text(), "The plug-in A did not finish starting last time (it crashed or hung), and was left "
                               "out.\n\nThe plug-in B b did not answer while it was ending, and was left out.");
}

void PluginMessagesTest::asksOnce()
{
    const QSignalSpy decided(m_messages.data(), &PluginMessages::decided);
    m_messages->ask({entryOf("/libA.so", 0, false)});
    m_messages->ask({entryOf("/libA.so", 0, false)});
    QCOMPARE(messageCount(), 1);
    QVERIFY(decided.isEmpty());
}

void PluginMessagesTest::hearsTheAnswer_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("isLoadedAgain");
    QTest::newRow("load") << "Load at the Next Start" << true;
    QTest::newRow("leave out") << "Leave Out" << false;
    QTest::newRow("Escape") << "Escape" << false;
}

void PluginMessagesTest::hearsTheAnswer()
{
    QFETCH(QString, button);
    const QSignalSpy decided(m_messages.data(), &PluginMessages::decided);
    m_messages->ask({entryOf("/libA.so", 0, false)});
    QVERIFY(QTest::qWaitForWindowExposed(notice()));
    const QList<QAbstractButton*> buttons = notice()->buttons();
    const auto isIt = [&button](QAbstractButton* candidate) {
        return candidate->text().remove('&') == button;
    };
    const auto found = std::find_if(buttons.begin(), buttons.end(), isIt);
    if (found != buttons.end())
        clickThroughWindow(*found);
    else
        QTest::keyClick(notice(), Qt::Key_Escape);
    QTRY_COMPARE(decided.size(), 1);
    QTEST(decided.constFirst().constFirst().toBool(), "isLoadedAgain");
    QCOMPARE(messageCount(), 0);
}

REGISTER_TEST(PluginMessagesTest)
#include "PluginMessagesTest.moc"
