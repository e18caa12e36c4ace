// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The loose test of Internet addresses.


#include "LoadedPlugin.h"
#include "Test.h"

class AddressCheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_plugin.make(); }
    void cleanup() { m_plugin.unload(); }

    void accepted_data();
    void accepted();
    void refused_data();
    void refused();
    void needsNothingOfTheHost();

private:
    LoadedPlugin m_plugin;
};

namespace
{
void addRows(const char* const* addresses, int count)
{
    QTest::addColumn<QString>("address");
    for (int i = 0; i < count; ++i)
        QTest::newRow(addresses[i]) << QString::fromUtf8(addresses[i]);
}
} // namespace

void AddressCheckTest::accepted_data()
{
    static const char* const addresses[] = {"http://",
                                            "http://example.org",
                                            "https://",
                                            "https://example.org/?a=b#c",
                                            "ftp",
                                            "ftp://example.org",
                                            "ftpserver",
                                            "ftp.example.org",
                                            "myftphost.example",
                                            "sftp://example.org",
                                            "liftport",
                                            "www.",
                                            "www.example.org",
                                            "example.www.org",
                                            "/path/www.html",
                                            " http://example.org",
                                            "see http://example.org for more",
                                            "xhttp://y",
                                            "javascript:alert('http://')",
                                            "file:///tmp/www.html",
                                            "mailto:ftp@example.org",
                                            "HTTP://www.example.org",
                                            "HTTPS://ftp.example.org",
                                            "HTTP://EXAMPLE.ORG/?to=http://x",
                                            "wwww.x",
                                            "first line\nwww.second"};
    addRows(addresses, int(sizeof addresses / sizeof *addresses));
    QTest::newRow("behind a null character") << QString::fromUtf8("a\0www.", 6);
    QTest::newRow("at the end of a long text") << QString(100000, 'a') + "ftp";
}

void AddressCheckTest::accepted()
{
    QFETCH(QString, address);
    QVERIFY(m_plugin.page->isValidUrl(address));
}

void AddressCheckTest::refused_data()
{
    static const char* const addresses[] = {" ",
                                            "example.org",
                                            "example",
                                            "HTTP://example.org",
                                            "Http://example.org",
                                            "Https://example.org",
                                            "HTTPS://EXAMPLE.ORG",
                                            "FTP://example.org",
                                            "Ftp.example.org",
                                            "WWW.example.org",
                                            "Www.example.org",
                                            "www",
                                            "www example",
                                            "wwwexample.org",
                                            "http:",
                                            "http:/",
                                            "http:/example.org",
                                            "http:\\\\example.org",
                                            "https:example.org",
                                            "https:/example.org",
                                            "http //example.org",
                                            "httpx://example.org",
                                            "f t p",
                                            "ft",
                                            "gopher://example.org",
                                            "mailto:someone@example.org",
                                            "file:///usr/bin/xclock",
                                            "/usr/bin/xclock",
                                            "localhost:8080",
                                            "192.0.2.1",
                                            "\xef\xbd\x97\xef\xbd\x97\xef\xbd\x97."};
    addRows(addresses, int(sizeof addresses / sizeof *addresses));
    QTest::newRow("empty") << QString::fromUtf8("");
    QTest::newRow("null") << QString();
}

void AddressCheckTest::refused()
{
    QFETCH(QString, address);
    QVERIFY(!m_plugin.page->isValidUrl(address));
}

void AddressCheckTest::needsNothingOfTheHost()
{
    FakeHost::instance().hasContainer = false;
    QVERIFY(m_plugin.page->isValidUrl("www.example.org"));
    QVERIFY(!m_plugin.page->isValidUrl("example.org"));
    QCOMPARE(FakeHost::instance().messages.size(), 0);
    QCOMPARE(FakeHost::instance().openings, QStringList());
}

REGISTER_TEST(AddressCheckTest)
#include "AddressCheckTest.moc"
