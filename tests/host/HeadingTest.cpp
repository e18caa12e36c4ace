// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What stands over a part of the window.

#include <QLabel>

#include "Heading.h"
#include "Test.h"

class HeadingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standsOut();
};

void HeadingTest::standsOut()
{
    const QLabel usual;
    const QScopedPointer<QLabel> heading(newHeading(4));
    QVERIFY(heading->font().bold());
    QCOMPARE(heading->font().pointSizeF(), usual.font().pointSizeF() + 4);
    QCOMPARE(heading->text(), QString());
}

REGISTER_TEST(HeadingTest)
#include "HeadingTest.moc"
