// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// A thousand times: show the page, press New, Cancel, and the host deletes its widget. Nothing may pile up.

#include <QApplication>

#include <unistd.h>

#include "ShownPage.h"
#include "Test.h"

class PageMemoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void nothingPilesUp_data();
    void nothingPilesUp();

private:
    void oneRound(const QString& what);
    /** Resident memory of the process in bytes; 0 when it cannot be read. */
    static qint64 residentBytes();

    const DebugChannelOff m_quiet;
    ShownPage m_page;
};

qint64 PageMemoryTest::residentBytes()
{
    QFile file("/proc/self/statm");
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> fields = file.readAll().split(' ');
    return fields.size() > 1 ? fields.at(1).toLongLong() * sysconf(_SC_PAGESIZE) : 0;
}

void PageMemoryTest::oneRound(const QString& what)
{
    FakeHost& host = FakeHost::instance();
    m_page.host = new QWidget;
    m_page.host->resize(600, 450);
    m_page.host->show();
    m_page.show();
    if (what != "nothing") {
        m_page.click(what == "Edit" ? "m_editBtn" : "m_newBtn");
        m_page.enter("m_appNameEdit", "x");
        m_page.pressCancel();
    }
    if (what == "New, page cancelled")
        m_page.page->OnClickSettingCancelButton();
    delete m_page.host;
    QCoreApplication::processEvents();
    QCOMPARE(m_page.liveFrames(), 0);
    host.frames.clear();
    host.messages.clear();
    host.notifications.clear();
    host.lookups.clear();
}

void PageMemoryTest::nothingPilesUp_data()
{
    QTest::addColumn<QString>("what");
    QTest::newRow("New") << "New";
    QTest::newRow("Edit") << "Edit";
    QTest::newRow("New, page cancelled") << "New, page cancelled";
}

void PageMemoryTest::nothingPilesUp()
{
    QFETCH(QString, what);
    m_page.beginHidden(links("a b c d e"));
    delete m_page.host;
    int widgets = 0;
    qint64 bytes = 0;
    for (int round = 1; round <= 1000; ++round) {
        oneRound(what);
        if (round == 100) {
            widgets = int(QApplication::allWidgets().size());
            bytes = residentBytes();
        }
    }
    QCOMPARE(int(QApplication::allWidgets().size()), widgets);
#if defined(__SANITIZE_ADDRESS__)
    QSKIP("The sanitizer keeps freed memory");
#endif
    QVERIFY(bytes > 0);
    const qint64 after = residentBytes();
    qDebug("resident after 100 rounds %lld bytes, after 1000 rounds %lld bytes", static_cast<long long>(bytes),
           static_cast<long long>(after));
    QVERIFY2(after <= bytes + bytes / 50, "more than 2 % were added in 900 rounds");
}

REGISTER_TEST(PageMemoryTest)
#include "PageMemoryTest.moc"
