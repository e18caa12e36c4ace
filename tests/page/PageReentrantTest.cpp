// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The host comes back in while the page waits for it: in Delete's question and in the notification of the menu.

#include "ShownPage.h"
#include "Test.h"

class PageReentrantTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void duringTheQuestion_data();
    void duringTheQuestion();
    void pageBuiltAgainDuringTheQuestion_data();
    void pageBuiltAgainDuringTheQuestion();
    void linkAddedDuringTheQuestion();
    void deletedDuringTheQuestion_data();
    void deletedDuringTheQuestion();
    void questionDuringTheQuestion();
    void duringTheNotification_data();
    void duringTheNotification();
    void pageBuiltAgainDuringTheNotification_data();
    void pageBuiltAgainDuringTheNotification();

private:
    /** What the host does meanwhile. */
    void disturb(const QString& how);

    ShownPage m_page;
};

void PageReentrantTest::disturb(const QString& how)
{
    // Only once: what is done may come back here itself.
    FakeHost::instance().duringMessage = std::function<void()>();
    FakeHost::instance().duringNotification = std::function<void()>();
    if (how == "host widget deleted") {
        delete m_page.host;
    } else if (how == "page deleted") {
        delete m_page.page->m_pageWidget;
    } else if (how == "object deleted") {
        m_page.deletePlugin();
    } else {
        m_page.page->OnDestroy();
    }
}

void PageReentrantTest::duringTheQuestion_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<int>("answer");
    const char* const ways[] = {"OnDestroy", "object deleted", "host widget deleted", "page deleted"};
    for (const char* way : ways) {
        QTest::newRow(qPrintable(QString("%1, OK").arg(QLatin1String(way)))) << QString(way) << int(QMessageBox::Ok);
        QTest::newRow(qPrintable(QString("%1, Cancel").arg(QLatin1String(way))))
            << QString(way) << int(QMessageBox::Cancel);
    }
}

void PageReentrantTest::duringTheQuestion()
{
    QFETCH(QString, how);
    QFETCH(int, answer);
    m_page.begin(links("a b c"));
    m_page.select(1);
    const QByteArray before = m_page.file();
    const QPointer<QWidget> deleteButton = m_page.button("m_deleteBtn");
    FakeHost::instance().messageAnswer = answer;
    FakeHost::instance().duringMessage = [this, how] {
        disturb(how);
    };
    m_page.click("m_deleteBtn");
    QVERIFY(!deleteButton);
    QCOMPARE(FakeHost::instance().messages.size(), 1);
    QCOMPARE(m_page.told(), 0);
    QCOMPARE(m_page.file(), before);
    if (how.endsWith("deleted") && m_page.page)
        QCOMPARE(m_page.listNames(), "a b c");
}

void PageReentrantTest::pageBuiltAgainDuringTheQuestion_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("names");
    QTest::newRow("OK") << int(QMessageBox::Ok) << "b c";
    QTest::newRow("Cancel") << int(QMessageBox::Cancel) << "a b c";
}

void PageReentrantTest::pageBuiltAgainDuringTheQuestion()
{
    QFETCH(int, answer);
    QFETCH(QString, names);
    m_page.begin(links("a b c"));
    m_page.select(1);
    FakeHost::instance().messageAnswer = answer;
    FakeHost::instance().duringMessage = [this] {
        m_page.show();
    };
    m_page.click("m_deleteBtn");
    // The page that is there now has its first row selected.
    QCOMPARE(m_page.linkNames(), names);
    QCOMPARE(m_page.told(), 1);
}

void PageReentrantTest::linkAddedDuringTheQuestion()
{
    m_page.begin(links("a b c"));
    FakeHost::instance().duringMessage = [this] {
        FakeHost::instance().duringMessage = std::function<void()>();
        m_page.addLink(1, "d");
    };
    m_page.click("m_deleteBtn");
    QCOMPARE(m_page.linkNames(), "a b c");
    QCOMPARE(m_page.file(), m_page.expectedFile("4"));
    QCOMPARE(m_page.told(), 2);
}

void PageReentrantTest::deletedDuringTheQuestion_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("three links") << QByteArray("a b c") << "c";
    QTest::newRow("two links") << QByteArray("a b") << QString();
    QTest::newRow("one link") << QByteArray("a") << QString();
}

void PageReentrantTest::deletedDuringTheQuestion()
{
    QFETCH(QByteArray, before);
    QFETCH(QString, after);
    m_page.begin(links(before.constData()));
    FakeHost::instance().duringMessage = [this] {
        FakeHost::instance().duringMessage = std::function<void()>();
        m_page.page->onDeleteBtnClick();
    };
    m_page.click("m_deleteBtn");
    QCOMPARE(m_page.linkNames(), after);
}

void PageReentrantTest::questionDuringTheQuestion()
{
    m_page.begin(links("a b c"));
    int depth = 0;
    FakeHost::instance().duringMessage = [this, &depth] {
        if (++depth < 5)
            m_page.page->onDeleteBtnClick();
    };
    m_page.click("m_deleteBtn");
    QCOMPARE(FakeHost::instance().messages.size(), 5);
    QCOMPARE(m_page.listNames(), QString());
    QCOMPARE(m_page.file(), m_page.expectedFile("3"));
    // Three found a link, two found none and returned early.
    QCOMPARE(m_page.told(), 3);
}

void PageReentrantTest::duringTheNotification_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("how");
    const char* const changes[] = {"New", "Edit", "Delete"};
    const char* const ways[] = {"OnDestroy", "object deleted", "host widget deleted", "page deleted"};
    for (const char* each : changes) {
        for (const char* way : ways)
            QTest::newRow(qPrintable(QString("%1, %2").arg(QLatin1String(each), QLatin1String(way))))
                << QString(each) << QString(way);
    }
}

void PageReentrantTest::duringTheNotification()
{
    QFETCH(QString, what);
    QFETCH(QString, how);
    m_page.begin(links("a b c"));
    QByteArray file;
    const QPointer<QWidget> table = m_page.table();
    FakeHost::instance().duringNotification = [this, how, &file] {
        file = m_page.file();
        disturb(how);
    };
    m_page.change(what);
    QVERIFY(!table);
    QCOMPARE(m_page.told(), 1);
    QVERIFY(!file.isEmpty());
    QCOMPARE(m_page.file(), file);
    // What goes with the host's widget, or with the plug-in, leaves no dialog open.
    if (how != "page deleted")
        QCOMPARE(m_page.liveFrames(), 0);
}

void PageReentrantTest::pageBuiltAgainDuringTheNotification_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("names");
    QTest::newRow("New") << "New"
                         << "a b c d";
    QTest::newRow("Edit") << "Edit"
                          << "x b c";
    QTest::newRow("Delete") << "Delete"
                            << "b c";
}

void PageReentrantTest::pageBuiltAgainDuringTheNotification()
{
    QFETCH(QString, what);
    QFETCH(QString, names);
    m_page.begin(links("a b c"));
    FakeHost::instance().duringNotification = [this] {
        m_page.show();
    };
    m_page.change(what);
    QCOMPARE(m_page.linkNames(), names);
    QCOMPARE(m_page.currentRow(), 0);
    QCOMPARE(m_page.told(), 1);
}

REGISTER_TEST(PageReentrantTest)
#include "PageReentrantTest.moc"
