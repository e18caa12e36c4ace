// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The built module as a file: what it exports, what it needs, the text that a loader of Qt 4 looks for.

#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include "Test.h"

namespace
{
/** What a program prints; a failure of the program shows as an empty list. */
QStringList linesOf(const char* program, const QStringList& arguments)
{
    QProcess process;
    process.start(QString::fromLocal8Bit(program), arguments + QStringList(QString::fromLocal8Bit(PLUGIN_FILE)));
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return QStringList();
    return QString::fromLocal8Bit(process.readAllStandardOutput()).split('\n');
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
    const QStringList lines = linesOf(READELF, QStringList() << "-dW");
    for (const QString& line : lines) {
        if (line.contains('(' + kind + ')'))
            values.append(line.section('[', 1).section(']', 0, 0));
    }
    return values;
}
} // namespace

class PluginSymbolsTest : public QObject
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

void PluginSymbolsTest::fileName()
{
    const QFileInfo file(QString::fromLocal8Bit(PLUGIN_FILE));
    QCOMPARE(file.fileName(), "libQuickLinkUIPlugin.so");
    QCOMPARE(file.dir().dirName(), "QuickLinkUIPlugin");
}

void PluginSymbolsTest::exports()
{
    QStringList names;
    const QStringList lines = linesOf(NM, QStringList() << "-D"
                                                        << "--defined-only");
    for (const QString& line : lines) {
        // "address kind name", the name perhaps with a version after "@".
        const QString name = line.section(' ', 2).section('@', 0, 0);
        if (!name.isEmpty())
            names.append(name);
    }
    names.sort();
    QStringList expected = QStringList() << "qt_plugin_instance"
                                         << "qt_plugin_query_verification_data";
    if (*metadataEntry)
        expected.insert(1, metadataEntry);
    QCOMPARE(names, expected);
}

void PluginSymbolsTest::needsBothHostLibraries_data()
{
    QTest::addColumn<QString>("library");
    QTest::newRow("core") << "libcore.so";
    QTest::newRow("sdk") << "libsdk.so";
}

void PluginSymbolsTest::needsBothHostLibraries()
{
    QFETCH(QString, library);
    const QStringList needed = dynamicEntries("NEEDED");
    QVERIFY2(needed.contains(library), qPrintable(needed.join(" ")));
}

void PluginSymbolsTest::looksForLibrariesBesideItself()
{
    QStringList paths = dynamicEntries("RUNPATH") + dynamicEntries("RPATH");
    QCOMPARE(paths, QStringList("$ORIGIN/../.."));
}

void PluginSymbolsTest::verificationTextStandsWhole()
{
    const char text[] = "pattern=QT_PLUGIN_VERIFICATION_DATA\n"
                        "version=4.6.2\n"
                        "debug=false\n"
                        "buildkey=i386 linux g++-4 full-config";
    const QByteArray bytes = module();
    QVERIFY(!bytes.isEmpty());
    // With its end, since a loader reads on to there.
    QCOMPARE(static_cast<int>(bytes.count(QByteArray(text, sizeof(text)))), 1);
    // A second beginning would lead the loader's search astray, unless it stands in the section that is read first.
    const bool hasSection = !linesOf(READELF, QStringList("-SW")).filter(" .qtplugin ").isEmpty();
    QCOMPARE(hasSection, isBuildKeyInSection);
    QCOMPARE(static_cast<int>(bytes.count("pattern=QT_PLUGIN_VERIFICATION_DATA")), hasSection ? 2 : 1);
}

REGISTER_TEST(PluginSymbolsTest)
#include "PluginSymbolsTest.moc"
