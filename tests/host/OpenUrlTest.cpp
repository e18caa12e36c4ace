// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What reaches the browser, and what the user is told about the rest.

#include <QDesktopServices>
#include <QPointer>
#include <QTimer>
#include <QUrl>

#include "CommonUtils.h"
#include "MessageOnScreen.h"
#include "OpenedLink.h"
#include "RecordingTrace.h"
#include "Test.h"

class OpenUrlTest : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void open(const QUrl& url) { m_opened << QString(url.toEncoded()); }
    void giveUp() { QCoreApplication::exit(1); }

private Q_SLOTS:
    void init();
    void cleanup();
    void handsOn_data();
    void handsOn();
    void refuses_data();
    void refuses();
    void namesTheLink();
    void tellsWhenNothingOpens();
    void showsTheAddressAsItStands();
    void cutsOffAVeryLongAddress();
    void noticeCanBeClosedOverAModalMessage();
    void noticeDoesNotKeepTheProgramAlive();
    void noticeGoesWithTheProgram();

private:
    QStringList m_opened;
};

static const char* const schemes[] = {"http", "https", "ftp", "file", "javascript", "mailto"};

void OpenUrlTest::init()
{
    m_opened.clear();
    for (const char* scheme : schemes)
        QDesktopServices::setUrlHandler(scheme, this, "open");
}

void OpenUrlTest::cleanup()
{
    for (const char* scheme : schemes)
        QDesktopServices::unsetUrlHandler(scheme);
    while (QMessageBox* const box = notice())
        delete box;
}

void OpenUrlTest::handsOn_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("opened");
    QTest::newRow("complete") << "https://example.com/a?b=c&d"
                              << "https://example.com/a?b=c&d";
    QTest::newRow("www") << "www.example.com"
                         << "http://www.example.com";
    QTest::newRow("ftp") << "ftp.example.com"
                         << "ftp://ftp.example.com";
    QTest::newRow("other") << "example.com"
                           << "http://example.com";
    QTest::newRow("upper case") << "HTTP://example.com"
                                << "http://example.com";
}

void OpenUrlTest::handsOn()
{
    QFETCH(QString, address);
    CommonUtils::OpenUrl(address);
    QTEST(m_opened.join(" "), "opened");
    QVERIFY(!notice());
}

void OpenUrlTest::refuses_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("reason");
    const QString other = "https";
    QTest::newRow("script") << "javascript:alert(1)" << other;
    QTest::newRow("file") << "file:///etc/passwd" << other;
    QTest::newRow("mail") << "mailto:someone@example.com" << other;
    QTest::newRow("no host") << "http:///x" << other;
    QTest::newRow("empty") << QString() << "no address";
}

void OpenUrlTest::refuses()
{
    QFETCH(QString, address);
    QFETCH(QString, reason);
    CommonUtils::OpenUrl(address);
    QVERIFY(m_opened.isEmpty());
    const QPointer<QMessageBox> box = notice();
    QVERIFY(box);
    QVERIFY2(box->text().endsWith("\n\n" + address), qPrintable(box->text()));
    QVERIFY(box->text().contains(reason));
    QCOMPARE(box->windowTitle(), "Not opened");
    QCOMPARE(box->icon(), QMessageBox::Warning);
    clickButton(box, QMessageBox::Ok);
    QTRY_VERIFY(!box);
}

static QString addressOfLink(const QString&, int)
{
    return "  http://x ";
}

void OpenUrlTest::namesTheLink()
{
    OpenedLink::Known known;
    known.addressOf = addressOfLink;
    OpenedLink::setKnown(known);
    {
        const OpenedLink link("My Link", 0);
        CommonUtils::OpenUrl("x:y");
        QVERIFY2(notice()->text().endsWith("\n\nMy Link: x:y"), qPrintable(notice()->text()));
        delete notice();
        // What the quick links make of an address that they cannot read.
        CommonUtils::OpenUrl(QString());
    }
    OpenedLink::setKnown(OpenedLink::Known());
    QCOMPARE(notice()->text(), "There are blanks before or behind this address:\n\nMy Link:   http://x ");
}

void OpenUrlTest::tellsWhenNothingOpens()
{
    QDesktopServices::unsetUrlHandler("http");
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", "/nonexistent"); // where a toolkit may look for a browser
    const RecordingTrace trace;      // where another says that it looks for none
    CommonUtils::OpenUrl("www.example.com");
    qputenv("PATH", path);
    QMessageBox* const box = notice();
    QVERIFY(box);
    // As the user wrote it.
    QVERIFY2(box->text().endsWith("\n\nwww.example.com"), qPrintable(box->text()));
    QVERIFY(box->text().contains("No program"));
}

void OpenUrlTest::showsTheAddressAsItStands()
{
    CommonUtils::OpenUrl("x:<b>bold</b> %1");
    QVERIFY(notice());
    QCOMPARE(notice()->textFormat(), Qt::PlainText);
    QVERIFY(notice()->text().contains("x:<b>bold</b> %1"));
}

void OpenUrlTest::cutsOffAVeryLongAddress()
{
    const QString address = "x:" + QString(5000, 'y');
    CommonUtils::OpenUrl(address);
    QVERIFY(notice());
    QVERIFY(notice()->text().size() < 300);
    QCOMPARE(notice()->detailedText(), address);
    const QString shortAddress = "x:" + QString(118, 'y');
    delete notice();
    CommonUtils::OpenUrl(shortAddress);
    QVERIFY(notice()->text().endsWith(shortAddress));
    QVERIFY(notice()->detailedText().isEmpty());
}

void OpenUrlTest::noticeCanBeClosedOverAModalMessage()
{
    QPointer<QMessageBox> box;
    bool wasShown = false, isGone = false;
    whenMessageShows([&](QMessageBox* modal) {
        CommonUtils::OpenUrl("x:y");
        box = notice();
        wasShown = box;
        if (box)
            clickButton(box, QMessageBox::Ok);
        isGone = QTest::qWaitFor([&] { return !box; });
        modal->close();
    });
    CommonUtils::ShowMessage(QMessageBox::Information, nullptr, QString(), QString(), "A", QString(), QString(), false,
                             Qt::WindowFlags(), nullptr, QString(), true);
    QVERIFY(wasShown);
    QVERIFY(isGone);
}

void OpenUrlTest::noticeDoesNotKeepTheProgramAlive()
{
    QWidget window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    CommonUtils::OpenUrl("x:y");
    QVERIFY(notice());
    QTimer::singleShot(0, &window, SLOT(close()));
    QTimer limit;
    connect(&limit, SIGNAL(timeout()), SLOT(giveUp()));
    limit.start(10000);
    QCOMPARE(QApplication::exec(), 0);
}

void OpenUrlTest::noticeGoesWithTheProgram()
{
    CommonUtils::OpenUrl("x:y");
    const QPointer<QMessageBox> box = notice();
    QVERIFY(box);
    QTimer::singleShot(0, qApp, SLOT(quit()));
    QApplication::exec();
    QVERIFY(!box);
}

REGISTER_TEST(OpenUrlTest)
#include "OpenUrlTest.moc"
