// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

// What tests use of QtTest and QtCore and Qt 4.8 lacks, in the words of Qt 5. The tests themselves know no versions.

#if QT_VERSION < 0x050000
#include <cstdlib>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QTest>
#include <QWidget>

#define QTRY_VERIFY(condition)                                                                                         \
    do {                                                                                                               \
        for (int waited = 0; waited < 5000 && !(condition); waited += 20)                                              \
            QTest::qWait(20);                                                                                          \
        QVERIFY(condition);                                                                                            \
    } while (false)

#define QTRY_COMPARE(actual, expected)                                                                                 \
    do {                                                                                                               \
        for (int waited = 0; waited < 5000 && !((actual) == (expected)); waited += 20)                                 \
            QTest::qWait(20);                                                                                          \
        QCOMPARE(actual, expected);                                                                                    \
    } while (false)

#define qUtf8Printable(text) QString(text).toUtf8().constData()

/** A folder of its own below the system's temporary one, which goes with the object. */
class QTemporaryDir
{
public:
    QTemporaryDir()
    {
        QByteArray pattern = QFile::encodeName(QDir::tempPath() + QString::fromLatin1("/testXXXXXX"));
        if (mkdtemp(pattern.data()))
            m_path = QFile::decodeName(pattern);
    }
    ~QTemporaryDir()
    {
        if (isValid())
            remove(m_path);
    }

    bool isValid() const { return !m_path.isEmpty(); }
    QString path() const { return m_path; }
    QString filePath(const QString& name) const { return m_path + QLatin1Char('/') + name; }

private:
    Q_DISABLE_COPY(QTemporaryDir)

    static void remove(const QString& path)
    {
        const QDir folder(path);
        const QFileInfoList entries =
            folder.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        for (const QFileInfo& entry : entries) {
            if (entry.isDir() && !entry.isSymLink())
                remove(entry.filePath());
            else
                QFile::remove(entry.filePath());
        }
        QDir().rmdir(path);
    }

    QString m_path;
};

namespace QTest
{
/** Qt 4.8 waits only for the window to be shown; the rest is waited for here. */
inline bool qWaitForWindowActive(QWidget* window)
{
    qWaitForWindowShown(window);
    for (int waited = 0; waited < 5000 && !window->isActiveWindow(); waited += 20)
        qWait(20);
    return window->isActiveWindow();
}

inline bool qWaitForWindowExposed(QWidget* window)
{
    return qWaitForWindowShown(window);
}
} // namespace QTest
#else
#include <QTemporaryDir>
#endif
