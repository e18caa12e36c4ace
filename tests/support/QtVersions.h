// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

// What tests use of the toolkit and Qt 4.8 lacks, in the words of Qt 5 where there are some. The tests themselves know no
// versions. What is missing of QtTest is in QtTestVersions.h.

#if QT_VERSION < 0x050000
#include <cstdlib>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMetaMethod>
#include <QString>
#include <QStyleOptionViewItemV4>
#include <QtPlugin>

/** A plug-in's entry point, where the class cannot name it. */
#define EXPORT_FAKE_PLUGIN(Class) Q_EXPORT_PLUGIN2(fake, Class)
#define Q_PLUGIN_METADATA(metadata)

/** Without its point: the text is copied, not data of the library. */
#define QStringLiteral(text) QString::fromUtf8(text)
#define qUtf8Printable(text) QString(text).toUtf8().constData()

/** Lets a list of values stand in a test's table. */
#define DECLARE_LIST_METATYPE(List) Q_DECLARE_METATYPE(List)
DECLARE_LIST_METATYPE(QList<int>)

typedef QStyleOptionViewItemV4 ViewItemOption;

inline bool qunsetenv(const char* name)
{
    return unsetenv(name) == 0;
}

inline bool qEnvironmentVariableIsSet(const char* name)
{
    return getenv(name) != nullptr;
}

/** "name(types)" of a method. */
inline QByteArray signatureOf(const QMetaMethod& method)
{
    return method.signature();
}

/** What is known of each signal's access, and how a method that returns nothing calls that. */
const QMetaMethod::Access signalAccess = QMetaMethod::Protected;
const char* const noTypeName = "";

/** Removes a folder with all that is in it, links unfollowed; false when something stays. */
inline bool removeFolder(const QString& path)
{
    bool isRemoved = true;
    const QFileInfoList entries =
        QDir(path).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QFileInfo& entry : entries) {
        const bool isFolder = entry.isDir() && !entry.isSymLink();
        isRemoved = (isFolder ? removeFolder(entry.filePath()) : QFile::remove(entry.filePath())) && isRemoved;
    }
    return QDir().rmdir(path) && isRemoved;
}

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
            removeFolder(m_path);
    }

    bool isValid() const { return !m_path.isEmpty(); }
    QString path() const { return m_path; }
    QString filePath(const QString& name) const { return m_path + QLatin1Char('/') + name; }

private:
    Q_DISABLE_COPY(QTemporaryDir)

    QString m_path;
};
#else
#include <QDir>
#include <QMetaMethod>
#include <QStyleOptionViewItem>
#include <QTemporaryDir>

#define EXPORT_FAKE_PLUGIN(Class)
#define DECLARE_LIST_METATYPE(List)

typedef QStyleOptionViewItem ViewItemOption;

inline QByteArray signatureOf(const QMetaMethod& method)
{
    return method.methodSignature();
}

const QMetaMethod::Access signalAccess = QMetaMethod::Public;
const char* const noTypeName = "void";

inline bool removeFolder(const QString& path)
{
    return QDir(path).removeRecursively();
}
#endif
