// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QVector>

/** What this process was started with, by which it can start anew. */
class OwnStart
{
public:
    /**
     * Remembers arguments, those of main(), and the environment. To be made before the application object, which takes
     * out of both what it knows.
     */
    explicit OwnStart(char** arguments);

    /**
     * Starts the program anew in the same process, with the same arguments and files, and with these lines
     * ("NAME=value") added to the environment; see execve(2). Returns only where the system refuses it.
     */
    void repeat(const QList<QByteArray>& lines) const;

private:
    QVector<char*> m_arguments;   ///< with the null at the end
    QVector<char*> m_environment; ///< without it
};
