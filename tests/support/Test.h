// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QtTest>

#include "QtTestVersions.h"
#include "QtVersions.h"

// What every test file begins with.

/** Ends a test file: its class, whose only constructor takes nothing, runs in the program of its folder. */
#define REGISTER_TEST(Class) static const RegisteredTest registered##Class(#Class, &newTest<Class>);

typedef QObject* (*TestMaker)();

template <class Test>
QObject* newTest()
{
    return new Test;
}

/** One test class of a program. */
class RegisteredTest
{
public:
    /** name and make must live as long as the program. */
    RegisteredTest(const char* name, TestMaker make);
};

namespace QTest
{
// Lets a text be compared with a literal in UTF-8.
inline bool qCompare(const QString& actual, const char* expected, const char* actualText, const char* expectedText,
                     const char* file, int line)
{
    return qCompare(actual, QString::fromUtf8(expected), actualText, expectedText, file, line);
}
inline bool qCompare(const QByteArray& actual, const char* expected, const char* actualText, const char* expectedText,
                     const char* file, int line)
{
    return qCompare(actual, QByteArray(expected), actualText, expectedText, file, line);
}
} // namespace QTest
