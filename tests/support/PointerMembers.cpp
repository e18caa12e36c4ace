// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "PointerMembers.h"

#include <cstring>

#include <QTest>

#include "RecordingTrace.h"

bool PointerMember::isNull() const
{
    void* value = nullptr;
    std::memcpy(&value, address, sizeof value);
    return value == nullptr;
}

PointerMember memberNamed(const QList<PointerMember>& members, const QString& name)
{
    for (const PointerMember& member : members) {
        if (QLatin1String(member.name) == name)
            return member;
    }
    qFatal("There is no member %s", qPrintable(name));
    return members.first();
}

NullMember::NullMember(const PointerMember& member)
    : m_address(member.address)
    , m_value(nullptr)
{
    std::memcpy(&m_value, m_address, sizeof m_value);
    std::memset(m_address, 0, sizeof m_value);
}

NullMember::~NullMember()
{
    std::memcpy(m_address, &m_value, sizeof m_value);
}

QStringList names(const char* blankSeparated)
{
    return QString::fromLatin1(blankSeparated).split(' ');
}

void addMemberRows(const QStringList& names)
{
    QTest::addColumn<QString>("member");
    for (const QString& name : names)
        QTest::newRow(qPrintable("no " + name)) << name;
}

QString nullTrace(const char* function)
{
    return QString("Arg is NULL: %1: %2: %3 %4")
        .arg(QLatin1String(TracePattern::time), QLatin1String(TracePattern::file), QLatin1String(function),
             QLatin1String(TracePattern::line));
}
