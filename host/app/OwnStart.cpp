// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "OwnStart.h"

#include <unistd.h>

OwnStart::OwnStart(char** arguments)
{
    for (char** argument = arguments; *argument; ++argument)
        m_arguments.append(*argument);
    m_arguments.append(nullptr);
    for (char** line = environ; *line; ++line)
        m_environment.append(*line);
}

void OwnStart::repeat(const QList<QByteArray>& lines) const
{
    QVector<char*> environment = m_environment;
    for (const QByteArray& line : lines)
        environment.append(const_cast<char*>(line.constData()));
    environment.append(nullptr);
    // The running file, even when another one has taken its place meanwhile.
    ::execve("/proc/self/exe", m_arguments.constData(), environment.constData());
}
