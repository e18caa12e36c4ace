// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The built module as a file: what it exports, what it needs, the text that a loader of Qt 4 looks for.

#include <QtTest>

#include <QFile>
#include <QFileInfo>
#include <QProcess>

namespace
{
/** What a program prints; a failure of the program shows as an empty list. */
QStringList linesOf(const char* program, const QStringList& arguments)
{
    QProcess process;
    process.start(QString::fromLocal8Bit(program), arguments + QStringList(QString::fromLocal8Bit(PLUGIN_FILE)));
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return QStringList();
    return QString::fromLocal8Bit(process.readAllStandardOutput()).split(QLatin1Char('\n'));
}

QByteArray module()
{
    QFile file(QString::fromLocal8Bit(PLUGIN_FILE));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** The values in brackets of the dynamic section's entries of one kind. */
QStringList dynamicEntries(const QString& kind)
{
    QStringList values;
    const QStringList lines = linesOf(READELF, QStringList() << QStringLiteral("-dW"));
    for (const QString& line : lines) {
        if (line.contains(QLatin1Char('(') + kind + QLatin1Char(')')))
            values.append(line.section(QLatin1Char('['), 1).section(QLatin1Char(']'), 0, 0));
    }
    return values;
}
} // namespace

class TestSymbols : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fileName();
    void exports();
    void needsBothHostLibraries_data();
    void needsBothHostLibraries();
    void looksForLibrariesBesideItself();
    void verificationTextStandsWhole();
};

void TestSymbols::fileName()
{
    const QFileInfo file(QString::fromLocal8Bit(PLUGIN_FILE));
    QCOMPARE(file.fileName(), QStringLiteral("libQuickLinkUIPlugin.so"));
    QCOMPARE(file.dir().dirName(), QStringLiteral("QuickLinkUIPlugin"));
}

void TestSymbols::exports()
{
    QStringList names;
    const QStringList lines = linesOf(NM, QStringList() << QStringLiteral("-D") << QStringLiteral("--defined-only"));
    for (const QString& line : lines) {
        // "address kind name", the name perhaps with a version after "@".
        const QString name = line.section(QLatin1Char(' '), 2).section(QLatin1Char('@'), 0, 0);
        if (!name.isEmpty())
            names.append(name);
    }
    names.sort();
    QStringList expected;
    expected << QStringLiteral("qt_plugin_instance");
#if QT_VERSION >= 0x060000
    expected << QStringLiteral("qt_plugin_query_metadata_v2");
#elif QT_VERSION >= 0x050000
    expected << QStringLiteral("qt_plugin_query_metadata");
#endif
    expected << QStringLiteral("qt_plugin_query_verification_data");
    QCOMPARE(names, expected);
}

void TestSymbols::needsBothHostLibraries_data()
{
    QTest::addColumn<QString>("library");
    QTest::newRow("core") << QStringLiteral("libcore.so");
    QTest::newRow("sdk") << QStringLiteral("libsdk.so");
}

void TestSymbols::needsBothHostLibraries()
{
    QFETCH(QString, library);
    const QStringList needed = dynamicEntries(QStringLiteral("NEEDED"));
    QVERIFY2(needed.contains(library), qPrintable(needed.join(QLatin1String(" "))));
}

void TestSymbols::looksForLibrariesBesideItself()
{
    QStringList paths = dynamicEntries(QStringLiteral("RUNPATH")) + dynamicEntries(QStringLiteral("RPATH"));
    QCOMPARE(paths, QStringList(QStringLiteral("$ORIGIN/../..")));
}

void TestSymbols::verificationTextStandsWhole()
{
    const char text[] = "pattern=QT_PLUGIN_VERIFICATION_DATA\n"
                        "version=4.6.2\n"
                        "debug=false\n"
                        "buildkey=i386 linux g++-4 full-config";
    const QByteArray bytes = module();
    QVERIFY(!bytes.isEmpty());
    // With its end, since a loader reads on to there.
    QCOMPARE(static_cast<int>(bytes.count(QByteArray(text, sizeof(text)))), 1);
    // A second beginning would lead the loader's search astray.
    QCOMPARE(static_cast<int>(bytes.count("pattern=QT_PLUGIN_VERIFICATION_DATA")), 1);
}

QTEST_GUILESS_MAIN(TestSymbols)
#include "tst_symbols.moc"
