// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

/** A pointer member of an object under test, which must outlive what is known of it here. */
struct PointerMember {
    const char* name;
    void* address;   ///< of the member itself
    QObject* object; ///< what it pointed at when it was listed; may be null

    /** Whether the member is null now. */
    bool isNull() const;
};

/** The entry for a member of that name. */
template <class T>
PointerMember pointerMember(const char* name, T*& member)
{
    const PointerMember entry = {name, &member, member};
    return entry;
}

/** The one of that name in members; a name that is not there ends the test program. */
PointerMember memberNamed(const QList<PointerMember>& members, const QString& name);

/** Makes a member null while it lives; the object that it pointed at stays. */
class NullMember
{
public:
    explicit NullMember(const PointerMember& member);
    ~NullMember();

private:
    NullMember(const NullMember&);
    NullMember& operator=(const NullMember&);

    void* m_address;
    void* m_value;
};

/** The names in a text in which blanks separate them. */
QStringList names(const char* blankSeparated);

/** Adds a test row for each name, called "no <name>", with the name in the column "member". */
void addMemberRows(const QStringList& names);

/** A pattern for the line that function leaves when a pointer that it needs is null. */
QString nullTrace(const char* function);
