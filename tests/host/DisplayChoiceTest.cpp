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
    void noticesThatNobodyAnswers_data();
    void noticesThatNobodyAnswers();
    void programSaysWhatIsMissing_data();
    void programSaysWhatIsMissing();

private:
    DisplayChoice choice(const Environment& environment, bool isInstalled, DisplayChoice::Connect connectTo) const;

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
    QTest::newRow("asked for X") << Environment{asked("xcb"), x, wayland} << true << int(DisplayChoice::None) << own;
    QTest::newRow("asked for X, not there")
        << Environment{asked("xcb"), wayland} << true << int(DisplayChoice::NoX) << own;
    QTest::newRow("asked for X, empty name")
        << Environment{asked("xcb:option"), {"DISPLAY", ""}} << true << int(DisplayChoice::NoX) << own;
    QTest::newRow("asked for none") << Environment{asked("offscreen")} << false << int(DisplayChoice::None) << own;
    QTest::newRow("asked for Wayland") << Environment{asked("wayland")} << true << int(DisplayChoice::None) << own;
    QTest::newRow("asked for Wayland, part missing")
        << Environment{asked("wayland-egl;wayland"), x} << false << int(DisplayChoice::NoWayland) << own;
    QTest::newRow("asked for either, part missing")
        << Environment{asked("wayland;xcb"), x} << false << int(DisplayChoice::None) << own;
}

using Connection = DisplayChoice::Connection;

static Connection always(DisplayChoice::System)
{
    return std::make_shared<int>(0);
}

static Connection onlyX(DisplayChoice::System system)
{
    return system == DisplayChoice::X ? always(system) : nullptr;
}

static Connection onlyWayland(DisplayChoice::System system)
{
    return system == DisplayChoice::Wayland ? always(system) : nullptr;
}

/** With the toolkit's part for Wayland or without. */
DisplayChoice DisplayChoiceTest::choice(const Environment& environment, bool isInstalled,
                                        DisplayChoice::Connect connectTo) const
{
    QFile part(m_plugins->filePath("platforms/libqwayland-generic.so"));
    if (isInstalled && !part.open(QIODevice::WriteOnly))
        qFatal("no file can be made in %s", qPrintable(m_plugins->path()));
    QProcessEnvironment given;
    for (auto entry = environment.cbegin(); entry != environment.cend(); ++entry)
        given.insert(entry.key(), entry.value());
    return DisplayChoice::choose(given, {"/not/there", m_plugins->path()}, connectTo);
}

void DisplayChoiceTest::chooses()
{
    QFETCH(Environment, environment);
    QFETCH(bool, isInstalled);
    const DisplayChoice display = choice(environment, isInstalled, always);
    QTEST(int(display.problem), "problem");
    QTEST(display.platform, "platform");
}

void DisplayChoiceTest::noticesThatNobodyAnswers_data()
{
    QTest::addColumn<Environment>("environment");
    QTest::addColumn<bool>("isInstalled");
    QTest::addColumn<int>("system");
    QTest::addColumn<QString>("name");
    const Variable x("DISPLAY", "far:1"), wayland("WAYLAND_DISPLAY", "wayland-5"),
        session("XDG_SESSION_TYPE", "wayland");
    const Variable asksX("QT_QPA_PLATFORM", "xcb"), asksWayland("QT_QPA_PLATFORM", "wayland-egl;wayland");
    const int ofX = DisplayChoice::X, ofWayland = DisplayChoice::Wayland;
    QTest::newRow("X") << Environment{x} << true << ofX << "far:1";
    QTest::newRow("asked for X") << Environment{x, wayland, asksX} << true << ofX << "far:1";
    QTest::newRow("X on Wayland, part missing") << Environment{x, wayland} << false << ofX << "far:1";
    QTest::newRow("Wayland") << Environment{wayland} << true << ofWayland << "wayland-5";
    QTest::newRow("Wayland by its usual name") << Environment{session} << true << ofWayland << "wayland-0";
    QTest::newRow("asked for Wayland") << Environment{x, wayland, asksWayland} << true << ofWayland << "wayland-5";
}

void DisplayChoiceTest::noticesThatNobodyAnswers()
{
    QFETCH(Environment, environment);
    QFETCH(bool, isInstalled);
    QFETCH(int, system);
    QFETCH(QString, name);
    const bool isX = system == DisplayChoice::X;
    const DisplayChoice display = choice(environment, isInstalled, isX ? onlyWayland : onlyX);
    QCOMPARE(int(display.problem), int(DisplayChoice::Dead));
    QVERIFY2(display.error().contains('"' + name + '"'), qPrintable(display.error()));
    const DisplayChoice other = choice(environment, isInstalled, isX ? onlyX : onlyWayland);
    QCOMPARE(int(other.problem), int(DisplayChoice::None));
    QVERIFY(other.connection);
}

void DisplayChoiceTest::programSaysWhatIsMissing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("error");
    QTest::newRow("no display") << "LC_ALL"
                                << "C.UTF-8"
                                << "There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set.";
    QTest::newRow("X that does not answer") << "DISPLAY"
                                            << ":65000"
                                            << "The display \":65000\" does not answer.";
    QTest::newRow("asked for X, not there") << "QT_QPA_PLATFORM"
                                            << "xcb"
                                            << "QT_QPA_PLATFORM asks for X, but DISPLAY is not set.";
    const QStringList folders = QCoreApplication::libraryPaths();
    for (const QString& folder : folders) {
        if (QDir(folder + "/platforms").entryList({"libqwayland*"}).isEmpty())
            continue;
        QTest::newRow("Wayland that does not answer") << "WAYLAND_DISPLAY"
                                                      << "wayland-of-nobody"
                                                      << "The display \"wayland-of-nobody\" does not answer.";
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
