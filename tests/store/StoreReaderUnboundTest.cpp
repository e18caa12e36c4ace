// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include <QBuffer>
#include <QXmlStreamReader>

#include "StoreFixture.h"
#include "Test.h"

using namespace StoreFixture;

namespace
{
bool isUnbound = false;
}

// No file makes a stream reader lose its device. This program's own definition comes before the library's, so that
// the store is told so; the real reader keeps its device for the walk.
QIODevice* QXmlStreamReader::device() const
{
    static QBuffer buffer;
    return isUnbound ? nullptr : &buffer;
}

class StoreReaderUnboundTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup()
    {
        isUnbound = false;
        end();
    }

    void resultAndWalk_data();
    void resultAndWalk();
    void traceComesBeforeTheWalk();
};

void StoreReaderUnboundTest::resultAndWalk_data()
{
    QTest::addColumn<bool>("unbound");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("expected");
    const QByteArray good = document("<menu><item name='a' visible='1'/><item name='b' visible='1'/></menu>");
    QTest::newRow("bound") << false << good << 0 << "a,b";
    QTest::newRow("unbound, good file") << true << good << 13 << "a,b";
    QTest::newRow("unbound, damaged file") << true << good.left(good.size() - 30) << 13 << "a";
    QTest::newRow("unbound, empty file") << true << QByteArray() << 13 << "";
}

void StoreReaderUnboundTest::resultAndWalk()
{
    QFETCH(bool, unbound);
    QFETCH(QByteArray, bytes);
    QFETCH(int, result);
    QFETCH(QString, expected);
    isUnbound = unbound;
    QCOMPARE(readBytes(bytes), result);
    QCOMPARE(names(), expected);
}

void StoreReaderUnboundTest::traceComesBeforeTheWalk()
{
    isUnbound = true;
    RecordingTrace trace;
    QCOMPARE(readBytes(document("<menu/>")), 13);
    const QStringList line(tracePattern("%F: ReadXmlInformation: StreamReader is not binded with device"));
    QCOMPARE(trace.debugDifference(readerBeginning() + line + walkLines()), QString());
}

REGISTER_TEST(StoreReaderUnboundTest)
#include "StoreReaderUnboundTest.moc"
