// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "RecordingTrace.h"

#if QT_VERSION >= 0x050000
#include <QLoggingCategory>
#include <QRegularExpression>
#else
#include <QRegExp>
#endif

const char TracePattern::time[] = "\\d\\d:\\d\\d:\\d\\d:\\d\\d\\d";
const char TracePattern::file[] = "[^ :]*src/QuickLinkUIPlugin/[A-Za-z]+\\.cpp";
const char TracePattern::line[] = "\\d+";

namespace
{
RecordingTrace* current = nullptr;

void record(QtMsgType type, const QString& text)
{
    if (type == QtDebugMsg)
        current->debugLines.append(text);
    else
        current->warningLines.append(text);
}

bool matches(const QString& text, const QString& pattern)
{
#if QT_VERSION >= 0x050000
    return QRegularExpression("\\A(?:" + pattern + ")\\z").match(text).hasMatch();
#else
    return QRegExp(pattern).exactMatch(text);
#endif
}

int count(const QStringList& lines, const QString& pattern)
{
    int number = 0;
    for (const QString& line : lines) {
        if (matches(line, pattern))
            ++number;
    }
    return number;
}

#if QT_VERSION >= 0x050000
QtMessageHandler previous = nullptr;

void handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (current && (type == QtDebugMsg || type == QtWarningMsg))
        record(type, text);
    else if (current && type == QtInfoMsg)
        current->infoLines.append(text);
    else if (previous)
        previous(type, context, text);
}
#else
QtMsgHandler previous = nullptr;

void handle(QtMsgType type, const char* text)
{
    if (current && (type == QtDebugMsg || type == QtWarningMsg))
        record(type, QString::fromLocal8Bit(text));
    else if (previous)
        previous(type, text);
}
#endif
} // namespace

RecordingTrace::RecordingTrace()
{
    Q_ASSERT(!current);
    current = this;
#if QT_VERSION >= 0x050000
    previous = qInstallMessageHandler(handle);
#else
    previous = qInstallMsgHandler(handle);
#endif
}

RecordingTrace::~RecordingTrace()
{
#if QT_VERSION >= 0x050000
    qInstallMessageHandler(previous);
#else
    qInstallMsgHandler(previous);
#endif
    current = nullptr;
}

int RecordingTrace::countDebug(const QString& pattern) const
{
    return count(debugLines, pattern);
}

int RecordingTrace::countWarnings(const QString& pattern) const
{
    return count(warningLines, pattern);
}

QString RecordingTrace::debugDifference(const QStringList& patterns) const
{
    bool isSame = debugLines.size() == patterns.size();
    for (int i = 0; isSame && i < patterns.size(); ++i)
        isSame = matches(debugLines.at(i), patterns.at(i));
    if (isSame)
        return QString();
    return "lines:\n" + debugLines.join("\n") + "\npatterns:\n" + patterns.join("\n");
}

QString tracePattern(const char* line)
{
    QString pattern = line;
    return pattern.replace("%T", TracePattern::time)
        .replace("%F", TracePattern::file)
        .replace("%L", TracePattern::line);
}

#if QT_VERSION >= 0x050000
DebugChannelOff::DebugChannelOff()
{
    QLoggingCategory::setFilterRules("default.debug=false");
}

DebugChannelOff::~DebugChannelOff()
{
    QLoggingCategory::setFilterRules(QString());
}

bool DebugChannelOff::isPossible()
{
    return true;
}

QString withoutTimes(QString text)
{
    return text.remove(QRegularExpression(TracePattern::time));
}
#else
DebugChannelOff::DebugChannelOff()
{
}

DebugChannelOff::~DebugChannelOff()
{
}

bool DebugChannelOff::isPossible()
{
    return false;
}

QString withoutTimes(QString text)
{
    return text.remove(QRegExp(TracePattern::time));
}
#endif
