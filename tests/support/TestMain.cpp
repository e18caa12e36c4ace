// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The main() of every test program: runs the test class that the first argument names, else all of them in turn.
// Further arguments are QtTest's.

#include <QApplication>
#include <QMap>
#include <QScopedPointer>
#include <QStringList>

#include "Test.h"

namespace
{
QMap<QString, TestMaker>& tests()
{
    static QMap<QString, TestMaker> all;
    return all;
}

int runTest(const QString& name, const QStringList& arguments)
{
    const QScopedPointer<QObject> test(tests().value(name)());
    return QTest::qExec(test.data(), arguments);
}
} // namespace

RegisteredTest::RegisteredTest(const char* name, TestMaker make)
{
    tests().insert(QString::fromLatin1(name), make);
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
#if QT_VERSION >= 0x050000
    // As QTEST_MAIN does: sizes must not depend on the screen.
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
#endif
    QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() > 1 && tests().contains(arguments.at(1)))
        return runTest(arguments.takeAt(1), arguments);
    if (arguments.size() > 1 && !arguments.at(1).startsWith('-'))
        qFatal("There is no test class %s", qPrintable(arguments.at(1)));
    int failures = 0;
    const QStringList names = tests().keys();
    for (const QString& name : names)
        failures += runTest(name, arguments);
    return failures;
}
