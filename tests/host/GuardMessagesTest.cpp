// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the user is told and asked of the file with the links.

#include <QAbstractButton>
#include <QMainWindow>
#include <QMessageBox>
#include <QSignalSpy>

#include "GuardMessages.h"
#include "Test.h"

using Event = LinkGuard::Event;

class GuardMessagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void tells_data();
    void tells();
    void saysNothingWhereAllIsWell_data();
    void saysNothingWhereAllIsWell();
    void tellsThatLinksWereNotPrepared();
    void tellsWhyASaveFailed_data();
    void tellsWhyASaveFailed();
    void offersToTryAgain_data();
    void offersToTryAgain();
    void offersToBringBack_data();
    void offersToBringBack();
    void asksWhoseLinks_data();
    void asksWhoseLinks();
    void asksOneQuestionAtATime();
    void outlivesTheModalWindowAbove();
    void keepsTheOrderOfAPath();

private:
    static QList<QMessageBox*> boxes();
    QString shownText() const;
    static void press(const QString& button);

    QScopedPointer<QMainWindow> m_window;
    QScopedPointer<GuardMessages> m_messages;
};

void GuardMessagesTest::init()
{
    m_window.reset(new QMainWindow);
    m_window->show();
    m_messages.reset(new GuardMessages(m_window.data()));
}

void GuardMessagesTest::cleanup()
{
    m_messages.reset();
    m_window.reset();
}

QList<QMessageBox*> GuardMessagesTest::boxes()
{
    QList<QMessageBox*> shown;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget* widget : all) {
        QMessageBox* const box = qobject_cast<QMessageBox*>(widget);
        if (box && box->isVisible())
            shown.append(box);
    }
    return shown;
}

/** The text of the one message that is on the screen. */
QString GuardMessagesTest::shownText() const
{
    return QTest::qWaitFor([] { return boxes().size() == 1; }) ? boxes().constFirst()->text() : "no message";
}

void GuardMessagesTest::press(const QString& button)
{
    QTRY_COMPARE(boxes().size(), 1);
    QMessageBox* const box = boxes().constFirst();
    const QList<QAbstractButton*> buttons = box->buttons();
    for (QAbstractButton* candidate : buttons) {
        if (candidate->text().remove('&') == button)
            return QTest::mouseClick(candidate, Qt::LeftButton);
    }
    if (button == "Escape")
        return QTest::keyClick(box, Qt::Key_Escape);
    QFAIL(qPrintable("no button " + button));
}

void GuardMessagesTest::tells_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("condition");
    QTest::addColumn<QString>("setAside");
    QTest::addColumn<QString>("text");
    const QString back = " The 2 link(s) of 1/2/34 5:06 AM are in place again.";
    const QString file = "The file with your quick links ";
    QTest::newRow("damaged") << int(Event::PutBack) << int(LinkFile::Damaged) << "/aside/<b>"
                             << file + "is damaged." + back + "\n\nWhat was found there was kept:\n\n/aside/<b>";
    QTest::newRow("missing") << int(Event::PutBack) << int(LinkFile::Missing) << "" << file + "is missing." + back;
    QTest::newRow("empty") << int(Event::PutBack) << int(LinkFile::Empty) << "" << file + "is empty." + back;
    QTest::newRow("large") << int(Event::PutBack) << int(LinkFile::TooLarge) << "" << file + "is far too large." + back;
    QTest::newRow("unreadable") << int(Event::PutBack) << int(LinkFile::Unreadable) << ""
                                << file + "cannot be read." + back;
    QTest::newRow("no file") << int(Event::PutBack) << int(LinkFile::NotRegular) << ""
                             << "In the place of the file with your quick links there is something that is no file." +
                                    back;
    QTest::newRow("nothing to put back") << int(Event::NothingKept) << int(LinkFile::Damaged) << "/aside"
                                         << file + "is damaged. No earlier state of the links is known."
                                                   "\n\nWhat was found there was kept:\n\n/aside";
    QTest::newRow("not put back") << int(Event::Lost) << int(LinkFile::Unreadable) << ""
                                  << file + "cannot be read. The 2 link(s) of 1/2/34 5:06 AM are kept, but could not "
                                            "be put in place.";
}

static Event makeEvent(int kind, int condition, const QString& setAside = QString())
{
    Event event;
    event.kind = Event::Kind(kind);
    event.condition = LinkFile::Condition(condition);
    event.setAside = setAside;
    event.time = QDateTime(QDate(2034, 1, 2), QTime(5, 6)).toUTC();
    event.links = 2;
    return event;
}

void GuardMessagesTest::tells()
{
    QFETCH(int, kind);
    QFETCH(int, condition);
    QFETCH(QString, setAside);
    QFETCH(QString, text);
    const QLocale before;
    QLocale::setDefault(QLocale("en_US"));
    m_messages->tell(makeEvent(kind, condition, setAside));
    QLocale::setDefault(before);
    // One toolkit puts a narrow blank before AM.
    QCOMPARE(shownText().replace(QChar(0x202f), ' '), text);
    QCOMPARE(boxes().constFirst()->textFormat(), Qt::PlainText);
    QVERIFY(!boxes().constFirst()->isModal());
    press("OK");
    QTRY_VERIFY(boxes().isEmpty());
}

void GuardMessagesTest::saysNothingWhereAllIsWell_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("well") << int(Event::Nothing);
    QTest::newRow("first start") << int(Event::FirstStart);
}

void GuardMessagesTest::saysNothingWhereAllIsWell()
{
    QFETCH(int, kind);
    m_messages->tell(makeEvent(kind, LinkFile::Missing));
    // What is told later comes alone.
    m_messages->tell(makeEvent(Event::NothingKept, LinkFile::Empty));
    QCOMPARE(shownText(), "The file with your quick links is empty. No earlier state of the links is known.");
}

void GuardMessagesTest::tellsThatLinksWereNotPrepared()
{
    m_messages->tellUnprepared();
    const QString text = shownText();
    QVERIFY2(text.contains("prepared for you could not be put in place"), qPrintable(text));
    press("OK");
    QTRY_VERIFY(boxes().isEmpty());
}

void GuardMessagesTest::tellsWhyASaveFailed_data()
{
    QTest::addColumn<int>("reason");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("unknown") << int(Event::Unknown) << "";
    QTest::newRow("full") << int(Event::DiskFull) << " The disk is full.";
    QTest::newRow("not writable") << int(Event::NotWritable) << " You are not allowed to write to its folder.";
}

void GuardMessagesTest::tellsWhyASaveFailed()
{
    QFETCH(int, reason);
    QFETCH(QString, sentence);
    Event event = makeEvent(Event::PutBack, LinkFile::Empty);
    event.reason = Event::Reason(reason);
    m_messages->tellSaveFailed(event, false);
    QCOMPARE(shownText().section("\n\n", 0, 0), "The change of your quick links could not be saved." + sentence);
    QVERIFY(shownText().section("\n\n", 1).endsWith("are in place again."));
    press("OK");
    QTRY_VERIFY(boxes().isEmpty());
    // Of a step that could not be taken back there is no more to say.
    event.kind = Event::Nothing;
    m_messages->tellSaveFailed(event, false);
    QCOMPARE(shownText(), "The change of your quick links could not be saved." + sentence);
}

void GuardMessagesTest::offersToTryAgain_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("requests");
    QTest::newRow("yes") << "Try Again" << 1;
    QTest::newRow("no") << "OK" << 0;
    QTest::newRow("Escape") << "Escape" << 0;
}

void GuardMessagesTest::offersToTryAgain()
{
    QFETCH(QString, button);
    const QSignalSpy requested(m_messages.data(), &GuardMessages::tryAgainRequested);
    m_messages->tellSaveFailed(makeEvent(Event::PutBack, LinkFile::Empty), true);
    QVERIFY(shownText().contains("could not be saved"));
    press(button);
    QTRY_VERIFY(boxes().isEmpty());
    QTEST(int(requested.size()), "requests");
}

void GuardMessagesTest::offersToBringBack_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("requests");
    QTest::newRow("yes") << "Bring Back" << 1;
    QTest::newRow("no") << "Leave Out" << 0;
    QTest::newRow("Escape") << "Escape" << 0;
}

void GuardMessagesTest::offersToBringBack()
{
    QFETCH(QString, button);
    const QSignalSpy requested(m_messages.data(), &GuardMessages::bringBackRequested);
    m_messages->tell(makeEvent(Event::Gone, LinkFile::Missing));
    QVERIFY(shownText().startsWith("The file with your quick links is missing. The 2 link(s) of "));
    QVERIFY(shownText().endsWith(" can be brought back."));
    press(button);
    QTRY_VERIFY(boxes().isEmpty());
    QTEST(int(requested.size()), "requests");
}

void GuardMessagesTest::asksWhoseLinks_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("isTheirs");
    QTest::newRow("theirs") << "Load Them" << true;
    QTest::newRow("mine") << "Keep Mine" << false;
    QTest::newRow("Escape") << "Escape" << false;
}

void GuardMessagesTest::asksWhoseLinks()
{
    QFETCH(QString, button);
    QFETCH(bool, isTheirs);
    const QSignalSpy decided(m_messages.data(), &GuardMessages::decided);
    m_messages->askWhoseLinks();
    press(button);
    QTRY_COMPARE(decided.size(), 1);
    QCOMPARE(decided.constFirst(), QVariantList{isTheirs});
}

void GuardMessagesTest::asksOneQuestionAtATime()
{
    const QSignalSpy decided(m_messages.data(), &GuardMessages::decided);
    m_messages->askWhoseLinks();
    QCOMPARE(shownText(),
             "The quick links were changed by another program. Do you want to load them, or to keep yours?");
    const QPointer<QMessageBox> first = boxes().constFirst();
    m_messages->askWhoseLinks();
    QVERIFY(!first);
    QTRY_COMPARE(boxes().size(), 1);
    QVERIFY(decided.isEmpty());
}

void GuardMessagesTest::outlivesTheModalWindowAbove()
{
    const QSignalSpy decided(m_messages.data(), &GuardMessages::decided);
    {
        QDialog dialog(m_window.data());
        dialog.setModal(true);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        m_messages->askWhoseLinks();
        QTRY_COMPARE(boxes().size(), 1);
        QCOMPARE(boxes().constFirst()->parentWidget(), &dialog);
        QCOMPARE(boxes().constFirst()->windowModality(), Qt::WindowModal);
        m_messages->leaveModalWindow();
    }
    QTRY_COMPARE(boxes().size(), 1);
    QCOMPARE(boxes().constFirst()->windowModality(), Qt::NonModal);
    press("Load Them");
    QTRY_COMPARE(decided.size(), 1);
    QCOMPARE(decided.constFirst(), QVariantList{true});
}

void GuardMessagesTest::keepsTheOrderOfAPath()
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    m_messages->tell(makeEvent(Event::NothingKept, LinkFile::Damaged, "/aside"));
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(shownText().section('\n', -1), QChar(0x2066) + QString("/aside") + QChar(0x2069));
}

REGISTER_TEST(GuardMessagesTest)
#include "GuardMessagesTest.moc"
