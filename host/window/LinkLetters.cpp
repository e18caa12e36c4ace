// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkLetters.h"

#include <QKeySequence>

#include "LinkName.h"

LinkLetters::LinkLetters(const QStringList& captions)
{
    for (const QString& caption : captions) {
        const QString key = QKeySequence::mnemonic(caption).toString(QKeySequence::PortableText);
        if (!key.isEmpty())
            m_taken.insert(key.back());
    }
}

QString LinkLetters::marked(const QString& name)
{
    const int index = place(name);
    if (index < 0)
        return LinkName::withAmpersands(name);
    m_taken.insert(name.at(index).toUpper());
    return LinkName::withAmpersands(name.left(index)) + QLatin1Char('&') + LinkName::withAmpersands(name.mid(index));
}

bool LinkLetters::isFree(QChar letter) const
{
    const QChar::Script script = letter.script();
    const bool isOneKey =
        script == QChar::Script_Latin || script == QChar::Script_Cyrillic || script == QChar::Script_Greek;
    return letter.isLetter() && isOneKey && !m_taken.contains(letter.toUpper());
}

/** The beginning of a word, which is found sooner, or any other letter; -1 for none. */
int LinkLetters::place(const QString& name) const
{
    int inside = -1;
    for (int i = 0; i < name.size(); ++i) {
        if (!isFree(name.at(i)))
            continue;
        if (i == 0 || !name.at(i - 1).isLetterOrNumber())
            return i;
        if (inside < 0)
            inside = i;
    }
    return inside;
}
