// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The service that plug-ins ask whether a connection is up, and how they find it.

#include "DialupService.h"
#include "ConnectionMonitor.h"
#include "FakeSource.h"
#include "Host.h"
#include "Startup.h"
#include "Test.h"
#include "Translator.h"

class DialupServiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsTheMonitor();
    void isFound_data();
    void isFound();
    void isGoneWithTheHost();
};

void DialupServiceTest::followsTheMonitor()
{
    std::unique_ptr<FakeSource> made = std::make_unique<FakeSource>();
    FakeSource* const source = made.get();
    ConnectionMonitor monitor;
    DialupService service(monitor);
    QCOMPARE(service.IsConnected(), 0);
    monitor.start(std::move(made));
    QCOMPARE(service.IsConnected(), 0);
    source->become("a");
    QCOMPARE(service.IsConnected(), 1);
    source->setAvailable(false);
    QCOMPARE(service.IsConnected(), 0);
    source->setAvailable(true);
    QCOMPARE(service.IsConnected(), 1);
    source->become(QString());
    QCOMPARE(service.IsConnected(), 0);
}

void DialupServiceTest::isFound_data()
{
    QTest::addColumn<QString>("clsid");
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("isThere");
    const QString clsid = "61D9E3B8-7A04-4C5F-B1E7-2C6A9F08D35E";
    QTest::newRow("by both") << clsid << 0x4011 << true;
    QTest::newRow("another kind") << clsid << 0x2011 << false;
    QTest::newRow("another identifier") << "8B42D0E5-1C7F-4A93-9E26-5D8F03B7C412" << 0x4011 << false;
    QTest::newRow("neither") << QString() << 0 << false;
}

void DialupServiceTest::isFound()
{
    QFETCH(QString, clsid);
    QFETCH(int, kind);
    QFETCH(bool, isThere);
    Translator translator;
    const Host host(translator);
    QVERIFY(Startup::GetPluginContainer());
    QObject* const owner = Startup::GetPluginContainer()->GetPlugin(clsid, kind);
    QCOMPARE(owner != nullptr, isThere);
    IDialupUIService* const service = qobject_cast<IDialupUIService*>(owner);
    QCOMPARE(service != nullptr, isThere);
    if (service)
        QCOMPARE(service->IsConnected(), 0);
}

void DialupServiceTest::isGoneWithTheHost()
{
    Translator translator;
    {
        const Host host(translator);
    }
    QVERIFY(!Startup::GetPluginContainer());
}

REGISTER_TEST(DialupServiceTest)
#include "DialupServiceTest.moc"
