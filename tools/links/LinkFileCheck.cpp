// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkFileCheck.h"

#include "LinkFile.h"
#include "LinkSchema.h"
#include "StructureCheck.h"

static QString reasonOf(LinkFile::Condition condition)
{
    if (condition == LinkFile::Missing)
        return QStringLiteral("There is no such file.");
    if (condition == LinkFile::NotRegular)
        return QStringLiteral("This is a folder, a pipe or a device, and no file.");
    return QStringLiteral("The file cannot be read: it is not for this user, or the disk fails.");
}

static Findings findingsIn(const QString& file, const QByteArray& content, const LinkSchema* schema)
{
    StructureCheck check(file, content);
    if (check.run() && schema)
        check.add(schema->objectionsTo(content));
    return check.findings();
}

Findings LinkFileCheck::of(const QString& file, const LinkSchema* schema)
{
    const LinkFile look = LinkFile::look(file);
    switch (look.condition) {
    case LinkFile::Good:
    case LinkFile::Empty:
    case LinkFile::Damaged:
        return findingsIn(file, look.content, schema);
    case LinkFile::TooLarge:
        return {{file, Place(), FindingCode::TooLarge,
                 QStringLiteral("The file is larger than any file of links, or stands for more by its entities.")}};
    case LinkFile::Missing:
    case LinkFile::Unreadable:
    case LinkFile::NotRegular:
        break;
    }
    return {{file, Place(), FindingCode::Unreadable, reasonOf(look.condition)}};
}
