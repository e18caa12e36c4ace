// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The list of the states that the links were in.

#include <QPushButton>
#include <QSignalSpy>
#include <QTreeWidget>

#include "FakeTranslator.h"
#include "HistoryPage.h"
#include "LinkHistory.h"
#include "Test.h"

class HistoryPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void listsStates();
    void namesAFewOfMany();
    void showsNamesOnOneLine();
    void keepsTheDirectionOfNames();
    void leavesOutWhatIsDamaged();
    void saysNothingOfNoStates();
    void goesBack();
    void doesNotGoBackToNow();
    void followsTheLanguage();

private:
    void keep(const QStringList& names);
    QTreeWidget& list() const { return *m_page->findChild<QTreeWidget*>(); }
    QPushButton& button() const { return *m_page->findChild<QPushButton*>(); }
    QStringList column(int number) const;

    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<LinkHistory> m_history;
    QScopedPointer<HistoryPage> m_page;
};

static QByteArray linksOf(const QStringList& names)
{
    QByteArray items;
    for (const QString& name : names)
        items += "<item name=\"" + name.toUtf8() + "\" visible=\"1\"/>";
    return "<tovadoc><menu>" + items + "</menu></tovadoc>";
}

void HistoryPageTest::init()
{
    m_folder.reset(new QTemporaryDir);
    m_history.reset(new LinkHistory(m_folder->path(), m_folder->filePath("history")));
    m_page.reset(new HistoryPage(*m_history));
}

void HistoryPageTest::cleanup()
{
    m_page.reset();
}

void HistoryPageTest::keep(const QStringList& names)
{
    QVERIFY(m_history->keep(linksOf(names)));
}

QStringList HistoryPageTest::column(int number) const
{
    QStringList texts;
    for (int i = 0; i < list().topLevelItemCount(); ++i)
        texts.append(list().topLevelItem(i)->text(number));
    return texts;
}

void HistoryPageTest::listsStates()
{
    keep({"A", "B"});
    keep({"B", "A", "C"});
    keep({"C"});
    m_page->show();
    QCOMPARE(column(1), QStringList({"1", "3", "2"}));
    QCOMPARE(column(2), QStringList({"Removed: B, A", "Added: C; Moved: B", ""}));
    QVERIFY(column(0).constFirst().endsWith(" (now)"));
    QCOMPARE(column(0).filter("now").size(), 1);
    const QDateTime time = m_history->states().constLast().time.toLocalTime();
    QCOMPARE(column(0).constLast(), QLocale().toString(time, QLocale::ShortFormat));
}

void HistoryPageTest::namesAFewOfMany()
{
    keep({"A"});
    keep({"A", "1", "2", "3", "4", "5"});
    keep({"A"});
    keep({"A", "1", "2", "3", "4", "5", "6"});
    m_page->show();
    QCOMPARE(column(2), QStringList({"Added: 1, 2, 3, 4, 5, 1 more", "Removed: 1, 2, 3, 4, 5", ""}));
}

void HistoryPageTest::showsNamesOnOneLine()
{
    keep({"A"});
    keep({"A", "two&#10;lines" + QString(300, 'x')});
    m_page->show();
    const QString text = column(2).constFirst();
    QVERIFY(text.startsWith("Added: two linesxxx"));
    QVERIFY(text.size() < 140);
}

void HistoryPageTest::keepsTheDirectionOfNames()
{
    const QString arabic = codePoint(0x0627);
    keep({"A"});
    keep({"A", arabic});
    m_page->show();
    QCOMPARE(column(2).constFirst(), "Added: " + codePoint(0x2068) + arabic + codePoint(0x2069));
}

void HistoryPageTest::leavesOutWhatIsDamaged()
{
    keep({"A"});
    keep({"B"});
    keep({"C"});
    QFile damaged(m_history->states().at(1).file);
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.write("<a>");
    damaged.close();
    m_page->show();
    QCOMPARE(column(2), QStringList({"Edited: A", ""}));
}

void HistoryPageTest::saysNothingOfNoStates()
{
    m_page->show();
    QCOMPARE(list().topLevelItemCount(), 0);
    QVERIFY(!button().isEnabled());
}

void HistoryPageTest::goesBack()
{
    keep({"A"});
    keep({"B"});
    const QSignalSpy requested(m_page.data(), &HistoryPage::goBackRequested);
    m_page->show();
    QVERIFY(!button().isEnabled());
    list().setCurrentItem(list().topLevelItem(1));
    QVERIFY(button().isEnabled());
    button().click();
    QCOMPARE(requested.size(), 1);
    QCOMPARE(requested.constFirst(), QVariantList{linksOf({"A"})});
    // What came of it.
    keep({"A"});
    m_page->refresh();
    QCOMPARE(column(2), QStringList({"Edited: B", ""}));
    QVERIFY(!button().isEnabled());
}

void HistoryPageTest::doesNotGoBackToNow()
{
    keep({"A"});
    keep({"B"});
    m_page->show();
    list().setCurrentItem(list().topLevelItem(0));
    QVERIFY(!button().isEnabled());
}

void HistoryPageTest::followsTheLanguage()
{
    keep({"A"});
    keep({"A", "B"});
    m_page->show();
    QCOMPARE(m_page->caption(), "History");
    const FakeTranslator translator;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    QVERIFY(button().text() != "&Go Back to This");
    QVERIFY(m_page->caption() != "History");
    QVERIFY(list().headerItem()->text(2) != "What Changed");
    QVERIFY(!column(2).constFirst().startsWith("Added"));
}

REGISTER_TEST(HistoryPageTest)
#include "HistoryPageTest.moc"
