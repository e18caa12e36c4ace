// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

/**
 * The states that the links were in, a file each in a folder of its own: the newest hundred, equal ones once. The
 * folder is its user's alone, and each file is whole or not there at all.
 */
class LinkHistory
{
public:
    /** One kept state. */
    struct State {
        QString file;     ///< absolute path
        QDateTime time;   ///< when it was kept last, UTC
        QString identity; ///< equal for equal content

        bool isNull() const { return file.isEmpty(); }
    };

    static const int longest = 100; ///< states

    /** Keeps its states in folder, which need not exist. It must lie in root, whatever symbolic links say. */
    LinkHistory(const QString& root, const QString& folder);

    /** Whether anything was ever kept: the folder is there. */
    bool exists() const;

    /** Makes the folder; false when it is not there afterwards, or lies outside of root. */
    bool prepare() const;

    /**
     * Makes content the newest state, which an equal one becomes where there is one, and lets the oldest go. False when
     * it could not be kept; what was kept before is still there then.
     */
    bool keep(const QByteArray& content) const;

    /** All states, newest first. Nothing is read but their names. */
    QList<State> states() const;

    /** What a state holds; empty where it cannot be read or is not what was kept. */
    static QByteArray contentOf(const State& state);

    /** The newest state that is still what was kept; null where there is none. */
    State newestGood() const;

    /** The state with this content; null where it is not kept. */
    State find(const QByteArray& content) const;

private:
    QString m_root;
    QString m_folder;
};
