// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The plug-in builds with Qt 4.8, 5 and 6 and with C++11. No compiler here knows all of them, so this reads the text:
// as far as that can show it, nothing newer is used.

#include <QtTest>

#include <algorithm>
#include <iterator>

#include <QDir>
#include <QRegularExpression>

namespace
{
/** The headers of Qt 4.8, among them every one that the sources use; a name may be added once it is looked up. */
const char* const headersOfQt48[] = {"QAction",
                                     "QApplication",
                                     "QByteArray",
                                     "QCheckBox",
                                     "QComboBox",
                                     "QCoreApplication",
                                     "QDateTime",
                                     "QDesktopServices",
                                     "QDialog",
                                     "QDir",
                                     "QFile",
                                     "QFileDialog",
                                     "QFileInfo",
                                     "QFlags",
                                     "QHBoxLayout",
                                     "QHash",
                                     "QHeaderView",
                                     "QIODevice",
                                     "QItemDelegate",
                                     "QKeyEvent",
                                     "QLabel",
                                     "QLineEdit",
                                     "QList",
                                     "QMap",
                                     "QMessageBox",
                                     "QObject",
                                     "QPainter",
                                     "QPen",
                                     "QPointer",
                                     "QPushButton",
                                     "QRect",
                                     "QIcon",
                                     "QSpacerItem",
                                     "QStyleOptionViewItem",
                                     "QSet",
                                     "QString",
                                     "QStringList",
                                     "QTabWidget",
                                     "QTableWidget",
                                     "QTableWidgetItem",
                                     "QTime",
                                     "QUrl",
                                     "QVBoxLayout",
                                     "QVariant",
                                     "QVector",
                                     "QWidget",
                                     "QXmlStreamReader",
                                     "QXmlStreamWriter",
                                     "QtDebug",
                                     "QtGlobal"};

/** The headers of C++11's library that the sources may use. */
const char* const headersOfCpp11[] = {"algorithm", "climits", "cstddef", "cstring", "initializer_list",
                                      "limits",    "memory",  "new",     "utility"};

QString folder(const char* name)
{
    return QString::fromUtf8(SOURCE_ROOT) + QLatin1Char('/') + QLatin1String(name);
}

/** The text without comments and without what stands between quotes. */
QString codeOnly(const QString& text)
{
    static const QRegularExpression commentOrString(QStringLiteral("//[^\\n]*|/\\*.*?\\*/|\"(?:[^\"\\\\\\n]|\\\\.)*\""),
                                                    QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression quotedInclude(QStringLiteral("#include \"([^\"]+)\""));
    QString code = text;
    code.replace(quotedInclude, QStringLiteral("#include '\\1'"));
    return code.replace(commentOrString, QString());
}

bool contains(const char* const* begin, const char* const* end, const QString& name)
{
    return std::find_if(begin, end, [&name](const char* known) { return name == QLatin1String(known); }) != end;
}
} // namespace

class TestSources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void patternFindsItsSample_data();
    void patternFindsItsSample();
    void sourceUsesNothingNewer_data();
    void sourceUsesNothingNewer();
    void includesAreOfQt48_data() { sourceUsesNothingNewer_data(); }
    void includesAreOfQt48();
    void versionSwitchesAreInOnePlace_data() { sourceUsesNothingNewer_data(); }
    void versionSwitchesAreInOnePlace();

private:
    static QStringList includesOf(const QString& code, const char* pattern);

    QMap<QString, QString> m_codes; ///< by path from the project's root
};

namespace
{
/** What must not stand in the sources, and a line that it stands in. */
struct Newer {
    const char* what;
    const char* pattern;
    const char* sample;
};

const Newer newer[] = {
    {"text that goes with the library", "\\bQStringLiteral\\b", "QStringLiteral(x)"},
    {"QByteArrayLiteral", "\\bQByteArrayLiteral\\b", "QByteArrayLiteral(x)"},
    {"foreach", "\\b(foreach|Q_FOREACH|forever|Q_FOREVER)\\b", "foreach (a, b)"},
    {"words of QT_NO_KEYWORDS", "\\b(signals|slots)\\s*:|\\bemit\\b", "public slots:"},
    {"setCodec", "\\bsetCodec\\b|\\bQTextCodec\\b", "stream.setCodec(x)"},
    {"module prefix", "#include\\s*[<'](Qt[A-Z]\\w*)/", "#include <QtWidgets/QWidget>"},
    {"connect to a function", "\\bconnect\\s*\\([^;]*&\\s*\\w+::", "connect(a, &B::c, d, &E::f);"},
    {"connect to a lambda", "\\bconnect\\s*\\([^;]*\\[[^\\]]*\\]\\s*[({]", "connect(a, SIGNAL(b()), [this] { c(); });"},
    {"lambda", "(?<![\\w\\])])\\[[&=\\w\\s,]*\\]\\s*(\\([^;{]*\\)\\s*(const|mutable)?\\s*)?\\{", "x([&](int a) { });"},
    {"overload helpers", "\\b(QOverload|qOverload|QNonConstOverload|QConstOverload)\\b", "QOverload<int>::of(x)"},
    {"qAsConst", "\\b(qAsConst|as_const|qExchange)\\b", "for (x : qAsConst(y))"},
    {"logging of Qt 5", "\\b(qInfo|qCDebug|qCWarning|Q_LOGGING_CATEGORY|qUtf8Printable|qUtf16Printable)\\b",
     "qInfo(x)"},
    {"classes of Qt 5",
     "\\b(QStandardPaths|QRegularExpression|QJson\\w+|QCommandLine\\w+|QTemporaryDir|QSaveFile|QStringView|"
     "QSignalBlocker"
     "|QScopeGuard|QLockFile|QTimeZone|QCollator|QStorageInfo|QVersionNumber|QAnyStringView)\\b",
     "QJsonObject o;"},
    {"macros of Qt 5",
     "\\b(Q_NULLPTR|Q_DECL_OVERRIDE|Q_DECL_NOTHROW|Q_FALLTHROUGH|Q_ENUM|Q_NAMESPACE|Q_DISABLE_COPY_MOVE|Q_STATIC_ASSERT"
     "|Q_REQUIRED_RESULT|Q_UNREACHABLE)\\b",
     "Q_FALLTHROUGH();"},
    {"members of Qt 5",
     "[.>](constFirst|constLast|currentData|toSecsSinceEpoch|chopped|cbegin|cend|rbegin|crbegin|setSectionResizeMode"
     "|horizontalAdvance|removeIf|emplaceBack|swapItemsAt|setClearButtonEnabled|grab|toHtmlEscaped)\\s*\\(",
     "list.constFirst()"},
    {"members that Qt 6 dropped",
     "[.>](setMargin|setResizeMode|toTime_t|setBackgroundColor|setTextColor|toAscii|fromAscii)\\s*"
     "\\(",
     "text.toAscii()"},
    {"names that Qt 6 dropped", "\\b(QRegExp|QLinkedList|QDesktopWidget|QStringRef|QMatrix|qrand|qsrand)\\b",
     "QRegExp r;"},
    {"addresses that Qt guesses", "\\b(fromUserInput|fromLocalFile)\\b", "QUrl::fromLocalFile(x)"},
    {"Qt:: names of Qt 5", "\\bQt::(SkipEmptyParts|KeepEmptyParts|endl|hex|dec|SplitBehavior)\\b", "Qt::endl"},
    {"user-defined suffix of Qt 5.2 and later", "_qs\\b|\\bu\"\"|\"_L1", "x_qs"},
    {"inline variable", "\\binline\\s+(const|constexpr|static)\\b", "inline constexpr int x = 1;"},
    {"if constexpr", "\\bif\\s+constexpr\\b", "if constexpr (x)"},
    {"structured binding", "\\bauto\\s*[&*]*\\s*\\[", "auto& [a, b] = c;"},
    {"generic parameter", "[(,]\\s*(const\\s+)?auto\\b\\s*[&*]*\\s*\\w+\\s*[,)]", "f(const auto& x)"},
    {"deduced result", "\\bdecltype\\s*\\(\\s*auto\\s*\\)", "decltype(auto) f();"},
    {"attribute", "\\[\\[", "[[nodiscard]] int f();"},
    {"library of C++14 and later",
     "\\bstd::(make_unique|optional|variant|any|string_view|exchange|clamp|size|data|as_const|filesystem|byte|invoke"
     "|integer_sequence|\\w+_[tv])\\b",
     "std::make_unique<X>()"},
    {"digit separator or binary number", "\\b\\d+'\\d|\\b0b[01]", "1'000"},
    {"nested namespace", "\\bnamespace\\s+\\w+::", "namespace a::b {"},
    {"assertion without text", "\\bstatic_assert\\s*\\([^,;]*\\)\\s*;", "static_assert(true);"}};
} // namespace

void TestSources::initTestCase()
{
    for (const char* const name : {"src/QuickLinkUIPlugin", "include"}) {
        const QDir directory(folder(name));
        const QStringList files = directory.entryList(QStringList() << QStringLiteral("*.cpp") << QStringLiteral("*.h"),
                                                      QDir::Files, QDir::Name);
        QVERIFY2(!files.isEmpty(), name);
        for (const QString& file : files) {
            QFile source(directory.filePath(file));
            QVERIFY2(source.open(QIODevice::ReadOnly), qPrintable(source.fileName()));
            m_codes.insert(QLatin1String(name) + QLatin1Char('/') + file,
                           codeOnly(QString::fromUtf8(source.readAll())));
        }
    }
}

void TestSources::patternFindsItsSample_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("sample");
    for (const Newer& row : newer)
        QTest::newRow(row.what) << QString::fromLatin1(row.pattern) << QString::fromLatin1(row.sample);
}

void TestSources::patternFindsItsSample()
{
    QFETCH(QString, pattern);
    QFETCH(QString, sample);
    const QRegularExpression expression(pattern);
    QVERIFY2(expression.isValid(), qPrintable(expression.errorString()));
    QVERIFY(expression.match(codeOnly(sample)).hasMatch());
    QVERIFY(!expression.match(codeOnly(QLatin1String("x; // ") + sample)).hasMatch());
}

void TestSources::sourceUsesNothingNewer_data()
{
    QTest::addColumn<QString>("path");
    for (auto code = m_codes.constBegin(); code != m_codes.constEnd(); ++code)
        QTest::newRow(qPrintable(code.key())) << code.key();
}

void TestSources::sourceUsesNothingNewer()
{
    QFETCH(QString, path);
    const QString code = m_codes.value(path);
    QStringList found;
    for (const Newer& row : newer) {
        const QRegularExpressionMatch match = QRegularExpression(QString::fromLatin1(row.pattern)).match(code);
        if (match.hasMatch())
            found.append(QString::fromLatin1("%1: %2").arg(QLatin1String(row.what), match.captured().trimmed()));
    }
    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1String("; "))));
}

QStringList TestSources::includesOf(const QString& code, const char* pattern)
{
    QStringList names;
    QRegularExpressionMatchIterator matches = QRegularExpression(QString::fromLatin1(pattern)).globalMatch(code);
    while (matches.hasNext())
        names.append(matches.next().captured(1));
    return names;
}

void TestSources::includesAreOfQt48()
{
    QFETCH(QString, path);
    const QString code = m_codes.value(path);
    const QStringList quoted = includesOf(code, "#include '([^']+)'");
    for (const QString& name : quoted) {
        const bool isOurs = m_codes.contains(QLatin1String("src/QuickLinkUIPlugin/") + name) ||
                            m_codes.contains(QLatin1String("include/") + name);
        QVERIFY2(isOurs, qPrintable(name));
    }
    const QStringList bracketed = includesOf(code, "#include <([^>]+)>");
    for (const QString& name : bracketed) {
        // The one exception, which Qt 4 does not get to see.
        if (name == QLatin1String("QLoggingCategory") && path.endsWith(QLatin1String("/Trace.cpp")))
            continue;
        const bool isKnown = contains(std::begin(headersOfQt48), std::end(headersOfQt48), name) ||
                             contains(std::begin(headersOfCpp11), std::end(headersOfCpp11), name);
        QVERIFY2(isKnown, qPrintable(name));
    }
}

void TestSources::versionSwitchesAreInOnePlace()
{
    QFETCH(QString, path);
    const bool isTheirPlace = path.endsWith(QLatin1String("/QtVersionSwitches.h"));
    QCOMPARE(m_codes.value(path).contains(QRegularExpression(QStringLiteral("\\bQT_VERSION\\b"))), isTheirPlace);
}

QTEST_GUILESS_MAIN(TestSources)
#include "tst_sources.moc"
