// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Which display the window is shown on, and what is said where there is none.

#include <QDir>
#include <QProcess>

#include "DisplayChoice.h"
#include "Test.h"

using Variable = std::pair<QString, QString>;
using Environment = QMap<QString, QString>;
Q_DECLARE_METATYPE(Environment)

class DisplayChoiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void chooses_data();
    void chooses();
    void programSaysWhatIsMissing_data();
    void programSaysWhatIsMissing();

private:
    std::unique_ptr<QTemporaryDir> m_plugins; ///< of the toolkit
};

void DisplayChoiceTest::init()
{
    m_plugins = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_plugins->path()).mkpath("platforms"));
}

void DisplayChoiceTest::chooses_data()
{
    QTest::addColumn<Environment>("environment");
    QTest::addColumn<bool>("isInstalled");
    QTest::addColumn<int>("problem");
    QTest::addColumn<QByteArray>("platform");
    const Variable x("DISPLAY", ":0"), wayland("WAYLAND_DISPLAY", "wayland-0"), session("XDG_SESSION_TYPE", "wayland");
    const auto asked = [](const char* platform) {
        return Variable("QT_QPA_PLATFORM", platform);
    };
    const QByteArray own;
    QTest::newRow("X") << Environment{x} << false << int(DisplayChoice::None) << own;
    QTest::newRow("X of another session")
        << Environment{x, {"XDG_SESSION_TYPE", "tty"}} << false << int(DisplayChoice::None) << own;
    QTest::newRow("both") << Environment{x, wayland} << true << int(DisplayChoice::None) << own;
    QTest::newRow("both, part missing") << Environment{x, wayland} << false << int(DisplayChoice::None)
                                        << QByteArray("xcb");
    QTest::newRow("Wayland") << Environment{wayland} << true << int(DisplayChoice::None) << QByteArray("wayland");
    QTest::newRow("Wayland by its usual name")
        << Environment{session} << true << int(DisplayChoice::None) << QByteArray("wayland");
    QTest::newRow("Wayland, part missing") << Environment{wayland} << false << int(DisplayChoice::NoWayland) << own;
    QTest::newRow("Wayland by its usual name, part missing")
        << Environment{session} << false << int(DisplayChoice::NoWayland) << own;
    QTest::newRow("nothing") << Environment{} << true << int(DisplayChoice::Missing) << own;
    QTest::newRow("empty names") << Environment{{"DISPLAY", ""}, {"WAYLAND_DISPLAY", ""}} << true
                                 << int(DisplayChoice::Missing) << own;
    QTest::newRow("asked for X") << Environment{asked("xcb"), wayland} << false << int(DisplayChoice::None) << own;
    QTest::newRow("asked for none") << Environment{asked("offscreen")} << false << int(DisplayChoice::None) << own;
    QTest::newRow("asked for Wayland") << Environment{asked("wayland")} << true << int(DisplayChoice::None) << own;
    QTest::newRow("asked for Wayland, part missing")
        << Environment{asked("wayland-egl;wayland"), x} << false << int(DisplayChoice::NoWayland) << own;
    QTest::newRow("asked for either, part missing")
        << Environment{asked("wayland;xcb"), x} << false << int(DisplayChoice::None) << own;
}

void DisplayChoiceTest::chooses()
{
    QFETCH(Environment, environment);
    QFETCH(bool, isInstalled);
    QFile part(m_plugins->filePath("platforms/libqwayland-generic.so"));
    if (isInstalled)
        QVERIFY(part.open(QIODevice::WriteOnly));
    QProcessEnvironment given;
    for (auto entry = environment.cbegin(); entry != environment.cend(); ++entry)
        given.insert(entry.key(), entry.value());
    const DisplayChoice display = DisplayChoice::choose(given, {"/not/there", m_plugins->path()});
    QTEST(int(display.problem), "problem");
    QTEST(display.platform, "platform");
}

void DisplayChoiceTest::programSaysWhatIsMissing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("error");
    QTest::newRow("no display") << "LC_ALL"
                                << "C.UTF-8"
                                << "There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set.";
    const QStringList folders = QCoreApplication::libraryPaths();
    for (const QString& folder : folders) {
        if (!QDir(folder + "/platforms").entryList({"libqwayland*"}).isEmpty())
            return;
    }
    const QString package = QT_VERSION < 0x060000 ? "qtwayland5" : "qt6-wayland";
    const QString error = "On Wayland the package " + package + " is needed, which is not installed.";
    QTest::newRow("Wayland") << "WAYLAND_DISPLAY"
                             << "wayland-0" << error;
    QTest::newRow("asked for Wayland") << "QT_QPA_PLATFORM"
                                       << "wayland" << error;
}

void DisplayChoiceTest::programSaysWhatIsMissing()
{
    QFETCH(QString, name);
    QFETCH(QString, value);
    QFETCH(QString, error);
    const QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        environment.remove(variable);
    environment.insert("HOME", home.path());
    environment.insert("XDG_RUNTIME_DIR", home.path());
    environment.insert("LC_ALL", "C.UTF-8");
    environment.insert(name, value);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(PROGRAM, QStringList());
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 1);
    QCOMPARE(QString::fromUtf8(program.readAllStandardError()), "vellumconnect: " + error + '\n');
    QCOMPARE(QDir(home.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
}

REGISTER_TEST(DisplayChoiceTest)
#include "DisplayChoiceTest.moc"
