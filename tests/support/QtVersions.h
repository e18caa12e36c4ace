// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

// What tests use of the toolkit and Qt 4.8 lacks, in the words of Qt 5 where there are some. The tests themselves know
// no versions. What is missing of QtTest is in QtTestVersions.h.

#if QT_VERSION < 0x050000
#include <cstdlib>

#include <QAccessible>
#include <QApplication>
#include <QByteArray>
#include <QDesktopWidget>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMetaMethod>
#include <QScopedPointer>
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

/** The loader's entry point for metadata; empty where it has none. */
const char metadataEntry[] = "";

/** Whether a loader of this architecture reads the plug-in's build key from a section of the file. */
#ifdef __i386__
const bool isBuildKeyInSection = false;
#else
const bool isBuildKeyInSection = true;
#endif

/** Whether the XML reader gives up at entities that grow beyond measure. */
const bool areEntitiesLimited = false;

/** Whether the XML reader takes a NUL byte for the end of what can be read; else it leaves it out. */
const bool isNulAnError = false;

/** Whether a code point can be written to a file: not one that Unicode keeps for use inside of programs. */
inline bool isWritable(uint code)
{
    return (code & 0xfffe) != 0xfffe && (code < 0xfdd0 || code > 0xfdef);
}

/** For what the toolkit itself does otherwise since Qt 5. */
inline const char* byQt(const char* before5, const char*)
{
    return before5;
}

/** The text of one character. */
inline QString codePoint(uint code)
{
    return QString::fromUcs4(&code, 1);
}

/** The number with which a translator chooses the plural, where it is told. */
#define TRANSLATED_NUMBER

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

/** The type that a method returns; Qt 4.8 has no name for void. */
inline QByteArray returnTypeOf(const QMetaMethod& method)
{
    return *method.typeName() ? method.typeName() : "void";
}

/** Whether a widget says that it goes before its children go. */
const bool saysParentGoneFirst = false;

/** What the meta-object says of the access of every signal. */
const QMetaMethod::Access signalAccess = QMetaMethod::Protected;

/** What a screen reader hears of a widget. */
inline QString accessibleText(QWidget* widget, QAccessible::Text text)
{
    return QScopedPointer<QAccessibleInterface>(QAccessible::queryAccessibleInterface(widget))->text(text, 0);
}

/** What windows may cover of the widget's screen. */
inline QRect screenArea(const QWidget* widget)
{
    return QApplication::desktop()->availableGeometry(widget);
}

/** A plug-in's library as a later toolkit would have built it; empty when it does not say for which it was built. */
inline QByteArray builtForLaterToolkit(QByteArray library)
{
    const QByteArray mark = "\nversion=";
    const int version = library.indexOf(QByteArray(mark) + QT_VERSION_STR);
    if (version < 0)
        return QByteArray();
    library[version + mark.size()] = '5';
    return library;
}

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
#include <QAccessible>
#include <QAccessibleInterface>
#include <QDir>
#include <QMetaMethod>
#include <QScreen>
#include <QStyleOptionViewItem>
#include <QTemporaryDir>
#include <QWidget>

#define EXPORT_FAKE_PLUGIN(Class)
#define DECLARE_LIST_METATYPE(List)

typedef QStyleOptionViewItem ViewItemOption;

#if QT_VERSION >= 0x060000
const char metadataEntry[] = "qt_plugin_query_metadata_v2";
#else
const char metadataEntry[] = "qt_plugin_query_metadata";
#endif
const bool isBuildKeyInSection = false;
const bool areEntitiesLimited = true;
const bool isNulAnError = true;

inline bool isWritable(uint)
{
    return true;
}

inline const char* byQt(const char*, const char* since5)
{
    return since5;
}

inline QString codePoint(char32_t code)
{
    return QString::fromUcs4(&code, 1);
}

#define TRANSLATED_NUMBER , int

inline QByteArray signatureOf(const QMetaMethod& method)
{
    return method.methodSignature();
}

inline QByteArray returnTypeOf(const QMetaMethod& method)
{
    return method.typeName();
}

const bool saysParentGoneFirst = true;

const QMetaMethod::Access signalAccess = QMetaMethod::Public;

inline bool removeFolder(const QString& path)
{
    return QDir(path).removeRecursively();
}

inline QString accessibleText(QWidget* widget, QAccessible::Text text)
{
    return QAccessible::queryAccessibleInterface(widget)->text(text);
}

inline QRect screenArea(const QWidget* widget)
{
    return widget->screen()->availableGeometry();
}

inline QByteArray builtForLaterToolkit(QByteArray library)
{
#if QT_VERSION >= 0x060300
    const QByteArray mark("qt-project!", 12);
#else
    const QByteArray mark("QTMETADATA !");
#endif
    const int major = int(library.indexOf(mark) + mark.size()) + 1;
    if (library.at(major) != QT_VERSION_MAJOR)
        return QByteArray();
    library[major] = QT_VERSION_MAJOR + 1;
    return library;
}
#endif
